#include "core/materials/formularioconsulta.h"
#include "core/materials/teclanumerica.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

struct CasoSentencia {
    int tipo;
    int relacion;
    const char* valor1;
    const char* valor2;
    const char* palabras;
    const char* esperada;
};

// Statements as the form builds them, blanks included; numbers carry a point in both locales.
TEST(FormularioConsulta, SentenciaConstruidaTalCual) {
    // clang-format off
    const CasoSentencia casos[] = {
        {0, 0, "5",    "",   "", "SELECT * FROM Emisividad WHERE Codigo  = 5 ORDER BY Codigo ASC"},
        {0, 1, "5",    "",   "", "SELECT * FROM Emisividad WHERE Codigo  <> 5 ORDER BY Codigo ASC"},
        {2, 2, "100.5", "",  "", "SELECT * FROM Emisividad WHERE Temperatura  > 100.5 ORDER BY Codigo ASC"},
        {3, 3, "0.5",  "",   "", "SELECT * FROM Emisividad WHERE Emisividad  >= 0.5 ORDER BY Codigo ASC"},
        {3, 4, "0.",   "",   "", "SELECT * FROM Emisividad WHERE Emisividad  < 0 ORDER BY Codigo ASC"},
        {2, 5, "1e2",  "",   "", "SELECT * FROM Emisividad WHERE Temperatura  <= 100 ORDER BY Codigo ASC"},
        {2, 6, "10",   "20", "", "SELECT * FROM Emisividad WHERE Temperatura  BETWEEN 10 AND 20 ORDER BY Codigo ASC"},
        {2, 6, "20",   "10", "", "SELECT * FROM Emisividad WHERE Temperatura  BETWEEN 10 AND 20 ORDER BY Codigo ASC"},
        {1, 0, "", "", " acero oxidado ",
         "SELECT * FROM Emisividad WHERE UCASE(Descripcion)  LIKE '%ACERO%' AND UCASE(Descripcion) LIKE '%OXIDADO%'  ORDER BY Codigo ASC"},
        {1, 0, "", "", "a  b",
         "SELECT * FROM Emisividad WHERE UCASE(Descripcion)  LIKE '%A%' AND UCASE(Descripcion) LIKE '%%' AND UCASE(Descripcion) LIKE '%B%'  ORDER BY Codigo ASC"},
        {1, 1, "", "", "lona (tela)",
         "SELECT * FROM Emisividad WHERE UCASE(Descripcion)  = 'LONA (TELA)' ORDER BY Codigo ASC"},
        {1, 1, "", "", "  ",
         "SELECT * FROM Emisividad WHERE UCASE(Descripcion)  = '%' ORDER BY Codigo ASC"},
        {1, 2, "", "", "pvc lámina",
         "SELECT * FROM Emisividad WHERE UCASE(Descripcion)  LIKE '%PVC%' OR UCASE(Descripcion) LIKE '%LÁMINA%'  ORDER BY Codigo ASC"},
        {1, 3, "", "", "acero",
         "SELECT * FROM Emisividad WHERE UCASE(Descripcion)  NOT LIKE '%ACERO%'  ORDER BY Codigo ASC"},
        {1, 0, "", "", "o'brien",
         "SELECT * FROM Emisividad WHERE UCASE(Descripcion)  LIKE '%O'BRIEN%'  ORDER BY Codigo ASC"},
    };
    // clang-format on
    for (const LocaleChars& locale : {LocaleChars::Punto(), LocaleChars::Espanol()}) {
        prueba::LocaleTemporal temporal(locale);
        for (const CasoSentencia& caso : casos) {
            FormularioConsulta formulario;
            formulario.cboTipoConsulta_Click(caso.tipo);
            formulario.cboRelacion_Click(caso.relacion);
            formulario.SetTexto(1, caso.valor1);
            formulario.SetTexto(2, caso.valor2);
            formulario.SetTexto(3, caso.palabras);
            EXPECT_EQ(formulario.ConstruirSentencia(), caso.esperada)
                    << "decimal " << locale.decimal;
        }
    }
}

