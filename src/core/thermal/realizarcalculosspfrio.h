#pragma once

#include "core/thermal/argumentosfrio.h"
#include "core/thermal/modeloresultados.h"

#include <cstdint>
#include <string>

namespace kelvora {

/// Arguments of `RealizarCalculosSPFrio`: the cold ones, then the bare surface.
struct ArgumentosSPFrio : ArgumentosFrio {
    int16_t CodigoMaterialSuperficieDesnuda = 0;
    double EmisividadSuperficieDesnuda = 0;
    std::string NombreMaterialDesnuda;
};

/// Cold flat surface: per position the thickness that keeps the surface at TS, and a practical
/// thickness of its own, rounded up, into the window's slots and grid.
bool RealizarCalculosSPFrio(ModeloResultados& ventana, const ArgumentosSPFrio& argumentos);

}  // namespace kelvora
