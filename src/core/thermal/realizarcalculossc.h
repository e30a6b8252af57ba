#pragma once

#include "core/materials/tubos.h"
#include "core/thermal/modeloresultados.h"

#include <cstdint>
#include <string>

namespace kelvora {

/// Arguments of `RealizarCalculosSC`, in their order; temperatures in °F, speed in mi/h,
/// diameter in plg.
struct ArgumentosSC {
    double TemperaturaInterior = 0;
    double TemperaturaSuperficieAislamiento = 0;
    double TemperaturaAmbiente = 0;
    /// TI, TS and TA as the user chose to see them.
    NombresUnidades unidades;
    double VelocidadAire = 0;
    /// Nominal diameter; cut to its integer part when it is read without `Tubos`.
    double DiametroTuberia = 0;
    int16_t CodigoMaterialSuperficieAislamiento = 0;
    double EmisividadSuperficieAislamiento = 0;
    std::string NombreMaterialAislamiento;
    bool modoGrafica = false;
    /// 1: valorGrafica takes the input TS; 2: Qt per foot of the horizontal run, practical.
    int16_t tipoGrafica = 0;
    /// Out in chart mode: the practical thickness of the horizontal run.
    double espesorGrafica = 0;
    double valorGrafica = 0;
};

/// Hot pipe: ideal and practical thickness of the vertical and the horizontal run, flows per
/// foot, into the window's slots and grid. Errors give their message in chart mode too.
bool RealizarCalculosSC(ModeloResultados& ventana, ArgumentosSC& argumentos, FuenteTubos& tubos);

}  // namespace kelvora
