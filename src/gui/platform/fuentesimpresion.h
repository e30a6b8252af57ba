#pragma once

#include "core/platform/surface.h"

#include <QFont>

namespace kelvora {

/// Units of the page surfaces' painters: one hundredth of a millimetre.
inline constexpr double kUnidadesPorMm = 100;

/// The Qt font of a report font, sized in hundredths of a millimetre. "Courier New", "Arial"
/// and "Times New Roman" are drawn with the Liberation family of the same metrics, so that a
/// page measures the same on every machine. Error 5 with a message naming the font when the
/// family is not installed: no other font stands in for it.
QFont FuenteImpresion(const Fuente& fuente);

}  // namespace kelvora
