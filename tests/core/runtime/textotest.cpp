#include "core/runtime/codificacion.h"
#include "core/runtime/texto.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(Texto, MayusculasYComparacion) {
    EXPECT_EQ(UCase("señal"), "SEÑAL");
    EXPECT_EQ(UCase("cañería °²³ 12"), "CAÑERÍA °²³ 12");
    EXPECT_EQ(LCase("ÁRBOL Ñ"), "árbol ñ");
    EXPECT_TRUE(IgualTexto("é", "É"));
    EXPECT_TRUE(IgualTexto("ñ", "Ñ"));
    EXPECT_TRUE(IgualTexto("Ç", "ç"));
    EXPECT_FALSE(IgualTexto("e", "é"));
    EXPECT_FALSE(IgualTexto("n", "ñ"));
    EXPECT_TRUE(IgualTexto("°F", "°f"));
}

TEST(Texto, RecortesYPosiciones) {
    EXPECT_EQ(Trim("  a b \t "), "a b \t");
    EXPECT_EQ(Len("Tamaño"), 6);
    EXPECT_EQ(Mid("Tamaño", 4, 2), "añ");
    EXPECT_EQ(InStr("Cálculo", "lc"), 3);
    EXPECT_EQ(InStr("Cálculo", "LC", true), 3);
    EXPECT_EQ(InStr("abc", "x"), 0);
}

TEST(Texto, NormalizarDecimal) {
    struct Caso {
        const char* entrada;
        const char* resultado;
        const char* variable;
    };
    // clang-format off
    const Caso casos[] = {
        {"1.234,5",   "1.234.5", "1.234.5"},
        {"  12,5  ",  "12.5",    "  12.5  "},
        {" 7.5 ",     "7.5",     " 7.5 "},
        {"1,2,3",     "1.2,3",   "1.2,3"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        std::string variable = c.entrada;
        EXPECT_EQ(NormalizarDecimal(variable), c.resultado);
        EXPECT_EQ(variable, c.variable);
    }
}

TEST(Texto, LimpiarTexto) {
    struct Caso {
        const char* texto;
        const char* quitar;
        const char* resultado;
    };
    // clang-format off
    const Caso casos[] = {
        {"\"C:\\datos\\a.adk\"",     "\"",  "C:\\datos\\a.adk"},
        {"C:\\da\"tos\\a.adk",       "\"",  "C:\\datos\\a.adk"},
        {"   ",                      "\"",  ""},
        {" \r\n\tarchivo\t\r\n ",    "",    "archivo"},
        {"xAbXaB",                   "ab",  "xX"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        EXPECT_EQ(LimpiarTexto(c.texto, c.quitar), c.resultado) << c.texto;
    }
}

TEST(Codificacion, Windows1252IdaYVuelta) {
    const std::string bytes =
            "Tama\xf1o \x80 \xb0"
            "F \x93x\x94";
    const std::string texto = DesdeWindows1252(bytes);
    EXPECT_EQ(texto, "Tamaño € °F “x”");
    EXPECT_EQ(AWindows1252(texto), bytes);
    EXPECT_EQ(AWindows1252("日本"), "??");
    std::string todos;
    for (int b = 0; b < 256; ++b) {
        todos += static_cast<char>(b);
    }
    EXPECT_EQ(AWindows1252(DesdeWindows1252(todos)), todos);
}

}  // namespace
}  // namespace kelvora
