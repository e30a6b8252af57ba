#pragma once

#include <QFont>

namespace kelvora {

/// The fixed-pitch font of boxes and grids: Courier New, or Liberation Mono where it is missing.
QFont FuenteFija(double puntos = 9);

}  // namespace kelvora
