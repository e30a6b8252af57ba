#pragma once

#include <array>
#include <cstdint>

namespace kelvora {

/// A 32-bit colour as the runtime builds it: red + 256 green + 65536 blue.
using Color = uint32_t;

constexpr Color RGB(int rojo, int verde, int azul) {
    return static_cast<Color>(rojo) | (static_cast<Color>(verde) << 8) |
           (static_cast<Color>(azul) << 16);
}
constexpr int Rojo(Color c) {
    return static_cast<int>(c & 0xFF);
}
constexpr int Verde(Color c) {
    return static_cast<int>((c >> 8) & 0xFF);
}
constexpr int Azul(Color c) {
    return static_cast<int>((c >> 16) & 0xFF);
}

/// The system colours that the grid colours take.
struct ColoresSistema {
    Color caraBoton = RGB(240, 240, 240);
    Color fondoInfo = RGB(255, 255, 225);
    Color fondoVentana = RGB(255, 255, 255);
};

/// Grid colours 1 to 6; index 0 is unused.
using TablaColores = std::array<Color, 7>;

TablaColores LlenarColores(const ColoresSistema& sistema);

}  // namespace kelvora
