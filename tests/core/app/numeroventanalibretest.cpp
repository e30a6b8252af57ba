#include "core/app/numeroventanalibre.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(NumeroVentanaLibre, ElMenorNumeroSinUso) {
    struct Caso {
        std::vector<std::string> captions;
        int16_t numero;
    };
    // "Res [" is the new window's own caption; it counts as 0.
    // clang-format off
    const Caso casos[] = {
        {{"Res ["},                                          1},
        {{"Res [1]", "Res ["},                               2},
        {{"Res [2]", "Res ["},                               1},
        {{"Res [1]", "Res [3]", "Res [2]", "Res ["},         4},
        {{"Res [1]", "Res [3]", "Res ["},                    2},
        {{"RES [1]", "res [2]", "Res ["},                    3},
        {{"Otra [1]", "Res 1", "Res [1", "Res ["},           2},
        {{"Res [ 2 ]", "Res [1]", "Res ["},                  3},
        // Without the window's own 0 the count starts at the second number in use.
        {{"Res [1]", "Res [2]"},                             1},
        {{},                                                 1},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        EXPECT_EQ(NumeroVentanaLibre("Res [", caso.captions), caso.numero)
                << ::testing::PrintToString(caso.captions);
    }
}

}  // namespace
}  // namespace kelvora
