#include "core/charts/serie.h"

#include "core/runtime/runtimeerror.h"

#include <algorithm>
#include <cmath>
#include <limits>

namespace kelvora {

namespace {

constexpr double kPaso = 1.0;
constexpr double kFraccionEscala = 0.98;
constexpr double kMargen = 0.1;

double En(const std::vector<double>& valores, int i) {
    return valores[static_cast<size_t>(i)];
}

}  // namespace

int32_t UltimoPunto(double TI, double TA) {
    const double parteEntera = std::floor((TI - TA) / kPaso);
    using Limites = std::numeric_limits<int32_t>;
    if (!std::isfinite(parteEntera) || parteEntera < Limites::min() ||
        parteEntera >= Limites::max()) {
        throw RuntimeError::DelRuntime(errores::Desbordamiento);
    }
    return static_cast<int32_t>(parteEntera) + 1;
}

EjesGrafica CalcularEjes(const SerieGrafica& serie) {
    EjesGrafica ejes;
    if (serie.Vacia()) {
        return ejes;
    }
    const int N = serie.N;
    ejes.Xlow = En(serie.X, N);
    ejes.Xhigh = En(serie.X, static_cast<int>(std::floor(N - N * kFraccionEscala)));
    if (ejes.Xhigh == 0) {
        ejes.Xhigh = 1.0;
    }
    const auto [menor, mayor] = std::minmax_element(serie.Y.begin(), serie.Y.end());
    ejes.Ylow = *menor;
    ejes.Yhigh = *mayor;
    ejes.mX = (ejes.Xhigh - ejes.Xlow) * kMargen;
    ejes.mY = (ejes.Yhigh - ejes.Ylow) * kMargen;
    return ejes;
}

bool FinDeCurva(const SerieGrafica& serie, const EjesGrafica& ejes, int16_t tipoGrafica, int i) {
    if (tipoGrafica == kGraficaTemperatura) {
        return En(serie.X, i) == 0;
    }
    return tipoGrafica == kGraficaCalor && En(serie.Y, i) == ejes.Yhigh;
}

std::vector<FilaTablaGrafica> TablaSerie(const SerieGrafica& serie, const EjesGrafica& ejes,
                                         int16_t tipoGrafica) {
    std::vector<FilaTablaGrafica> filas;
    int i = 1;
    while (i <= serie.N) {
        const double x = En(serie.X, i);
        double suma = 0;
        int cuenta = 0;
        bool fin = false;
        for (; i <= serie.N && En(serie.X, i) == x; ++i) {
            suma += En(serie.Y, i);
            ++cuenta;
            fin = fin || FinDeCurva(serie, ejes, tipoGrafica, i);
        }
        filas.push_back({suma / cuenta, x});
        if (fin) {
            break;
        }
    }
    return filas;
}

}  // namespace kelvora
