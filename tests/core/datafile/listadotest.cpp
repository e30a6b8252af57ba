#include "core/datafile/alineartexto.h"
#include "core/datafile/listadogrilla.h"
#include "core/reports/medircolumnas.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <limits>

namespace kelvora {
namespace {

TEST(AlinearTexto, RellenoCorteYAlineacion) {
    const float nan = std::numeric_limits<float>::quiet_NaN();
    // clang-format off
    const struct {
        const char* texto;
        float ancho;
        int32_t alineacion;
        bool cortar;
        const char* esperado;
    } casos[] = {
        {"abc",           6,    2,  true,  "abc   "},
        {"abc",           6,    0,  true,  "   abc"},
        {"abc",           6,    -3, true,  "abc   "},
        {"abc",           7,    1,  true,  "  abc  "},   // fill 4: 2 each side
        {"abc",           6,    1,  true,  "  abc  "},   // fill 3: 1.5 rounds to 2, longer than 6
        {"abc",           4,    1,  true,  "abc "},      // fill 1: 0.5 rounds to 0, rest on the right
        {"abc",           5,    7,  true,  "abc  "},     // unknown alignment: padded on the right
        {"abcdef",        4,    2,  true,  "abcd"},
        {"abcdef",        4,    2,  false, "abcdef"},
        {"  ñandú  ",     6.4f, 0,  true,  " ñandú"},    // counts characters, width rounds
        {"Temp.\r\nint.", 12,   2,  true,  "Temp. int.  "},
        {"a\nb\rc",       5,    2,  true,  "a b c"},
        {"abc",           2.5f, 2,  true,  "ab"},        // 2.5 rounds half to even
        {"abc",           0,    2,  true,  ""},
        {" abc ",         -1,   2,  true,  "abc"},       // negative width cuts: error, trimmed input
        {" abc ",         nan,  2,  true,  "abc"},
    };
    // clang-format on
    for (const auto& caso : casos) {
        SCOPED_TRACE(std::string(caso.texto) + " " + std::to_string(caso.ancho));
        EXPECT_EQ(AlinearTexto(caso.texto, caso.ancho, caso.alineacion, caso.cortar),
                  caso.esperado);
    }
}

// A technical-report-like grid: a heading, a long-text row and a plain row.
Grilla GrillaInforme() {
    Grilla g;
    g.SetRows(4);
    g.SetCols(3);
    const char* celdas[4][3] = {{"DATOS", "DATOS", "DATOS"},
                                {"Cliente:", "ACME", "ACME"},
                                {"Temperatura", "350.0", "RECOMENDADO"},
                                {"Viento", "5,5", "x"}};
    for (int f = 0; f < 4; ++f) {
        for (int c = 0; c < 3; ++c) {
            g.SetTextMatrix(f, c, celdas[f][c]);
        }
    }
    g.SetMergeRow(0, true);
    g.SetRowData(1, 2);
    g.SetColData(1, 1);
    g.Tag = ".;Vendedor S.A.;Compañía Cliente de Nombre Largo;";
    g.Caption = "Informe Técnico [planta.adk]";
    return g;
}

TEST(MedirColumnas, TitulosYTextosLargosNoEnsanchan) {
    Grilla g = GrillaInforme();
    g.SetRowData(3, -1);  // bold label: its product with ColData is not 0 either
    const MedidaTexto caracteres = [](const std::string& t) { return 1.0 * Len(t); };
    // Column 0: "Temperatura" 11 + 2; column 1: "350.0" 5 + 2 (the long text and the bold row
    // are not measured); column 2: "RECOMENDADO" 11 + 2.
    EXPECT_EQ(MedirColumnas(caracteres, g, 2), (std::vector<double>{13, 7, 13}));

    g.SetColWidth(2, 0);
    prueba::SurfaceGrabadora superficie;  // 2 mm per character
    EXPECT_EQ(MedirColumnas(superficie, g, 3), (std::vector<double>{28, 16, 0}));
}

TEST(ListadoGrilla, TitulosTextosLargosYSaltos) {
    const Grilla g = GrillaInforme();
    // Widths: 13, 7 and 13 characters.
    // clang-format off
    const struct {
        int tag;
        std::string esperado;
    } casos[] = {
        {2,  "\r\n\r\nDATOS        \r\n\r\n"
             "Cliente:     ACME   ACME         \r\n"
             "Temperatura  350.0  RECOMENDADO  \r\n"
             "Viento       5,5    x            \r\n"},
        {4,  "\r\nDATOS        \r\n\r\n"
             "Cliente:     Compañía Cliente de Nombre LargoACME         \r\n"
             "Temperatura  350.0  RECOMENDADO  \r\n"
             "Viento       5,5    x            \r\n"},
        {16, "INFORME TÉCNICO\r\n"
             "\r\nDATOS        \r\n\r\n"
             "Cliente:     Compañía Cliente de Nombre LargoACME         \r\n"
             "Temperatura  350.0  RECOMENDADO  \r\n"
             "Viento       5,5    x            \r\n"},
    };
    // clang-format on
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.tag);
        EXPECT_EQ(ListadoGrilla(g, caso.tag), caso.esperado);
    }
}

TEST(ListadoGrilla, TituloLargoNoSeCortaYTextoLargoAusenteEsError) {
    Grilla g;
    g.SetRows(2);
    g.SetCols(2);
    g.SetTextMatrix(0, 0, "UN TITULO MAS ANCHO QUE LA COLUMNA");
    g.SetMergeRow(0, true);
    g.SetTextMatrix(1, 0, "a");
    g.SetTextMatrix(1, 1, "b");
    EXPECT_EQ(ListadoGrilla(g, 8), "\r\nUN TITULO MAS ANCHO QUE LA COLUMNA\r\n\r\na  b  \r\n");

    g.SetRowData(1, 3);
    g.SetColData(1, 1);
    g.Tag = ".;uno;";
    EXPECT_THROW(ListadoGrilla(g, 8), RuntimeError);
    // The long-text cell is not measured: its column is two blanks wide.
    EXPECT_EQ(ListadoGrilla(g, 6), "\r\n\r\nUN TITULO MAS ANCHO QUE LA COLUMNA\r\n\r\na  b \r\n");
}

}  // namespace
}  // namespace kelvora
