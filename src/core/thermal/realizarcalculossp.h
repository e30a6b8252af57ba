#pragma once

#include "core/thermal/modeloresultados.h"

#include <cstdint>
#include <string>

namespace kelvora {

/// Arguments of `RealizarCalculosSP`, in their order; temperatures in °F, speed in mi/h.
struct ArgumentosSP {
    double TemperaturaInterior = 0;
    double TemperaturaSuperficieAislamiento = 0;
    double TemperaturaAmbiente = 0;
    /// TI, TS and TA as the user chose to see them.
    NombresUnidades unidades;
    double VelocidadAire = 0;
    double EmisividadSuperficieAislamiento = 0;
    double EmisividadSuperficieDesnuda = 0;
    int16_t CodigoMaterialSuperficieAislamiento = 0;
    int16_t CodigoMaterialSuperficieDesnuda = 0;
    std::string NombreMaterialAislamiento;
    std::string NombreMaterialDesnuda;
    bool modoGrafica = false;
    /// 1: valorGrafica takes the input TS; 2: Qt of the vertical position, practical.
    int16_t tipoGrafica = 0;
    /// Out in chart mode: the common practical thickness.
    double espesorGrafica = 0;
    double valorGrafica = 0;
};

/// Hot flat surface: the ideal thickness of each of the three positions and one common
/// practical thickness, into the window's slots and grid. In chart mode only the two outputs
/// are written, and a failed step leaves its value as it was and the next step runs.
bool RealizarCalculosSP(ModeloResultados& ventana, ArgumentosSP& argumentos);

}  // namespace kelvora
