#include "core/runtime/aritmetica.h"

#include "core/runtime/runtimeerror.h"

#include <cmath>

namespace kelvora {

double Comprobar(double resultado) {
    if (!std::isfinite(resultado)) {
        throw RuntimeError::DelRuntime(errores::Desbordamiento);
    }
    return resultado;
}

double Dividir(double a, double b) {
    if (b == 0) {
        throw RuntimeError::DelRuntime(a == 0 ? errores::Desbordamiento : errores::DivisionPorCero);
    }
    return Comprobar(a / b);
}

double Potencia(double base, double exponente) {
    if (base < 0 && exponente != std::floor(exponente)) {
        throw RuntimeError::DelRuntime(errores::LlamadaNoValida);
    }
    if (base == 0 && exponente < 0) {
        throw RuntimeError::DelRuntime(errores::LlamadaNoValida);
    }
    return Comprobar(std::pow(base, exponente));
}

double Exp(double x) {
    return Comprobar(std::exp(x));
}

double Log(double x) {
    if (x <= 0) {
        throw RuntimeError::DelRuntime(errores::LlamadaNoValida);
    }
    return std::log(x);
}

double Sqr(double x) {
    if (x < 0) {
        throw RuntimeError::DelRuntime(errores::LlamadaNoValida);
    }
    return std::sqrt(x);
}

}  // namespace kelvora
