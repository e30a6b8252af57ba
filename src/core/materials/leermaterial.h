#pragma once

#include "core/materials/conexion.h"
#include "core/materials/recordset.h"
#include "core/runtime/runtimeerror.h"

#include <cstdint>
#include <string>

namespace kelvora {

/// The shared lookup of a material by code, on the caller's open connection and recordset.
/// Found: the emissivity box gets the value's default text with a point, and the result is
/// the description, trimmed and in upper case. Not found: the box is emptied and the result
/// says so. On any failure the box keeps its text and the result carries the error.
std::string LeerMaterial(Conexion& conexion, Recordset& recordset, int32_t codigo,
                         std::string& caja);
/// The result of a lookup that failed with `error`.
std::string MensajeErrorMaterial(const RuntimeError& error);

}  // namespace kelvora
