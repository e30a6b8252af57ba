#pragma once

#include "core/reports/grilla.h"

#include <cstdint>
#include <string>

namespace kelvora {

/// Item `indice` of a grid's long-text list (its Tag split at ';', item 0 first). Error 9 when
/// the list is shorter.
std::string TextoLargo(const Grilla& grilla, int32_t indice);

/// True when cell (fila, columna) shows a long text instead of its own: RowData × ColData > 0.
bool EsCeldaLarga(const Grilla& grilla, int fila, int columna);

}  // namespace kelvora
