#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelvora {

/// The runtime's Val: the longest numeric prefix, point decimal only, 0 when there is none.
double Val(std::string_view texto);

/// Locale-aware parse of a whole text as a number (CDbl, IsNumeric); nullopt when it is not one.
std::optional<double> ParsearNumeroLocale(std::string_view texto);
bool IsNumeric(std::string_view texto);
/// CDbl of a text: error 13 when it is not a number.
double CDbl(std::string_view texto);

/// Double to 16-bit and 32-bit integers, half to even, error 6 out of range.
int16_t CInt(double valor);
int32_t CLng(double valor);
int16_t CInt(std::string_view texto);
/// Double to the nearest 32-bit float, error 6 when it does not fit.
float CSng(double valor);

/// Default text of a Double (CStr): 15 significant digits, locale decimal separator.
std::string TextoNumero(double valor);
/// Default text of a Single: 7 significant digits.
std::string TextoNumero(float valor);
/// Str: point decimal, no leading zero, a blank before non-negative numbers.
std::string Str(double valor);

/// A 16-bit boolean as the runtime holds it: True is -1.
inline int16_t Booleano(bool valor) {
    return valor ? -1 : 0;
}

}  // namespace kelvora
