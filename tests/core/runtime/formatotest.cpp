#include "core/runtime/formato.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using prueba::LocaleTemporal;

// Expected texts from the runtime's reference tables of Format.
TEST(Format, Numeros) {
    struct Caso {
        double valor;
        const char* patron;
        const char* punto;
        const char* coma;
    };
    // clang-format off
    const Caso casos[] = {
        {12.5,        "0,000.0#",       "0,012.5",      "0.012,5"},
        {1234567.891, "0,000.0#",       "1,234,567.89", "1.234.567,89"},
        {2.675,       "0.0#",           "2.68",         "2,68"},
        {1.005,       "0.0#",           "1.01",         "1,01"},
        {12,          "0.0#",           "12.0",         "12,0"},
        {0.004,       "0.0#",           "0.0",          "0,0"},
        {-0.001,      "0.0#",           "-0.0",         "-0,0"},
        {1.2345,      "0.0##",          "1.235",        "1,235"},
        {1,           "0.0##",          "1.0",          "1,0"},
        {2.5,         "##0",            "3",            "3"},
        {0.4,         "##0",            "0",            "0"},
        {1234.5,      "##0",            "1235",         "1235"},
        {0.05,        "0.0",            "0.1",          "0,1"},
        {-2.25,       "0.0",            "-2.3",         "-2,3"},
        {12345.678,   "Scientific",     "1.23E+04",     "1,23E+04"},
        {0,           "Scientific",     "0.00E+00",     "0,00E+00"},
        {0.000123456, "Scientific",     "1.23E-04",     "1,23E-04"},
        {9.999,       "Scientific",     "1.00E+01",     "1,00E+01"},
        {1234.5,      "General Number", "1234.5",       "1234,5"},
        {5555.5,      "###,###.00",     "5,555.50",     "5.555,50"},
        {0.17,        "#.00",           ".17",          ",17"},
        {0.075,       "$#.##",          "$.08",         "$,08"},
        {999.996,     "0.0#",           "1000.0",       "1000,0"},
        {-1234.5,     "0,000.0#",       "-1,234.5",     "-1.234,5"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        {
            LocaleTemporal punto(LocaleChars::Punto());
            EXPECT_EQ(Format(c.valor, c.patron), c.punto) << c.valor << " " << c.patron;
        }
        LocaleTemporal coma(LocaleChars::Espanol());
        EXPECT_EQ(Format(c.valor, c.patron), c.coma) << c.valor << " " << c.patron;
    }
}

TEST(Format, Fechas) {
    LocaleTemporal coma(LocaleChars::Espanol());
    const Fecha fecha{2024, 3, 5};
    EXPECT_EQ(Format(fecha, "dd/mm/yyyy"), "05/03/2024");
    EXPECT_EQ(Format(fecha, "d/m/yy"), "5/3/24");
    EXPECT_EQ(Format(fecha, "dddd"), "martes");
    EXPECT_EQ(Format(fecha, "mmmm"), "marzo");
    EXPECT_EQ(Format(fecha, "Long Date"), "martes, 5 de marzo de 2024");
    EXPECT_EQ(Format(Fecha{2026, 11, 22}, "Long Date"), "domingo, 22 de noviembre de 2026");
}

}  // namespace
}  // namespace kelvora
