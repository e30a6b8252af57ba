#pragma once

#include "core/materials/teclanumerica.h"

#include <optional>

class QKeyEvent;
class QLineEdit;

namespace kelvora {

/// The KeyAscii that a key press gives a numeric box's key filter: the character typed, 8 for
/// Backspace, 13 for Enter, and 22 and 24 for paste and cut, which the filter drops. Nothing
/// for the keys the box handles itself: arrows, Delete, Home, End, copy, access keys.
std::optional<int> KeyAsciiDe(const QKeyEvent& tecla);

/// Puts the filter's text and caret into the box.
void MostrarTecla(QLineEdit& caja, const ResultadoTeclaNumerica& resultado);

/// The caret and the selection of a box as the filter counts them.
int CaretDe(const QLineEdit& caja);
int SeleccionDe(const QLineEdit& caja);

}  // namespace kelvora
