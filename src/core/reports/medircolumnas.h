#pragma once

#include "core/platform/surface.h"
#include "core/reports/grilla.h"

#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace kelvora {

/// The width of a text in the unit of the surface it is measured on.
using MedidaTexto = std::function<double(const std::string& texto)>;

/// One width per column: the widest of its cells that are neither in a heading row nor
/// replaced by a long text (RowData × ColData other than 0), plus the width of `blancos`
/// blanks. A hidden column (ColWidth 0) measures 0.
std::vector<double> MedirColumnas(const MedidaTexto& medida, const Grilla& grilla, int16_t blancos);

/// The same, measured with the surface's own text width.
std::vector<double> MedirColumnas(const Surface& surface, const Grilla& grilla, int16_t blancos);

}  // namespace kelvora
