#include "core/units/unidades.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using Lista = std::vector<std::string>;

TEST(Catalogo, ExistUnitConSusDosListas) {
    struct Caso {
        const char* unidad;
        const char* familia;
        bool existe;
    };
    // clang-format off
    const Caso casos[] = {
        {"ac",    "",                 true},   {"acre",  "",         false},
        {"acre",  "Area",             true},   {"ac",    "Area",     false},
        {"pie",   "",                 true},   {"pies",  "",         false},
        {"pie",   "Longitud",         false},  {"pies",  "Longitud", true},
        {"PIES",  "longitud",         true},   {"km",    "Longitud", true},
        {"m3",    "Volumen",          true},   {"M³",    "VOLUMEN",  true},
        {"pie2",  "",                 true},   {"m3/h",  "Caudal",   true},
        {"DÍAS",  "",                 true},   {"días",  "TIEMPO",   true},
        {"$",     "",                 true},   {"€",     "Moneda",   true},
        {"kJ",    "ENERGÍA",          true},   {"kJ",    "Energia",  false},
        {"m",     "Peso",             false},  {"m",     "Personalizar...", false},
        {"zzz",   "",                 false},  {"",      "",         false},
    };
    // clang-format on
    const classUnidades unidades;
    for (const Caso& c : casos) {
        EXPECT_EQ(unidades.ExistUnit(c.unidad, c.familia), c.existe)
                << c.unidad << " en '" << c.familia << "'";
    }
}

TEST(Catalogo, FamiliasDelConvertidor) {
    EXPECT_EQ(
            classUnidades().getTypeUnits(),
            (Lista{"Area", "Caudal", "Energía", "Fuerza", "Longitud", "Peso", "Potencia", "Presión",
                   "Temperatura", "Tiempo", "Velocidad", "Volumen", "Personalizar..."}));
}

TEST(Catalogo, UnidadesDeUnaFamiliaEnSuOrden) {
    struct Caso {
        const char* familia;
        Lista unidades;
    };
    // clang-format off
    const Caso casos[] = {
        {"Longitud",        {"mm", "cm", "m", "km", "pie", "plg", "mi", "yd"}},
        {"area",            {"cm²", "m²", "pulg²", "pie²", "ha", "acre"}},
        {"Temperatura",     {"°R", "°F", "°C", "K"}},
        {"CAUDAL",          {"m³/h", "pie³/h"}},
        {"Moneda",          {"$", "US$", "€"}},
        {"Personalizar...", {}},
        {"",                {}},
    };
    // clang-format on
    for (const Caso& c : casos) {
        EXPECT_EQ(classUnidades().getUnits(c.familia), c.unidades) << c.familia;
    }
}

TEST(Catalogo, LugarYNombreDeUnaUnidad) {
    struct Caso {
        const char* unidad;
        int16_t lugar;
        const char* nombre;
    };
    // clang-format off
    const Caso casos[] = {
        {"mm",     1, "Milímetros"},
        {"km",     4, "Kilometros"},
        {"m3",     4, "Metros cúbicos"},
        {"m³",     4, "Metros cúbicos"},
        {"pie2",   4, "Pies cuadrados"},
        {"PIE²",   4, "Pies cuadrados"},
        {"acre",   6, "Acres"},
        {"pie3/h", 2, "Pies cúbicos por hora"},
        {"°C",     3, "Grados Centígrados ó Celsius"},
        {"DÍAS",   4, "Días"},
        {"psi",    1, "Libra-Fuerza por pulgada cuadrada (Pounds per Square Inch)"},
        {"€",      3, "Euros"},
        {"ac",     0, ""},
        {"pies",   0, ""},
        {"",       0, ""},
    };
    // clang-format on
    const classUnidades unidades;
    for (const Caso& c : casos) {
        EXPECT_EQ(unidades.getIndexUnit(c.unidad), c.lugar) << c.unidad;
        EXPECT_EQ(unidades.getNameUnit(c.unidad), c.nombre) << c.unidad;
    }
}

TEST(Catalogo, MonedaPorSuNombre) {
    // clang-format off
    const char* const casos[][2] = {
        {"Pesos", "$"}, {"DOLARES", "US$"}, {"euros", "€"}, {"Euro", ""}, {"Metros", ""},
    };
    // clang-format on
    for (const auto& c : casos) {
        EXPECT_EQ(classUnidades().getUnitCurrency(c[0]), c[1]) << c[0];
    }
}

}  // namespace
}  // namespace kelvora
