#include "core/runtime/texto.h"
#include "core/thermal/tooltipresultados.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(ToolTipResultados, TextoQueNoCabeYLaReglaDelMaterial) {
    struct Caso {
        const char* etiqueta;
        const char* valor;
        bool combinada;
        int32_t rowData;
        int columna;
        double ancho;
        const char* toolTip;
    };
    // One unit of width per character: "12345" and four blanks are 9 wide.
    // clang-format off
    const Caso casos[] = {
        {"Temperatura Interior (TI)",       "12345", false, 0,  0, 20, "Temperatura Interior (TI)"},
        {"Temperatura Interior (TI)",       "12345", true,  0,  0, 20, ""},
        {"Temperatura Interior (TI)",       "12345", false, 0,  1, 9,  ""},
        {"Temperatura Interior (TI)",       "12345", false, 0,  1, 8,  "12345"},
        // Nine characters against "Material": the rule of the material row never holds...
        {"Material Superficie Aislamiento", "7",     false, 7,  1, 20, ""},
        // ...but for a label of exactly that word.
        {"Material",                        "7",     false, 7,  1, 20, "Material: PINTURA NEGRA"},
        {"Material",                        "7",     false, 0,  1, 20, ""},
        {"Material",                        "7",     false, -9, 1, 20, "Material: PINTURA NEGRA"},
    };
    // clang-format on
    const auto ancho = [](const std::string& texto) { return static_cast<double>(Len(texto)); };
    for (const Caso& caso : casos) {
        Grilla grilla;
        grilla.SetCols(3);
        grilla.SetRows(1);
        grilla.SetTextMatrix(0, 0, caso.etiqueta);
        grilla.SetTextMatrix(0, 1, caso.valor);
        grilla.SetMergeRow(0, caso.combinada);
        grilla.SetRowData(0, caso.rowData);
        EXPECT_EQ(ToolTipResultados(grilla, 0, caso.columna, caso.ancho, ancho, "PINTURA NEGRA"),
                  caso.toolTip)
                << caso.etiqueta << " / " << caso.columna;
    }
}

}  // namespace
}  // namespace kelvora
