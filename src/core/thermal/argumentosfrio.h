#pragma once

#include "core/thermal/modeloresultados.h"

#include <cstdint>
#include <string>

namespace kelvora {

/// The arguments both cold calculations take first, in their order; temperatures in °F, speed
/// in mi/h.
struct ArgumentosFrio {
    double TemperaturaInterior = 0;
    /// Dew point + 1, the required surface temperature.
    double TemperaturaSuperficie = 0;
    double TemperaturaAmbiente = 0;
    double TemperaturaBulboHumedo = 0;
    bool hayTBH = false;
    double TemperaturaPuntoRocio = 0;
    /// TI, the dew point field's unit (for TS), TA, wet bulb and dew point.
    NombresUnidades unidades;
    double VelocidadAire = 0;
    double HumedadRelativa = 0;
    bool hayHR = false;
    /// k, typed by the user.
    double CoeficienteTransmisionCalor = 0;
    int16_t CodigoMaterialSuperficieAislamiento = 0;
    double EmisividadSuperficieAislamiento = 0;
    std::string NombreMaterialAislamiento;
};

/// The public values of a cold results window: jacket name, TS, wet bulb and dew point in their
/// display units with the unit names, humidity and the two flags.
void GuardarValoresFrio(ModeloResultados& ventana, const ArgumentosFrio& argumentos);

}  // namespace kelvora
