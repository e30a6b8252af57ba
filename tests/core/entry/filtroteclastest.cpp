#include "core/entry/filtroteclas.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

constexpr TipoEntrada H = TipoEntrada::SuperficiesPlanas;
constexpr TipoEntrada P = TipoEntrada::SuperficiesCilindricas;
constexpr TipoEntrada F = TipoEntrada::PlanasFrio;
constexpr TipoEntrada T = TipoEntrada::CilindricasFrio;
constexpr int ENTER = kTeclaEnter;
constexpr int BS = kTeclaRetroceso;

TEST(FiltrarTecla, LasCuatroVentanas) {
    struct Caso {
        TipoEntrada ventana;
        int caja;
        int tecla;
        const char* texto;
        int caret;
        const char* unidad;
        int teclaFinal;
        const char* textoFinal;
        int caretFinal;
        int tabs;
    };
    // clang-format off
    const Caso casos[] = {
        // minus: only boxes with a list that takes it, not in K, at the start, once
        {H,  1, '-',   "",      0, "°F",   '-', "-",      1, 0},
        {H,  1, '-',   "5",     0, "°F",   '-', "-5",     1, 0},
        {H,  1, '-',   "",      0, "K",    0,   "",       0, 0},
        {H,  1, '-',   "5",     1, "°F",   0,   "5",      1, 0},
        {H,  1, '-',   "-5",    0, "°F",   0,   "-5",     0, 0},
        {H,  3, '-',   "",      0, "°C",   '-', "-",      1, 0},
        {H,  4, '-',   "",      0, "mi/h", 0,   "",       0, 0},
        {H,  5, '-',   "",      0, "",     0,   "",       0, 0},
        {H,  6, '-',   "",      0, "",     0,   "",       0, 0},
        {H,  7, '-',   "",      0, "",     0,   "",       0, 0},
        {P,  3, '-',   "",      0, "°F",   '-', "-",      1, 0},
        {P,  5, '-',   "",      0, "plg",  0,   "",       0, 0},
        {P,  6, '-',   "",      0, "",     0,   "",       0, 0},
        {F,  3, '-',   "",      0, "°F",   '-', "-",      1, 0},
        {F,  4, '-',   "",      0, "°C",   '-', "-",      1, 0},
        {F,  4, '-',   "",      0, "K",    0,   "",       0, 0},
        {F,  5, '-',   "",      0, "",     0,   "",       0, 0},
        {F,  7, '-',   "",      0, "mi/h", 0,   "",       0, 0},
        {T,  4, '-',   "",      0, "°F",   '-', "-",      1, 0},
        {T,  8, '-',   "",      0, "plg",  0,   "",       0, 0},
        // point and comma: a point, a zero before it, once, never in a code box
        {H,  1, ',',   "12",    2, "°F",   '.', "12.",    3, 0},
        {H,  1, '.',   "",      0, "°F",   '.', "0.",     2, 0},
        {H,  1, ',',   "-",     1, "°F",   '.', "-0.",    3, 0},
        {H,  1, '.',   "1.5",   3, "°F",   0,   "1.5",    3, 0},
        {H,  4, '.',   "5",     0, "mi/h", '.', ".5",     1, 0},
        {H,  5, '.',   "",      0, "",     0,   "0",      1, 0},
        {H,  7, ',',   "3",     1, "",     0,   "3",      1, 0},
        {H,  6, '.',   "",      0, "",     '.', "0",      1, 0},   // read-only: only the zero
        {P,  5, '.',   "2",     1, "plg",  '.', "2.",     2, 0},
        {P,  6, '.',   "",      0, "",     0,   "0",      1, 0},
        {F,  6, ',',   "0",     1, "",     '.', "0.",     2, 0},
        {F,  8, '.',   "",      0, "",     0,   "0",      1, 0},
        {F, 10, '.',   "1",     1, "",     0,   "1",      1, 0},
        {T,  8, '.',   "",      0, "plg",  '.', "0.",     2, 0},
        {T,  9, ',',   "",      0, "",     0,   "0",      1, 0},
        // Enter: one TAB on a number, two from a code box, none on anything else
        {H,  1, ENTER, "12",    2, "°F",   0,   "12",     2, 1},
        {H,  1, ENTER, "-",     1, "°F",   0,   "-",      1, 0},
        {H,  1, ENTER, "",      0, "°F",   0,   "",       0, 0},
        {H,  5, ENTER, "3",     1, "",     0,   "3",      1, 2},
        {H,  6, ENTER, "0.9",   0, "",     0,   "0.9",    0, 1},
        {H,  7, ENTER, "7",     1, "",     0,   "7",      1, 2},
        {P,  5, ENTER, "2",     1, "plg",  0,   "2",      1, 1},
        {P,  6, ENTER, "3",     1, "",     0,   "3",      1, 2},
        {F,  8, ENTER, "3",     1, "",     0,   "3",      1, 2},
        {F, 10, ENTER, "7",     1, "",     0,   "7",      1, 2},
        {T,  8, ENTER, "2",     1, "plg",  0,   "2",      1, 1},
        {T,  9, ENTER, "3",     1, "",     0,   "3",      1, 2},
        // digits, Backspace, letters, length and read-only boxes
        {H,  1, '3',   "12",    1, "°F",   '3', "132",    2, 0},
        {H,  1, BS,    "12",    2, "°F",   BS,  "1",      1, 0},
        {H,  1, BS,    "12",    0, "°F",   BS,  "12",     0, 0},
        {H,  1, 'a',   "12",    2, "°F",   0,   "12",     2, 0},
        {H,  1, 'e',   "1",     1, "°F",   0,   "1",      1, 0},
        {H,  1, ' ',   "1",     1, "°F",   0,   "1",      1, 0},
        {H,  1, '+',   "",      0, "°F",   0,   "",       0, 0},
        {H,  5, '6',   "12345", 5, "",     '6', "12345",  5, 0},
        {H,  1, '1',   "123456789", 9, "°F", '1', "1234567891", 10, 0},
        {H,  1, '2',   "1234567891", 10, "°F", '2', "1234567891", 10, 0},
        {H,  6, '5',   "",      0, "",     '5', "",       0, 0},
        {F, 11, BS,    "0.8",   3, "",     BS,  "0.8",    3, 0},
    };
    // clang-format on
    for (const Caso& c : casos) {
        const ResultadoTecla r = FiltrarTecla(DescripcionVentanaDatos(c.ventana), c.caja, c.tecla,
                                              c.texto, c.caret, c.unidad);
        const std::string donde = std::string(DescripcionVentanaDatos(c.ventana).nombre) +
                                  " caja " + std::to_string(c.caja) + " tecla " +
                                  std::to_string(c.tecla) + " en '" + c.texto + "'";
        EXPECT_EQ(r.KeyAscii, c.teclaFinal) << donde;
        EXPECT_EQ(r.texto, c.textoFinal) << donde;
        EXPECT_EQ(r.caret, c.caretFinal) << donde;
        EXPECT_EQ(r.tabs, c.tabs) << donde;
    }
}

TEST(FiltrarTecla, LaSeleccionSeReemplaza) {
    const DescripcionEntrada& planas = DescripcionVentanaDatos(TipoEntrada::SuperficiesPlanas);
    const ResultadoTecla r = FiltrarTecla(planas, 1, '7', "350", 0, "°F", 3);
    EXPECT_EQ(r.texto, "7");
    EXPECT_EQ(r.caret, 1);
    // A minus over a selection that holds one is refused all the same.
    EXPECT_EQ(FiltrarTecla(planas, 1, '-', "-5", 0, "°F", 2).KeyAscii, 0);
}

}  // namespace
}  // namespace kelvora
