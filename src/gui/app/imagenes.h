#pragma once

#include <QPixmap>

namespace kelvora {

/// Registers the pictures of the program; the windows that show them call it first.
void CargarImagenes();

/// The picture of the splash and the about window, drawn at the given side in pixels.
QPixmap Logotipo(int lado);
/// The tile of the frame's background.
QPixmap Fondo();

}  // namespace kelvora
