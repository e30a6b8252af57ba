#include "core/charts/dibujografica.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

// The recording surface, with the line widths it is given.
class SurfaceConAnchos : public prueba::SurfaceGrabadora {
public:
    void SetDrawWidth(int ancho) override {
        llamadas.push_back({"DrawWidth", static_cast<double>(ancho), 0, 0, 0, {}});
    }
};

using Llamada = prueba::SurfaceGrabadora::Llamada;

// X 4, 4, 3, 2, 1, 0, 0 against TS 110, 100 ... 105. Axes: Xlow 0, Xhigh 4, Ylow 100,
// Yhigh 110, mX 0.4, mY 1. Scale: X from −0.4 over 4.8, Y from 111 over −12; on a picture of
// 240 × 120 mm that is 50 mm per plg and 10 mm per °F: x mm = (x + 0.4) · 50,
// y mm = (111 − y) · 10. A character is 2 mm wide (0.04 plg) and 4 mm high (−0.4 °F).
TEST(DibujarGrafica, LlamadasEnSuSitio) {
    const SerieGrafica serie{{4, 4, 3, 2, 1, 0, 0}, {110, 100, 101, 102, 103, 104, 105}, 6};
    const EjesGrafica ejes = CalcularEjes(serie);
    const EscalaGrafica escala = EscalaGrafica::De(ejes, 240, 120);
    SurfaceConAnchos s;
    DibujarGrafica(s, escala, serie, ejes, kGraficaTemperatura, {"Titulo", "Espesor", "TS"});
    // Y numbers: step round(10 / 4) = 2 to even; x = 0 − width("110 ") = −0.16 → 12 mm; y =
    // value − 0.2. X numbers: step 1, x = value − 0.02 → value · 50 + 19 mm, y = 100 → 110 mm.
    // Title at 110.75 → 2.5 mm, centred: (240 − 12) / 2; X label at 111 − 12 + 0.6 → 114 mm.
    // clang-format off
    const std::vector<Llamada> esperadas = {
        {"SetFont",   0,   0,    0,   0,   "Courier New"},
        {"DrawWidth", 2,   0,    0,   0,   ""},
        {"Line",      220, 10,   220, 110, ""},   // from point 0, the user's TS
        {"Line",      220, 110,  170, 100, ""},
        {"Line",      170, 100,  120, 90,  ""},
        {"Line",      120, 90,   70,  80,  ""},
        {"Line",      70,  80,   20,  70,  ""},   // point 5 has X = 0: the curve ends
        {"DrawWidth", 1,   0,    0,   0,   ""},
        {"Line",      20,  115,  20,  5,   ""},
        {"Line",      20,  110,  240, 110, ""},
        {"Line",      20,  10,   240, 10,  ""},
        {"Print",     19,  110,  0,   0,   "0"},
        {"Print",     69,  110,  0,   0,   "1"},
        {"Print",     119, 110,  0,   0,   "2"},
        {"Print",     169, 110,  0,   0,   "3"},
        {"Print",     219, 110,  0,   0,   "4"},
        {"Print",     12,  112,  0,   0,   "100"},
        {"Print",     12,  92,   0,   0,   "102"},
        {"Print",     12,  72,   0,   0,   "104"},
        {"Print",     12,  52,   0,   0,   "106"},
        {"Print",     12,  12,   0,   0,   "110"},
        {"Print",     114, 2.5,  0,   0,   "Titulo"},
        {"Print",     113, 114,  0,   0,   "Espesor"},
        {"Print",     12,  5,    0,   0,   "TS"},
    };
    // clang-format on
    ASSERT_EQ(s.llamadas.size(), esperadas.size());
    for (size_t i = 0; i < esperadas.size(); ++i) {
        const Llamada& r = s.llamadas[i];
        const Llamada& e = esperadas[i];
        EXPECT_EQ(r.que, e.que) << i;
        EXPECT_NEAR(r.x, e.x, 1e-9) << i << " " << e.texto;
        EXPECT_NEAR(r.y, e.y, 1e-9) << i << " " << e.texto;
        EXPECT_NEAR(r.x2, e.x2, 1e-9) << i;
        EXPECT_NEAR(r.y2, e.y2, 1e-9) << i;
        EXPECT_EQ(r.texto, e.texto) << i;
    }
}

// In the heat chart the curve ends at the greatest value; an empty series or a flat range draws
// nothing.
TEST(DibujarGrafica, FinPorValorMayorYCasosSinDibujo) {
    struct Caso {
        SerieGrafica serie;
        int16_t tipo;
        size_t lineasCurva;
    };
    // clang-format off
    const Caso casos[] = {
        {{{4, 3, 2, 1, 1}, {5, 6, 9, 7, 8}, 4}, kGraficaCalor,       2},
        {{{4, 3, 2, 1, 1}, {5, 6, 9, 7, 8}, 4}, kGraficaTemperatura, 4},
        {{{}, {}, -1},                          kGraficaCalor,       0},
        {{{4, 3}, {5, 5}, 1},                   kGraficaCalor,       0},
    };
    // clang-format on
    for (const Caso& c : casos) {
        const EjesGrafica ejes = CalcularEjes(c.serie);
        SurfaceConAnchos s;
        DibujarGrafica(s, EscalaGrafica::De(ejes, 100, 100), c.serie, ejes, c.tipo, {});
        size_t lineas = 0;
        for (const Llamada& llamada : s.llamadas) {
            if (llamada.que == "DrawWidth" && llamada.x == 1) {
                break;
            }
            lineas += llamada.que == "Line" ? 1 : 0;
        }
        EXPECT_EQ(lineas, c.lineasCurva);
        if (c.lineasCurva == 0) {
            EXPECT_TRUE(s.llamadas.empty());
        }
    }
}

TEST(EscalaGrafica, IdaYVuelta) {
    const EscalaGrafica e = EscalaGrafica::De({0, 4, 100, 110, 0.4, 1}, 240, 120);
    EXPECT_DOUBLE_EQ(e.XGrafica(e.XSuperficie(2.5)), 2.5);
    EXPECT_DOUBLE_EQ(e.YGrafica(e.YSuperficie(104)), 104);
    EXPECT_DOUBLE_EQ(e.XGrafica(0), -0.4);
    EXPECT_DOUBLE_EQ(e.YGrafica(120), 99);
}

}  // namespace
}  // namespace kelvora
