#include "core/units/convertircampo.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using prueba::LocaleTemporal;
using prueba::PrompterGuion;

// Expected texts: the value converted by hand, then rounded to two decimals.
TEST(ConvertirCampo, TextoDelDestinoEnAmbosLocales) {
    struct Caso {
        const char* origen;
        const char* desde;
        const char* hasta;
        const char* punto;
        const char* coma;
    };
    // clang-format off
    const Caso casos[] = {
        {"100",        "°C", "°F",  "212.0",       "212.0"},
        {"2.675",      "m",  "m",   "2.68",        "2.68"},        // half away from zero
        {"0.001",      "m",  "m",   "1.00E-03",    "1.00E-03"},    // 0.0# would read 0
        {"-0.001",     "m",  "m",   "-1.00E-03",   "-1.00E-03"},
        {"0.004",      "m",  "m",   "4.00E-03",    "4.00E-03"},
        {"0.005",      "m",  "m",   "0.01",        "0.01"},
        {"0",          "m",  "cm",  "0.0",         "0.0"},
        {"1.5",        "m",  "cm",  "150.0",       "150.0"},       // the box always has a point
        {"12,5",       "m",  "cm",  "1200.0",      "1200.0"},      // Val stops at the comma
        {"1e-5",       "km", "m",   "0.01",        "0.01"},
        {"123456.789", "m",  "mm",  "123456789.0", "123456789.0"},
        {".5",         "m",  "cm",  "50.0",        ""},            // not numeric with a comma
        {"",           "m",  "cm",  "",            ""},
        {"abc",        "m",  "cm",  "",            ""},
        {"5",          "m",  "kg",  "Error",       "Error"},
        {"10",         "seg","días","Error",       "Error"},
    };
    // clang-format on
    for (const bool coma : {false, true}) {
        LocaleTemporal locale(coma ? LocaleChars::Espanol() : LocaleChars::Punto());
        for (const Caso& c : casos) {
            PrompterGuion prompter;
            EXPECT_EQ(ConvertirCampo(c.origen, c.desde, c.hasta, prompter), coma ? c.coma : c.punto)
                    << c.origen << " " << c.desde << " -> " << c.hasta << (coma ? " (coma)" : "");
        }
    }
}

TEST(ConvertirCampo, ErrorEnCajaCritica) {
    struct Caso {
        const char* origen;
        const char* desde;
        const char* hasta;
        const char* mensaje;
    };
    // clang-format off
    const Caso casos[] = {
        {"5",   "m",   "kg",   "Error de Conversión de Unidades: No se puede convertir 5 m a kg"},
        {"2.5", "$",   "€",    "Error de Conversión de Unidades: No se puede convertir 2,5 $ a €"},
        {"10",  "seg", "días", "Error de Conversión de Unidades: Desbordamiento"},
    };
    // clang-format on
    LocaleTemporal locale(LocaleChars::Espanol());
    for (const Caso& c : casos) {
        PrompterGuion prompter;
        ConvertirCampo(c.origen, c.desde, c.hasta, prompter);
        ASSERT_EQ(prompter.mensajes.size(), 1u) << c.origen;
        EXPECT_EQ(prompter.mensajes[0].texto, c.mensaje);
        EXPECT_EQ(prompter.mensajes[0].icono, Icono::Critico);
        EXPECT_EQ(prompter.mensajes[0].botones, Botones::Aceptar);
        EXPECT_EQ(prompter.mensajes[0].titulo, "Kelvora");
    }
    PrompterGuion callado;
    ConvertirCampo("", "m", "kg", callado);
    EXPECT_TRUE(callado.mensajes.empty());
}

}  // namespace
}  // namespace kelvora
