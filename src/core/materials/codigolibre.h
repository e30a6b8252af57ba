#pragma once

#include "core/materials/conexion.h"

#include <cstdint>

namespace kelvora {

/// The smallest material code from 1 up that is not in use: the first gap of the codes read
/// in ascending order. Error 6 when it would leave the 16-bit range.
int16_t SiguienteCodigoLibre(Conexion& conexion);

}  // namespace kelvora
