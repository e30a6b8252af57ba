#include "core/app/mosaico.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(Mosaico, RepartoSinHuecosNiSolapes) {
    struct Caso {
        int n;
        Mosaico tipo;
        std::vector<Rectangulo> esperado;
    };
    // 100 x 50 area: 50 / 3 = 16 rows each, the last takes 50 - 32 = 18.
    // clang-format off
    const Caso casos[] = {
        {0, Mosaico::Horizontal, {}},
        {1, Mosaico::Vertical,   {{0, 0, 100, 50}}},
        {3, Mosaico::Horizontal, {{0, 0, 100, 16}, {0, 16, 100, 16}, {0, 32, 100, 18}}},
        {3, Mosaico::Vertical,   {{0, 0, 33, 50},  {33, 0, 33, 50},  {66, 0, 34, 50}}},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        EXPECT_EQ(CalcularMosaico(caso.n, 100, 50, caso.tipo), caso.esperado) << caso.n;
    }
}

}  // namespace
}  // namespace kelvora
