#pragma once

#include <vector>

namespace kelvora {

struct Rectangulo {
    int x = 0;
    int y = 0;
    int ancho = 0;
    int alto = 0;
    bool operator==(const Rectangulo&) const = default;
};

/// Horizontal: one window above the other, each of the full width. Vertical: side by side.
enum class Mosaico { Horizontal, Vertical };

/// Places n windows on an area of the given size without overlapping; the pixels that do
/// not divide evenly go to the last window.
std::vector<Rectangulo> CalcularMosaico(int n, int ancho, int alto, Mosaico tipo);

}  // namespace kelvora
