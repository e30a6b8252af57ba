#include "core/thermal/redondeo.h"

#include <cmath>

namespace kelvora {

namespace {

constexpr double kEspesorMinimoTuberia = 1;

}  // namespace

double RedondeoPractico(double espesor) {
    const double entero = std::floor(espesor);
    const double fraccion = espesor - entero;
    if (fraccion < 0.25) {
        return entero;
    }
    return fraccion < 0.75 ? entero + 0.5 : entero + 1;
}

double RedondeoPracticoTuberia(double espesor) {
    const double practico = RedondeoPractico(espesor);
    return practico < kEspesorMinimoTuberia ? kEspesorMinimoTuberia : practico;
}

double RedondeoPracticoFrio(double espesor) {
    const double entero = std::floor(espesor);
    return espesor - entero < 0.5 ? entero + 0.5 : entero + 1;
}

}  // namespace kelvora
