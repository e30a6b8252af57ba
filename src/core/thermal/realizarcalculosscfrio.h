#pragma once

#include "core/materials/tubos.h"
#include "core/thermal/argumentosfrio.h"
#include "core/thermal/modeloresultados.h"

namespace kelvora {

/// Arguments of `RealizarCalculosSCFrio`: the cold ones, then the nominal diameter in plg.
struct ArgumentosSCFrio : ArgumentosFrio {
    double DiametroTuberia = 0;
};

/// Cold pipe of product 14: vertical and horizontal run, each with the next larger section of
/// its row up to Tres, into the window's slots and grid.
bool RealizarCalculosSCFrio(ModeloResultados& ventana, const ArgumentosSCFrio& argumentos,
                            FuenteTubos& tubos);

}  // namespace kelvora
