#include "core/thermal/tooltipresultados.h"

#include "core/runtime/texto.h"

namespace kelvora {

std::string ToolTipResultados(const Grilla& grilla, int fila, int columna, double anchoColumna,
                              const std::function<double(const std::string&)>& anchoTexto,
                              const std::string& materialAislamiento) {
    const std::string& texto = grilla.TextMatrix(fila, columna);
    if (anchoTexto(texto + "    ") > anchoColumna && !grilla.MergeRow(fila)) {
        return texto;
    }
    const std::string& etiqueta = grilla.TextMatrix(fila, 0);
    if (grilla.RowData(fila) != 0 && Mid(etiqueta, 1, 9) == "Material") {
        return etiqueta + ": " + materialAislamiento;
    }
    return "";
}

}  // namespace kelvora
