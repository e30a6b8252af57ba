#include "core/reports/medircolumnas.h"

#include <algorithm>

namespace kelvora {

namespace {

bool CeldaMedible(const Grilla& grilla, int fila, int columna) {
    const int64_t producto = static_cast<int64_t>(grilla.RowData(fila)) * grilla.ColData(columna);
    return producto == 0 && !grilla.MergeRow(fila);
}

double AnchoColumna(const MedidaTexto& medida, const Grilla& grilla, int columna) {
    double ancho = 0;
    for (int fila = 0; fila < grilla.Rows(); ++fila) {
        if (CeldaMedible(grilla, fila, columna)) {
            ancho = std::max(ancho, medida(grilla.TextMatrix(fila, columna)));
        }
    }
    return ancho;
}

}  // namespace

std::vector<double> MedirColumnas(const MedidaTexto& medida, const Grilla& grilla,
                                  int16_t blancos) {
    const double anchoBlancos =
            medida(std::string(static_cast<size_t>(std::max<int16_t>(blancos, 0)), ' '));
    std::vector<double> anchos(static_cast<size_t>(grilla.Cols()), 0.0);
    for (int columna = 0; columna < grilla.Cols(); ++columna) {
        // A hidden column is neither measured nor drawn.
        if (grilla.ColWidth(columna) > 0) {
            anchos[columna] = AnchoColumna(medida, grilla, columna) + anchoBlancos;
        }
    }
    return anchos;
}

std::vector<double> MedirColumnas(const Surface& surface, const Grilla& grilla, int16_t blancos) {
    return MedirColumnas([&surface](const std::string& texto) { return surface.TextWidth(texto); },
                         grilla, blancos);
}

}  // namespace kelvora
