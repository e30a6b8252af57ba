#include "core/runtime/aritmetica.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <random>

namespace kelvora {
namespace {

using prueba::LocaleTemporal;

// Expected values from the runtime's reference tables.
TEST(Val, PrefijoNumerico) {
    struct Caso {
        const char* texto;
        double valor;
    };
    // clang-format off
    const Caso casos[] = {
        {"",          0},     {"  12 3",    123},    {"1.234,5",  1.234},  {"12,5",   12},
        {"-",         0},     {"--5",       0},      {"+5",       5},      {".5",     0.5},
        {"1e3",       1000},  {"1e",        1},      {"1e+",      1},      {"1D2",    100},
        {"&H1F",      31},    {"&HFFFF",    -1},     {"&HFFFF&",  65535},  {" 2 45 7", 2457},
        {"- 5",       -5},    {"\t\n7",     7},      {"abc",      0},      {"&Q12",   0},
        {"50%",       50},    {"3!",        3},      {"1.5.3",    1.5},    {"&O17",   15},
    };
    // clang-format on
    for (const Caso& c : casos) {
        EXPECT_DOUBLE_EQ(Val(c.texto), c.valor) << c.texto;
    }
}

// Overflow is judged by the value, digits and exponent together; an underflow reads 0.
TEST(Val, ErroresYLimitesDelDouble) {
    const std::string ceros400(400, '0');
    struct Caso {
        std::string texto;
        int error;
        double valor;
    };
    // clang-format off
    const Caso casos[] = {
        {"15.5%",                          13, 0},
        {"50.5&",                          13, 0},
        {"1e400",                          6,  0},
        {"1" + std::string(309, '0'),      6,  0},
        {"180e306",                        6,  0},
        {"-1" + ceros400 + ".5",           6,  0},
        {"0." + ceros400 + "1e5",          0,  0},
        {"1e-400",                         0,  0},
        {"&H100000000",                    6,  0},
        {"0." + ceros400 + "1e450",        0,  1e49},
        {ceros400 + "1e-3",                0,  1e-3},
        {"17976931348623157" + std::string(292, '0'), 0, 1.7976931348623157e308},
    };
    // clang-format on
    for (const Caso& c : casos) {
        try {
            EXPECT_DOUBLE_EQ(Val(c.texto), c.valor) << c.texto;
            EXPECT_EQ(c.error, 0) << c.texto;
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number, c.error) << c.texto;
        }
    }
}

TEST(IsNumeric, SegunLocale) {
    struct Caso {
        const char* texto;
        bool punto;
        bool coma;
    };
    // clang-format off
    const Caso casos[] = {
        {"",        false, false}, {" ",      false, false}, {"12,5",  true,  true},
        {"1.5",     true,  true},  {"1e5",    true,  true},  {"-",     false, false},
        {".",       false, false}, {"Error",  false, false}, {"0.",    true,  true},
        {".5",      true,  false}, {"$5",     true,  false}, {"5 €",   false, true},
        {"(5)",     true,  true},  {"5-",     true,  true},  {" 12 ",  true,  true},
        {"&H1F",    true,  true},  {"1e",     false, false}, {"- 5",   true,  true},
    };
    // clang-format on
    for (const Caso& c : casos) {
        {
            LocaleTemporal punto(LocaleChars::Punto());
            EXPECT_EQ(IsNumeric(c.texto), c.punto) << c.texto;
        }
        LocaleTemporal coma(LocaleChars::Espanol());
        EXPECT_EQ(IsNumeric(c.texto), c.coma) << c.texto;
    }
}

TEST(CDbl, SegunLocale) {
    LocaleTemporal punto(LocaleChars::Punto());
    EXPECT_DOUBLE_EQ(CDbl("12,5"), 125);
    EXPECT_DOUBLE_EQ(CDbl("(5)"), -5);
    {
        LocaleTemporal coma(LocaleChars::Espanol());
        EXPECT_DOUBLE_EQ(CDbl("12,5"), 12.5);
        EXPECT_DOUBLE_EQ(CDbl("1.234,5"), 1234.5);
        EXPECT_EQ(CInt(std::string_view("3,5")), 4);
    }
    EXPECT_THROW(CDbl("abc"), RuntimeError);
}

TEST(Enteros, RedondeoBancarioYDesbordamiento) {
    struct Caso {
        double valor;
        int esperado;
    };
    // clang-format off
    const Caso casos[] = {
        {0.5, 0}, {1.5, 2}, {2.5, 2}, {-2.5, -2}, {2.5000001, 3}, {-32768.5, -32768},
    };
    // clang-format on
    for (const Caso& c : casos) {
        EXPECT_EQ(CInt(c.valor), c.esperado) << c.valor;
    }
    EXPECT_THROW(CInt(32767.5), RuntimeError);
    EXPECT_THROW(CLng(2147483647.5), RuntimeError);
    EXPECT_EQ(CLng(-2147483648.4), -2147483647 - 1);
    EXPECT_THROW(CSng(1e39), RuntimeError);
    EXPECT_FLOAT_EQ(CSng(0.1), 0.1F);
}

TEST(TextoNumero, FormaPredeterminada) {
    struct Caso {
        double valor;
        const char* punto;
        const char* coma;
    };
    // clang-format off
    const Caso casos[] = {
        {0.5,               "0.5",                   "0,5"},
        {-0.5,              "-0.5",                  "-0,5"},
        {1.0 / 3,           "0.333333333333333",     "0,333333333333333"},
        {1.0 / 15,          "6.66666666666667E-02",  "6,66666666666667E-02"},
        {1.0 / 30,          "3.33333333333333E-02",  "3,33333333333333E-02"},
        {0.00001,           "0.00001",               "0,00001"},
        {1e-16,             "1E-16",                 "1E-16"},
        {123456789012345.0, "123456789012345",       "123456789012345"},
        {1e15,              "1E+15",                 "1E+15"},
        {1234567890123456., "1.23456789012346E+15",  "1,23456789012346E+15"},
        {0.1 + 0.2,         "0.3",                   "0,3"},
        {-0.0,              "0",                     "0"},
        {5.6789e-11,        "0.000000000056789",     "0,000000000056789"},
        {5.6789e-12,        "5.6789E-12",            "5,6789E-12"},
        {1e100,             "1E+100",                "1E+100"},
        {1234.5,            "1234.5",                "1234,5"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        {
            LocaleTemporal punto(LocaleChars::Punto());
            EXPECT_EQ(TextoNumero(c.valor), c.punto);
        }
        LocaleTemporal coma(LocaleChars::Espanol());
        EXPECT_EQ(TextoNumero(c.valor), c.coma);
    }
}

TEST(TextoNumero, SingleYStr) {
    LocaleTemporal punto(LocaleChars::Punto());
    EXPECT_EQ(TextoNumero(CSng(1.0 / 3)), "0.3333333");
    EXPECT_EQ(TextoNumero(CSng(12345678)), "1.234568E+07");
    EXPECT_EQ(TextoNumero(CSng(0.1)), "0.1");
    EXPECT_EQ(TextoNumero(static_cast<double>(CSng(0.1))), "0.100000001490116");
    EXPECT_EQ(Str(0.5), " .5");
    EXPECT_EQ(Str(-0.5), "-.5");
    EXPECT_EQ(Str(1234.5), " 1234.5");
    EXPECT_EQ(Str(0), " 0");
}

TEST(Aritmetica, ErroresDelRuntime) {
    struct Caso {
        double (*operacion)();
        int error;
    };
    // clang-format off
    const Caso casos[] = {
        {[] { return Dividir(1, 0); },          11},
        {[] { return Dividir(0, 0); },          6},
        {[] { return Potencia(-8, 1.0 / 3); },  5},
        {[] { return Potencia(0, -1); },        5},
        {[] { return Log(0); },                 5},
        {[] { return Sqr(-1); },                5},
        {[] { return Exp(710); },               6},
        {[] { return Comprobar(1e308 * 10); },  6},
        {[] { return Val(TextoNumero(HUGE_VAL)); }, 6},
        {[] { return Val(TextoNumero(-HUGE_VAL)); }, 6},
        {[] { return Val(TextoNumero(std::nan(""))); }, 6},
    };
    // clang-format on
    for (const Caso& c : casos) {
        try {
            c.operacion();
            ADD_FAILURE() << "sin error " << c.error;
        } catch (const RuntimeError& e) {
            EXPECT_EQ(e.number, c.error);
            EXPECT_FALSE(e.description.empty());
        }
    }
    EXPECT_DOUBLE_EQ(Potencia(-2, 2), 4);
    EXPECT_EQ(RuntimeError::DelRuntime(6).description, "Desbordamiento");
    EXPECT_EQ(RuntimeError::DelRuntime(11).description, "División por cero");
}

// Any bytes, of any length, go through the parsers without a crash.
TEST(Val, BytesAlAzar) {
    std::mt19937 azar(1234);
    const std::string alfabeto = "0123456789.,+-eEdD&HhOo%!#@$€() \t\r\n\xff\xc3";
    for (int i = 0; i < 20000; ++i) {
        std::string texto(azar() % 40, ' ');
        for (char& c : texto) {
            c = (i % 2 == 0) ? static_cast<char>(azar() % 256) : alfabeto[azar() % alfabeto.size()];
        }
        try {
            Val(texto);
        } catch (const RuntimeError& e) {
            EXPECT_TRUE(e.number == 6 || e.number == 13);
        }
        IsNumeric(texto);
    }
    EXPECT_DOUBLE_EQ(Val(std::string(100000, '9').insert(0, "0.")), 1.0);
}

}  // namespace
}  // namespace kelvora
