#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/units/unidades.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <set>

namespace kelvora {
namespace {

using prueba::LocaleTemporal;

using Referencia = double (*)(double);

struct Par {
    const char* desde;
    const char* hasta;
    Referencia formula;  // nullptr: the pair fails with overflow
};

double Cuadrado(double base) {
    return std::pow(base, 2);
}

// Every ordered pair written out by hand from the unit tables, operations left to right.
// clang-format off
const Par kPares[] = {
    {"mm",  "cm",  [](double x) { return x / 10; }},
    {"mm",  "m",   [](double x) { return x / 1000; }},
    {"mm",  "km",  [](double x) { return x / 1000 / 1000; }},
    {"mm",  "pie", [](double x) { return x / 304.8; }},
    {"mm",  "plg", [](double x) { return x / 25.4; }},
    {"mm",  "mi",  [](double x) { return x / 1000 * 0.00062137; }},
    {"mm",  "yd",  [](double x) { return x / 1000 / 0.9144; }},
    {"cm",  "mm",  [](double x) { return x * 10; }},
    {"cm",  "m",   [](double x) { return x / 100; }},
    {"cm",  "km",  [](double x) { return x / 100 / 1000; }},
    {"cm",  "pie", [](double x) { return x / 30.48; }},
    {"cm",  "plg", [](double x) { return x / 2.54; }},
    {"cm",  "mi",  [](double x) { return x / 100 * 0.00062137; }},
    {"cm",  "yd",  [](double x) { return x / 100 / 0.9144; }},
    {"m",   "mm",  [](double x) { return x * 1000; }},
    {"m",   "cm",  [](double x) { return x * 100; }},
    {"m",   "km",  [](double x) { return x / 1000; }},
    {"m",   "pie", [](double x) { return x / 0.3048; }},
    {"m",   "plg", [](double x) { return x / 0.0254; }},
    {"m",   "mi",  [](double x) { return x * 0.00062137; }},
    {"m",   "yd",  [](double x) { return x / 0.9144; }},
    {"km",  "mm",  [](double x) { return x * 1000 * 1000; }},
    {"km",  "cm",  [](double x) { return x * 100 * 1000; }},
    {"km",  "m",   [](double x) { return x * 1000; }},
    {"km",  "pie", [](double x) { return x / 0.3048 * 1000; }},
    {"km",  "plg", [](double x) { return x / 0.0254 * 1000; }},
    {"km",  "mi",  [](double x) { return x * 0.62137; }},
    {"km",  "yd",  [](double x) { return x / 0.9144 * 1000; }},
    {"pie", "mm",  [](double x) { return x * 304.8; }},
    {"pie", "cm",  [](double x) { return x * 30.48; }},
    {"pie", "m",   [](double x) { return x * 0.3048; }},
    {"pie", "km",  [](double x) { return x * 0.3048 * 1000; }},
    {"pie", "plg", [](double x) { return x * 12; }},
    {"pie", "mi",  [](double x) { return x * 0.3048 * 0.00062137; }},
    {"pie", "yd",  [](double x) { return x * 0.3048 / 0.9144; }},
    {"plg", "mm",  [](double x) { return x * 25.4; }},
    {"plg", "cm",  [](double x) { return x * 2.54; }},
    {"plg", "m",   [](double x) { return x * 0.0254; }},
    {"plg", "km",  [](double x) { return x * 0.0254 * 1000; }},
    {"plg", "pie", [](double x) { return x / 12; }},
    {"plg", "mi",  [](double x) { return x * 0.0254 * 0.00062137; }},
    {"plg", "yd",  [](double x) { return x * 0.0254 / 0.9144; }},
    {"mi",  "mm",  [](double x) { return x * 1000 / 0.00062137; }},
    {"mi",  "cm",  [](double x) { return x * 100 / 0.00062137; }},
    {"mi",  "m",   [](double x) { return x / 0.00062137; }},
    {"mi",  "km",  [](double x) { return x / 0.62137; }},
    {"mi",  "pie", [](double x) { return x / 0.3048 / 0.00062137; }},
    {"mi",  "plg", [](double x) { return x / 0.0254 / 0.00062137; }},
    {"mi",  "yd",  [](double x) { return x / 0.00062137 / 0.9144; }},
    {"yd",  "mm",  [](double x) { return x * 1000 * 0.9144; }},
    {"yd",  "cm",  [](double x) { return x * 100 * 0.9144; }},
    {"yd",  "m",   [](double x) { return x * 0.9144; }},
    {"yd",  "km",  [](double x) { return x * 0.9144 / 1000; }},
    {"yd",  "pie", [](double x) { return x / 0.3048 * 0.9144; }},
    {"yd",  "plg", [](double x) { return x / 0.0254 * 0.9144; }},
    {"yd",  "mi",  [](double x) { return x * 0.00062137 * 0.9144; }},

    {"BTU", "cal", [](double x) { return x * 251.996; }},
    {"BTU", "kJ",  [](double x) { return x * 1.055056; }},
    {"BTU", "erg", [](double x) { return x * 1055.056 * 10000000; }},
    {"cal", "BTU", [](double x) { return x / 251.996; }},
    {"cal", "kJ",  [](double x) { return x * 0.0041869; }},
    {"cal", "erg", [](double x) { return x * 4.1869 * 10000000; }},
    {"kJ",  "BTU", [](double x) { return x / 1.055056; }},
    {"kJ",  "cal", [](double x) { return x * 1000 / 4.1869; }},
    {"kJ",  "erg", [](double x) { return x * 10000000000; }},
    {"erg", "BTU", [](double x) { return x / 1055.056 / 10000000; }},
    {"erg", "cal", [](double x) { return x / 4.1869 / 10000000; }},
    {"erg", "kJ",  [](double x) { return x / 10000000000; }},

    {"kW",    "BTU/h", [](double x) { return x * 3600 * 1000 / 1055.056; }},
    {"kW",    "hp",    [](double x) { return x / 0.7457; }},
    {"BTU/h", "kW",    [](double x) { return x / 3600 / 1000 * 1055.056; }},
    {"BTU/h", "hp",    [](double x) { return x / 3600 / 1000 * 1055.056 / 0.7457; }},
    {"hp",    "kW",    [](double x) { return x * 0.7457; }},
    {"hp",    "BTU/h", [](double x) { return x * 3600 * 1000 / 1055.056 * 0.7457; }},

    {"psi", "atm", [](double x) { return x / 14.696; }},
    {"psi", "bar", [](double x) { return x * 0.0689473326; }},
    {"psi", "kPa", [](double x) { return x * 6.89473326; }},
    {"atm", "psi", [](double x) { return x * 14.696; }},
    {"atm", "bar", [](double x) { return x * 1.01325; }},
    {"atm", "kPa", [](double x) { return x * 101.325; }},
    {"bar", "psi", [](double x) { return x / 0.0689473326; }},
    {"bar", "atm", [](double x) { return x / 1.01325; }},
    {"bar", "kPa", [](double x) { return x * 100; }},
    {"kPa", "psi", [](double x) { return x / 6.89473326; }},
    {"kPa", "atm", [](double x) { return x / 101.325; }},
    {"kPa", "bar", [](double x) { return x / 100; }},

    {"°R", "°F", [](double x) { return x - 459.67; }},
    {"°R", "°C", [](double x) { return (x - 491.67) * 5 / 9; }},
    {"°R", "K",  [](double x) { return x * 5 / 9; }},
    {"°F", "°R", [](double x) { return x + 459.67; }},
    {"°F", "°C", [](double x) { return (x - 32) * 5 / 9; }},
    {"°F", "K",  [](double x) { return (x + 459.67) * 5 / 9; }},
    {"°C", "°R", [](double x) { return (x + 273.15) * 9 / 5; }},
    {"°C", "°F", [](double x) { return x * 9 / 5 + 32; }},
    {"°C", "K",  [](double x) { return x + 273.15; }},
    {"K",  "°R", [](double x) { return x * 9 / 5; }},
    {"K",  "°F", [](double x) { return x * 9 / 5 - 459.67; }},
    {"K",  "°C", [](double x) { return x - 273.15; }},

    {"L",    "gal",  [](double x) { return x / 3.78541; }},
    {"L",    "pie³", [](double x) { return x / 28.316846592; }},
    {"L",    "m³",   [](double x) { return x * 0.001; }},
    {"gal",  "L",    [](double x) { return x * 3.78541; }},
    {"gal",  "pie³", [](double x) { return x * 3.78541 / 28.3168; }},
    {"gal",  "m³",   [](double x) { return x * 3.78541 * 0.001; }},
    {"pie³", "L",    [](double x) { return x * 28.316846592; }},
    {"pie³", "gal",  [](double x) { return x / 3.78541 * 28.3168; }},
    {"pie³", "m³",   [](double x) { return x * 0.028316846592; }},
    {"m³",   "L",    [](double x) { return x * 1000; }},
    {"m³",   "gal",  [](double x) { return x / 3.78541 * 1000; }},
    {"m³",   "pie³", [](double x) { return x / 0.028316846592; }},

    {"seg",  "min",  [](double x) { return x / 60; }},
    {"seg",  "h",    [](double x) { return x / 3600; }},
    {"seg",  "días", nullptr},
    {"min",  "seg",  [](double x) { return x * 60; }},
    {"min",  "h",    [](double x) { return x / 60; }},
    {"min",  "días", [](double x) { return x / 1440; }},
    {"h",    "seg",  [](double x) { return x * 60 * 60; }},
    {"h",    "min",  [](double x) { return x * 60; }},
    {"h",    "días", [](double x) { return x / 24; }},
    {"días", "seg",  [](double x) { return x * 24 * 60 * 60; }},
    {"días", "min",  [](double x) { return x * 24 * 60; }},
    {"días", "h",    [](double x) { return x * 24; }},

    {"m³/h",   "pie³/h", [](double x) { return x * 35.31466672; }},
    {"pie³/h", "m³/h",   [](double x) { return x / 35.31466672; }},

    {"mi/h", "km/h", [](double x) { return x / 0.62137; }},
    {"mi/h", "yd/h", [](double x) { return x / 0.00062137 / 0.9144; }},
    {"mi/h", "m/s",  [](double x) { return x / 0.00062137 / 3600; }},
    {"km/h", "mi/h", [](double x) { return x * 0.62137; }},
    {"km/h", "yd/h", [](double x) { return x / 0.9144 * 1000; }},
    {"km/h", "m/s",  [](double x) { return x * 1000 / 3600; }},
    {"yd/h", "mi/h", [](double x) { return x * 0.00062137 * 0.9144; }},
    {"yd/h", "km/h", [](double x) { return x * 0.9144 / 1000; }},
    {"yd/h", "m/s",  [](double x) { return x * 0.9144 / 3600; }},
    {"m/s",  "mi/h", [](double x) { return x * 0.00062137 * 3600; }},
    {"m/s",  "km/h", [](double x) { return x / 1000 * 3600; }},
    {"m/s",  "yd/h", [](double x) { return x / 0.9144 * 3600; }},

    {"cm²",   "m²",    [](double x) { return x / Cuadrado(100); }},
    {"cm²",   "pulg²", [](double x) { return x / Cuadrado(2.54); }},
    {"cm²",   "pie²",  [](double x) { return x / Cuadrado(30.48); }},
    {"cm²",   "ha",    [](double x) { return x / Cuadrado(100) / 10000; }},
    {"cm²",   "acre",  [](double x) { return x / Cuadrado(100) / 4046.856; }},
    {"m²",    "cm²",   [](double x) { return Cuadrado(100) * x; }},
    {"m²",    "pulg²", [](double x) { return x / Cuadrado(0.0254); }},
    {"m²",    "pie²",  [](double x) { return x / Cuadrado(0.3048); }},
    {"m²",    "ha",    [](double x) { return x / 10000; }},
    {"m²",    "acre",  [](double x) { return x / 4046.856; }},
    {"pulg²", "cm²",   [](double x) { return Cuadrado(2.54) * x; }},
    {"pulg²", "m²",    [](double x) { return Cuadrado(0.0254) * x; }},
    {"pulg²", "pie²",  [](double x) { return x / Cuadrado(12); }},
    {"pulg²", "ha",    [](double x) { return Cuadrado(0.0254) * x / 10000; }},
    {"pulg²", "acre",  [](double x) { return Cuadrado(0.0254) * x / 4046.856; }},
    {"pie²",  "cm²",   [](double x) { return Cuadrado(30.48) * x; }},
    {"pie²",  "m²",    [](double x) { return Cuadrado(0.3048) * x; }},
    {"pie²",  "pulg²", [](double x) { return Cuadrado(12) * x; }},
    {"pie²",  "ha",    [](double x) { return Cuadrado(0.3048) * x / 10000; }},
    {"pie²",  "acre",  [](double x) { return Cuadrado(0.3048) * x / 4046.856; }},
    {"ha",    "cm²",   [](double x) { return Cuadrado(100) * x * 10000; }},
    {"ha",    "m²",    [](double x) { return x * 10000; }},
    {"ha",    "pulg²", [](double x) { return x / Cuadrado(0.0254) * 10000; }},
    {"ha",    "pie²",  [](double x) { return x / Cuadrado(0.3048) * 10000; }},
    {"ha",    "acre",  [](double x) { return x * 10000 / 4046.856; }},
    {"acre",  "cm²",   [](double x) { return Cuadrado(100) * x * 4046.856; }},
    {"acre",  "m²",    [](double x) { return x * 4046.856; }},
    {"acre",  "pulg²", [](double x) { return x / Cuadrado(0.0254) * 4046.856; }},
    {"acre",  "pie²",  [](double x) { return x / Cuadrado(0.3048) * 4046.856; }},
    {"acre",  "ha",    [](double x) { return x * 10000 / 4046.856; }},

    {"N",    "dina", [](double x) { return x * 100000; }},
    {"N",    "lbf",  [](double x) { return x / 4.4482205; }},
    {"N",    "kgf",  [](double x) { return x / 9.806652; }},
    {"dina", "N",    [](double x) { return x / 100000; }},
    {"dina", "lbf",  [](double x) { return x / 4.4482205 / 100000; }},
    {"dina", "kgf",  [](double x) { return x / 9.806652 / 100000; }},
    {"lbf",  "N",    [](double x) { return x * 4.4482205; }},
    {"lbf",  "dina", [](double x) { return x * 4.4482205 * 100000; }},
    {"lbf",  "kgf",  [](double x) { return x * 4.4482205 / 9.806652; }},
    {"kgf",  "N",    [](double x) { return x * 9.806652; }},
    {"kgf",  "dina", [](double x) { return x * 9.806652 * 100000; }},
    {"kgf",  "lbf",  [](double x) { return x / 4.4482205 * 9.806652; }},

    {"oz",  "g",   [](double x) { return x * 453.5924 / 16; }},
    {"oz",  "kg",  [](double x) { return x * 453.5924 / 16 / 1000; }},
    {"oz",  "lb",  [](double x) { return x / 16; }},
    {"oz",  "ton", [](double x) { return x * 453.5924 / 16 / 1000 / 1016.05; }},
    {"g",   "oz",  [](double x) { return x / 453.5924 * 16; }},
    {"g",   "kg",  [](double x) { return x / 1000; }},
    {"g",   "lb",  [](double x) { return x / 453.5924; }},
    {"g",   "ton", [](double x) { return x / 1000 / 1016.05; }},
    {"kg",  "oz",  [](double x) { return x / 453.5924 * 16 * 1000; }},
    {"kg",  "g",   [](double x) { return x * 1000; }},
    {"kg",  "lb",  [](double x) { return x / 453.5924 * 1000; }},
    {"kg",  "ton", [](double x) { return x / 1016.05; }},
    {"lb",  "oz",  [](double x) { return x * 16; }},
    {"lb",  "g",   [](double x) { return x * 453.5924; }},
    {"lb",  "kg",  [](double x) { return x * 453.5924 / 1000; }},
    {"lb",  "ton", [](double x) { return x / 1016.05 * 453.5924 * 1000; }},
    {"ton", "oz",  [](double x) { return x / 453.5924 * 16 * 1000 * 1016.05; }},
    {"ton", "g",   [](double x) { return x * 1000 * 1016.05; }},
    {"ton", "kg",  [](double x) { return x * 1016.05; }},
    {"ton", "lb",  [](double x) { return x * 1016.05 / 453.5924 / 1000; }},
};

// Ordinary values, a negative one, tiny and huge ones; 1e306 overflows the pairs that
// multiply by a million or more, and -1.7e308 every pair that multiplies.
const double kValores[] = {1, 0, -40, 0.001, 123.456, 6.02e23, 1e-300, 1e306, -1.7e308};
// clang-format on

const Par* BuscarPar(const std::string& desde, const std::string& hasta) {
    for (const Par& par : kPares) {
        if (desde == par.desde && hasta == par.hasta) {
            return &par;
        }
    }
    return nullptr;
}

int NumeroDeError(double valor, const std::string& desde, const std::string& hasta) {
    try {
        classUnidades().Convert(valor, desde, hasta);
    } catch (const RuntimeError& e) {
        return e.number;
    }
    return 0;
}

void ComprobarPar(const Par& par, double x) {
    const classUnidades unidades;
    const double esperado = par.formula != nullptr ? par.formula(x) : HUGE_VAL;
    if (std::isfinite(esperado)) {
        EXPECT_EQ(unidades.Convert(x, par.desde, par.hasta), esperado)
                << x << " " << par.desde << " -> " << par.hasta;
    } else {
        EXPECT_EQ(NumeroDeError(x, par.desde, par.hasta), errores::Desbordamiento)
                << x << " " << par.desde << " -> " << par.hasta;
    }
}

std::vector<std::string> FamiliasConConversion() {
    std::vector<std::string> familias = classUnidades().getTypeUnits();
    familias.pop_back();
    return familias;
}

// Results must equal the written formula to the last bit: same operations, same order.
TEST(Convert, CadaParDeCadaFamiliaSigueSuFormula) {
    const classUnidades unidades;
    std::set<const Par*> recorridos;
    for (const std::string& familia : FamiliasConConversion()) {
        const std::vector<std::string> simbolos = unidades.getUnits(familia);
        ASSERT_FALSE(simbolos.empty()) << familia;
        for (const std::string& desde : simbolos) {
            for (const std::string& hasta : simbolos) {
                if (desde == hasta) {
                    continue;
                }
                const Par* par = BuscarPar(desde, hasta);
                ASSERT_NE(par, nullptr) << desde << " -> " << hasta;
                recorridos.insert(par);
                for (const double x : kValores) {
                    ComprobarPar(*par, x);
                }
            }
        }
    }
    EXPECT_EQ(recorridos.size(), std::size(kPares));
}

// Hand-checked values of the formulas a reader would take for mistakes.
TEST(Convert, RarezasConservadas) {
    struct Caso {
        double valor;
        const char* desde;
        const char* hasta;
        double resultado;
    };
    // clang-format off
    const Caso casos[] = {
        {1,   "pie",  "km",   304.8},                     // 0.3048 * 1000
        {1,   "plg",  "km",   25.4},                      // 0.0254 * 1000
        {1,   "acre", "ha",   10000 / 4046.856},          // same as ha -> acre, 2.4711
        {1,   "lb",   "ton",  453.5924 * 1000 / 1016.05}, // 446.43, factor 1000 reversed
        {100, "°C",   "°F",   212},
        {0,   "K",    "°C",   -273.15},
    };
    // clang-format on
    for (const Caso& c : casos) {
        EXPECT_NEAR(classUnidades().Convert(c.valor, c.desde, c.hasta), c.resultado,
                    1e-12 * std::fabs(c.resultado))
                << c.desde << " -> " << c.hasta;
    }
}

TEST(Convert, SegundaGrafiaComoLaPrimeraPeroNuncaEntreEllas) {
    struct Grafias {
        const char* familia;
        const char* primera;
        const char* segunda;
    };
    // clang-format off
    const Grafias grafias[] = {
        {"Volumen", "pie³",   "pie3"},   {"Volumen", "m³", "m3"},
        {"Caudal",  "m³/h",   "m3/h"},   {"Caudal",  "pie³/h", "PIE3/H"},
        {"Area",    "cm²",    "cm2"},    {"Area",    "m²", "M2"},
        {"Area",    "pulg²",  "pulg2"},  {"Area",    "pie²", "pie2"},
    };
    // clang-format on
    const classUnidades unidades;
    for (const Grafias& g : grafias) {
        for (const std::string& otra : unidades.getUnits(g.familia)) {
            if (otra == g.primera) {
                continue;
            }
            EXPECT_EQ(unidades.Convert(7.5, g.segunda, otra),
                      unidades.Convert(7.5, g.primera, otra))
                    << g.segunda << " -> " << otra;
            EXPECT_EQ(unidades.Convert(7.5, otra, g.segunda),
                      unidades.Convert(7.5, otra, g.primera))
                    << otra << " -> " << g.segunda;
        }
        EXPECT_EQ(NumeroDeError(1, g.primera, g.segunda), errores::SinConversion) << g.segunda;
        EXPECT_EQ(NumeroDeError(1, g.segunda, g.primera), errores::SinConversion) << g.segunda;
    }
}

TEST(Convert, SimbolosSinDistinguirMayusculas) {
    const classUnidades unidades;
    EXPECT_EQ(unidades.Convert(100, "°c", "°f"), 212);
    EXPECT_EQ(unidades.Convert(36, "KM/H", "M/S"), 36.0 * 1000 / 3600);
    EXPECT_EQ(unidades.Convert(2, "DÍAS", "H"), 48);
    EXPECT_EQ(unidades.Convert(3, "Pulg²", "cm2"), std::pow(2.54, 2) * 3);
}

TEST(Convert, SimbolosIgualesDevuelvenElValor) {
    // clang-format off
    const char* const pares[][2] = {
        {"zzz", "zzz"}, {"m", "M"}, {"ac", "AC"}, {"$", "$"}, {"", ""}, {"días", "DÍAS"},
    };
    // clang-format on
    for (const auto& par : pares) {
        EXPECT_EQ(classUnidades().Convert(-5.25, par[0], par[1]), -5.25) << par[0];
    }
}

TEST(Convert, ErroresConNumeroYDescripcion) {
    struct Caso {
        double valor;
        const char* desde;
        const char* hasta;
        int numero;
        const char* punto;
        const char* coma;
    };
    // clang-format off
    const Caso casos[] = {
        {5,     "m",      "kg",     1001, "No se puede convertir 5 m a kg",
                                          "No se puede convertir 5 m a kg"},
        {1.5,   "$",      "US$",    1001, "No se puede convertir 1.5 $ a US$",
                                          "No se puede convertir 1,5 $ a US$"},
        {-0.25, "€",      "$",      1001, "No se puede convertir -0.25 € a $",
                                          "No se puede convertir -0,25 € a $"},
        {2,     "ac",     "ha",     1001, "No se puede convertir 2 ac a ha",
                                          "No se puede convertir 2 ac a ha"},
        {3,     "pies",   "m",      1001, "No se puede convertir 3 pies a m",
                                          "No se puede convertir 3 pies a m"},
        {1e20,  "m³",     "m3",     1001, "No se puede convertir 1E+20 m³ a m3",
                                          "No se puede convertir 1E+20 m³ a m3"},
        {0.1,   "zzz",    "m",      1001, "No se puede convertir 0.1 zzz a m",
                                          "No se puede convertir 0,1 zzz a m"},
        {1,     "seg",    "días",   6,    "Desbordamiento", "Desbordamiento"},
        {0,     "SEG",    "DÍAS",   6,    "Desbordamiento", "Desbordamiento"},
        {1e308, "m",      "mm",     6,    "Desbordamiento", "Desbordamiento"},
    };
    // clang-format on
    for (const bool coma : {false, true}) {
        LocaleTemporal locale(coma ? LocaleChars::Espanol() : LocaleChars::Punto());
        for (const Caso& c : casos) {
            try {
                classUnidades().Convert(c.valor, c.desde, c.hasta);
                ADD_FAILURE() << c.desde << " -> " << c.hasta;
            } catch (const RuntimeError& e) {
                EXPECT_EQ(e.number, c.numero) << c.desde << " -> " << c.hasta;
                EXPECT_EQ(e.description, coma ? c.coma : c.punto);
            }
        }
    }
}

}  // namespace
}  // namespace kelvora
