#pragma once

#include <string>

namespace kelvora {

inline constexpr int kAsciiRetroceso = 8;
inline constexpr int kAsciiEnter = 13;

/// What a key typed into a numeric box of the material windows leaves behind.
struct ResultadoTeclaNumerica {
    /// The box's text and caret after the key.
    std::string texto;
    int caret = 0;
    /// Enter on a numeric text: one {TAB} to send.
    bool tab = false;
};

/// The key filter of the numeric boxes: digits pass; a comma becomes a point; a point in an
/// empty box gets a "0" in front, in a box holding only "-" a "0" after the sign; a second
/// point is refused; "-" passes only with `aceptaMenos`, once and at the start; Backspace
/// deletes; every other key is dropped. Caret and selection count characters.
ResultadoTeclaNumerica FiltrarTeclaNumerica(const std::string& texto, int caret, int seleccion,
                                            int KeyAscii, bool aceptaMenos);

}  // namespace kelvora
