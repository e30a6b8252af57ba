#include "core/reports/configurarpagina.h"

#include "core/reports/paginaimpresion.h"
#include "core/runtime/formato.h"
#include "core/runtime/texto.h"

#include <algorithm>

namespace kelvora {

namespace {

constexpr double kRenglon = 10;
constexpr double kSangria = 18;
constexpr int kRenglonesPorParrafo = 5;

}  // namespace

std::string TextoMargen(double milimetros) {
    std::string texto = Format(milimetros / 10, "0.0");
    return NormalizarDecimal(texto) + " cms";
}

std::vector<LineaMuestra> DibujoMuestra(const ConfiguracionPagina& pagina) {
    const Tamano hoja = TamanoPagina(pagina);
    const double izquierda = -hoja.ancho / 2;
    const double arriba = hoja.alto / 2;
    std::vector<LineaMuestra> lineas = {
            {izquierda, arriba, -izquierda, arriba},
            {-izquierda, arriba, -izquierda, -arriba},
            {-izquierda, -arriba, izquierda, -arriba},
            {izquierda, -arriba, izquierda, arriba},
    };
    const double x1 = izquierda + pagina.MargenIzquierdo;
    const double x2 = -izquierda - pagina.MargenDerecho;
    // Margins beyond the sheet draw no more lines than the sheet holds.
    const double fondo = std::max(-arriba + pagina.MargenInferior, -arriba);
    int renglon = 0;
    for (double y = std::min(arriba - pagina.MargenSuperior, arriba); y >= fondo;
         y -= kRenglon, ++renglon) {
        const int enParrafo = renglon % kRenglonesPorParrafo;
        const double inicio = enParrafo == 0 ? x1 + kSangria : x1;
        const double fin = enParrafo == kRenglonesPorParrafo - 1 ? x1 + (x2 - x1) / 4 : x2;
        if (fin > inicio) {
            lineas.push_back({inicio, y, fin, y});
        }
    }
    return lineas;
}

std::string ToolTipMuestra(double x, double y) {
    return "(" + Format(x, "0.0#") + ", " + Format(y, "0.0#") + ")";
}

}  // namespace kelvora