TEST(FormularioConsulta, RangoAlRevesSeIntercambiaEnLasCajas) {
    FormularioConsulta formulario;
    formulario.cboRelacion_Click(FormularioConsulta::kRelacionRango);
    formulario.SetTexto(1, "20");
    formulario.SetTexto(2, "10");
    formulario.ConstruirSentencia();
    EXPECT_EQ(formulario.Texto(1), "10");
    EXPECT_EQ(formulario.Texto(2), "20");
}

TEST(FormularioConsulta, ListasCajasVisiblesYHabilitacion) {
    struct Caso {
        int tipo;
        int relacion;
        const char* valor1;
        const char* valor2;
        const char* palabras;
        const char* visibles;
        bool habilitado;
    };
    // clang-format off
    const Caso casos[] = {
        {0, 0, "",    "",    "",      "1",  false},
        {0, 0, "12",  "abc", "",      "1",  true},
        {0, 0, "1x",  "",    "",      "1",  false},
        {2, 6, "10",  "",    "",      "12", false},
        {2, 6, "10",  "20",  "",      "12", true},
        {1, 0, "",    "",    "   ",   "3",  false},
        {1, 3, "abc", "",    " pvc ", "3",  true},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        FormularioConsulta formulario;
        formulario.cboTipoConsulta_Click(caso.tipo);
        formulario.cboRelacion_Click(caso.relacion);
        formulario.SetTexto(1, caso.valor1);
        formulario.SetTexto(2, caso.valor2);
        formulario.SetTexto(3, caso.palabras);
        std::string visibles;
        for (int i = 1; i <= 3; ++i) {
            visibles += formulario.Visible(i) ? std::to_string(i) : "";
        }
        EXPECT_EQ(visibles, caso.visibles) << caso.tipo << "/" << caso.relacion;
        EXPECT_EQ(formulario.lblAVisible(), formulario.Visible(2));
        EXPECT_EQ(formulario.ConsultarHabilitado(), caso.habilitado)
                << caso.tipo << "/" << caso.relacion;
    }
    FormularioConsulta formulario;
    formulario.cboRelacion_Click(FormularioConsulta::kRelacionRango);
    formulario.cboTipoConsulta_Click(1);
    EXPECT_EQ(formulario.Relacion(), 0) << "loading a list selects its first item";
    EXPECT_EQ(formulario.Relaciones().size(), 4u);
    EXPECT_EQ(formulario.Relaciones()[1], "La frase exacta");
}

TEST(TeclaNumerica, FiltroDeLasCajasDeNumeros) {
    struct Caso {
        const char* texto;
        int caret;
        int seleccion;
        int tecla;
        bool menos;
        const char* despues;
        int caretDespues;
        bool tab;
    };
    // clang-format off
    const Caso casos[] = {
        {"12",   2, 0, '3',  false, "123",   3, false},
        {"",     0, 0, '.',  false, "0.",    2, false},
        {"",     0, 0, ',',  false, "0.",    2, false},
        {"1",    1, 0, ',',  false, "1.",    2, false},
        {"1.5",  3, 0, '.',  false, "1.5",   3, false},
        {"-",    1, 0, '.',  true,  "-0.",   3, false},
        {"12",   0, 0, '-',  true,  "-12",   1, false},
        {"12",   0, 0, '-',  false, "12",    0, false},
        {"12",   1, 0, '-',  true,  "12",    1, false},
        {"-12",  0, 0, '-',  true,  "-12",   0, false},
        {"12",   2, 0, 'a',  true,  "12",    2, false},
        {"123",  1, 1, '9',  false, "193",   2, false},
        {"123",  2, 0, 8,    false, "13",    1, false},
        {"123",  0, 3, 8,    false, "",      0, false},
        {"12.5", 4, 0, 13,   false, "12.5",  4, true},
        {"-",    1, 0, 13,   true,  "-",     1, false},
        {"12",   2, 0, 22,   false, "12",    2, false},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        const ResultadoTeclaNumerica r = FiltrarTeclaNumerica(
                caso.texto, caso.caret, caso.seleccion, caso.tecla, caso.menos);
        EXPECT_EQ(r.texto, caso.despues) << caso.texto << " + " << caso.tecla;
        EXPECT_EQ(r.caret, caso.caretDespues) << caso.texto << " + " << caso.tecla;
        EXPECT_EQ(r.tab, caso.tab) << caso.texto << " + " << caso.tecla;
    }
}

}  // namespace
}  // namespace kelvora
