#pragma once

#include <string>
#include <string_view>

namespace kelvora {

/// The runtime's line break, carriage return and line feed, in message and grid texts.
inline constexpr char kSaltoDeLinea[] = "\r\n";

/// Removes blanks (character 32 only) at both ends, as the runtime's Trim does.
std::string Trim(std::string_view texto);
std::string LTrim(std::string_view texto);
std::string RTrim(std::string_view texto);

/// Upper and lower case of UTF-8 text, Spanish accents included ("señal" -> "SEÑAL").
std::string UCase(std::string_view texto);
std::string LCase(std::string_view texto);

/// Text comparison without regard to case; accents are not ignored ("é" = "É", "e" <> "é").
bool IgualTexto(std::string_view a, std::string_view b);

/// Number of characters (code points) of UTF-8 text.
int Len(std::string_view texto);

/// 1-based substring by characters; longitud < 0 takes the rest.
std::string Mid(std::string_view texto, int inicio, int longitud = -1);

/// 1-based position of buscado in texto by characters, without regard to case when sinCaso.
int InStr(std::string_view texto, std::string_view buscado, bool sinCaso = false);

/// Turns the first comma of texto into a point, in place, and returns it trimmed.
std::string NormalizarDecimal(std::string& texto);

/// Trims blanks, then line ends, tabs and blanks at both ends, then removes every quitar.
std::string LimpiarTexto(std::string_view texto, std::string_view quitar);

/// Splits UTF-8 text into its characters; invalid bytes stand as one character each.
std::u32string Caracteres(std::string_view texto);
std::string Utf8(std::u32string_view caracteres);
std::string Utf8(char32_t caracter);

}  // namespace kelvora
