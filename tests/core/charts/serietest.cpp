#include "core/charts/serie.h"
#include "core/runtime/runtimeerror.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(UltimoPunto, ParteEnteraMasUno) {
    struct Caso {
        double TI;
        double TA;
        int32_t N;
    };
    // clang-format off
    const Caso casos[] = {
        {400.5, 100,  301},
        {100,   100,  1},
        {100.5, 100,  1},
        {1500,  100,  1401},
        {99.5,  100,  0},
        {99,    100,  0},
        {98.5,  100, -1},
    };
    // clang-format on
    for (const Caso& c : casos) {
        EXPECT_EQ(UltimoPunto(c.TI, c.TA), c.N) << c.TI << " " << c.TA;
    }
    EXPECT_THROW(UltimoPunto(1e12, 0), RuntimeError);
}

// A made-up series: thickness falls in runs as TS rises, and reaches 0 before the last point.
SerieGrafica Sintetica() {
    return {{3, 5, 5, 4, 4, 4, 2, 0, 0}, {140, 100, 102, 104, 106, 150, 110, 120, 121}, 8};
}

TEST(CalcularEjes, ExtremosYMargenes) {
    struct Caso {
        SerieGrafica serie;
        EjesGrafica ejes;
    };
    // Xhigh is X at floor(N − 0.98 N): floor(0.16) = 0 for N = 8, floor(6.02) = 6 for N = 301.
    SerieGrafica larga{std::vector<double>(302, 0.0), std::vector<double>(302, 1.0), 301};
    larga.X[6] = 7.5;
    larga.X[301] = 0.5;
    larga.Y[3] = 9;
    SerieGrafica ceros{{0, 0, 0}, {10, 20, 30}, 2};
    // clang-format off
    const Caso casos[] = {
        {Sintetica(), {0,   3,   100, 150, 0.3,  5.0}},
        {larga,       {0.5, 7.5, 1,   9,   0.7,  0.8}},
        {ceros,       {0,   1.0, 10,  30,  0.1,  2.0}},   // Xhigh 0 becomes 1
    };
    // clang-format on
    for (const Caso& c : casos) {
        const EjesGrafica e = CalcularEjes(c.serie);
        EXPECT_DOUBLE_EQ(e.Xlow, c.ejes.Xlow);
        EXPECT_DOUBLE_EQ(e.Xhigh, c.ejes.Xhigh);
        EXPECT_DOUBLE_EQ(e.Ylow, c.ejes.Ylow);
        EXPECT_DOUBLE_EQ(e.Yhigh, c.ejes.Yhigh);
        EXPECT_NEAR(e.mX, c.ejes.mX, 1e-12);
        EXPECT_NEAR(e.mY, c.ejes.mY, 1e-12);
    }
}

TEST(TablaSerie, CorridasConMediaYFin) {
    struct Caso {
        int16_t tipo;
        std::vector<double> y;
        std::vector<double> x;
    };
    // Runs from point 1: X 5 (100, 102), X 4 (104, 106, 150), X 2 (110), X 0 (120, 121).
    // The temperature chart stops after the run that holds X = 0; the heat chart after the run
    // that holds the greatest value, 150.
    // clang-format off
    const Caso casos[] = {
        {1, {101, 120, 110, 120.5}, {5, 4, 2, 0}},
        {2, {101, 120},             {5, 4}},
    };
    // clang-format on
    const SerieGrafica serie = Sintetica();
    const EjesGrafica ejes = CalcularEjes(serie);
    for (const Caso& c : casos) {
        const std::vector<FilaTablaGrafica> filas = TablaSerie(serie, ejes, c.tipo);
        ASSERT_EQ(filas.size(), c.x.size()) << c.tipo;
        for (size_t i = 0; i < filas.size(); ++i) {
            EXPECT_DOUBLE_EQ(filas[i].y, c.y[i]);
            EXPECT_DOUBLE_EQ(filas[i].x, c.x[i]);
        }
    }
}

}  // namespace
}  // namespace kelvora
