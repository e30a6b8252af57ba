#pragma once

#include <string>

namespace kelvora::detalle {

/// A finite non-negative number as significant decimal digits d1 d2 ... and a point position:
/// value = 0.d1d2... x 10^puntoDecimal. Zero has no digits.
struct Digitos {
    std::string cifras;
    int puntoDecimal = 0;
};

/// |valor| rounded to `significativas` digits, trailing zeros stripped.
Digitos DigitosDe(double valor, int significativas);

}  // namespace kelvora::detalle
