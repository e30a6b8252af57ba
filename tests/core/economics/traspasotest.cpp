#include "core/economics/traspasoresultados.h"
#include "core/thermal/modeloresultados.h"
#include "core/units/unidades.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using prueba::BombaContada;
using prueba::PrompterGuion;

// Every slot holds its own number / 100, so a value read back names the slot it came from:
// slot s is shown in grid row s + 2, formatted "0.0#".
std::vector<double> RanurasNumeradas(int ranuras) {
    std::vector<double> valores;
    for (int s = 1; s <= ranuras; ++s) {
        valores.push_back(s / 100.0);
    }
    return valores;
}

TEST(ValoresParaAnalisis, BloquesPracticosDeCadaOrientacion) {
    struct Caso {
        TipoResultados tipo;
        TipoEconomico destino;
        std::vector<double> QSD;
        std::vector<double> QSA;
        const char* eficiencia;
        double valorEficiencia;
        const char* espesor;
    };
    // Practical blocks 1, 3, 5 start after slots 17, 51, 85; Qt is offset 14, Qdt 15, Ef 16,
    // E 11. Temperatures are shown in °F as they are.
    // clang-format off
    const Caso casos[] = {
        {TipoResultados::SuperficiesPlanas,      TipoEconomico::SuperficiesPlanas,
         {0.32, 0.66, 1.0}, {0.31, 0.65, 0.99}, "E2D", 0.67, "LD"},
        {TipoResultados::SuperficiesCilindricas, TipoEconomico::SuperficiesCilindricas,
         {0.32, 0.66},      {0.31, 0.65},       "ED2", 0.67, "ESPD2"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        const classUnidades unidades;
        PrompterGuion prompter;
        BombaContada bomba;
        ModeloResultados resultados(c.tipo, unidades, prompter, bomba);
        resultados.SetTipoAnalisis(c.tipo == TipoResultados::SuperficiesPlanas ? 3 : 9);
        resultados.Valores().Establecer("TS", 120.5);
        resultados.Valores().Establecer("MaterialSA", std::string("Aluminio"));
        resultados.MostrarResultados(RanurasNumeradas(resultados.Ventana().Ranuras()),
                                     {"°F", "°F", "°F"});
        ASSERT_EQ(AnalisisEconomicoDe(resultados), c.destino);
        const ValoresAnalisis v = ValoresParaAnalisis(resultados);
        EXPECT_EQ(v.TipoAnalisis, resultados.TipoAnalisis());
        EXPECT_EQ(v.QSD, c.QSD);
        EXPECT_EQ(v.QSA, c.QSA);
        EXPECT_DOUBLE_EQ(v.informe.Numero(c.eficiencia), c.valorEficiencia);
        const double espesor = c.tipo == TipoResultados::SuperficiesPlanas ? 0.28 : 0.62;
        EXPECT_DOUBLE_EQ(v.informe.Numero(c.espesor), espesor);
        EXPECT_DOUBLE_EQ(v.informe.Numero("TI"), 0.01);
        EXPECT_EQ(v.informe.Texto("unitTA"), "°F");
        EXPECT_DOUBLE_EQ(v.informe.Numero("TS"), 120.5);
        EXPECT_EQ(v.informe.Texto("MaterialSA"), "Aluminio");
    }
}

TEST(ValoresParaAnalisis, VentanasFriasSinAnalisis) {
    const classUnidades unidades;
    PrompterGuion prompter;
    BombaContada bomba;
    for (const TipoResultados tipo :
         {TipoResultados::SuperficiesPlanasFrio, TipoResultados::SuperficiesCilindricasFrio}) {
        const ModeloResultados resultados(tipo, unidades, prompter, bomba);
        EXPECT_FALSE(AnalisisEconomicoDe(resultados).has_value());
        EXPECT_TRUE(ValoresParaAnalisis(resultados).QSD.empty());
    }
}

}  // namespace
}  // namespace kelvora
