#include "core/app/estadocomandos.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(EstadoComandos, ClaseDeLaVentanaPorSuTag) {
    struct Caso {
        const char* tag;
        bool guardarEImprimir;
        bool graficar;
    };
    // clang-format off
    const Caso casos[] = {
        {"0",    false, false},
        {"",     false, false},
        {"1",    true,  true},
        {"5",    true,  true},
        {"3",    true,  false},
        {"16",   true,  false},
        {"17",   false, false},
        {"-1",   false, false},
        {"1.5",  false, false},
        {"abc",  false, false},
        {" 12 ", true,  false},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        EXPECT_EQ(PuedeGuardar(caso.tag), caso.guardarEImprimir) << caso.tag;
        EXPECT_EQ(PuedeImprimir(caso.tag), caso.guardarEImprimir) << caso.tag;
        EXPECT_EQ(PuedeGraficar(caso.tag), caso.graficar) << caso.tag;
    }
}

TEST(EstadoComandos, MenusSegunVentanaActivaEImpresora) {
    struct Caso {
        std::optional<std::string> tag;
        const char* impresora;
        bool imprimir;
        bool guardar;
        bool cerrar;
    };
    // clang-format off
    const Caso casos[] = {
        {std::nullopt, "Láser", false, false, false},
        {"0",          "Láser", false, false, true},
        {"9",          "Láser", true,  true,  true},
        {"9",          "",      false, true,  true},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        const EstadoComandos estado = CalcularEstadoComandos(caso.tag, caso.impresora);
        EXPECT_EQ(estado.imprimir, caso.imprimir) << caso.tag.value_or("-") << caso.impresora;
        EXPECT_EQ(estado.guardar, caso.guardar) << caso.tag.value_or("-") << caso.impresora;
        EXPECT_EQ(estado.cerrar, caso.cerrar) << caso.tag.value_or("-") << caso.impresora;
    }
    EXPECT_EQ(TooltipImprimir("Láser"), "Imprimir (Láser)");
}

TEST(EstadoComandos, NombresYTitulosDeVentanas) {
    EXPECT_TRUE(EsVentanaDatosEntrada("frmDatosEntradaSuperficiesPlanas"));
    EXPECT_FALSE(EsVentanaDatosEntrada("frmResultadosSP"));
    EXPECT_FALSE(EsVentanaDatosEntrada("FRMDATOSENTRADA"));
    EXPECT_EQ(TituloListaVentanas(1, "Datos [1]"), "&1 Datos [1]");
    EXPECT_EQ(TituloListaVentanas(12, "A&B"), "&12 A&&B");
}

}  // namespace
}  // namespace kelvora
