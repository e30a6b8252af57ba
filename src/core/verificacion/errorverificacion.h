#pragma once

#include "core/runtime/runtimeerror.h"

#include <string>

namespace kelvora {

/// Run-time error number of every refusal of the verification.
inline constexpr int kErrorVerificacion = 1010;

/// The verification's refusal with its message.
RuntimeError ErrorVerificacion(std::string mensaje);

/// A number in the runtime's Format with a point as decimal mark, as the result grids show it.
std::string TextoNumero(double valor, const char* patron = "0.0#");

}  // namespace kelvora
