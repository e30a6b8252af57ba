#include "core/verificacion/aire.h"

#include "core/verificacion/errorverificacion.h"

#include <array>

namespace kelvora {

namespace {

struct FilaAire {
    double T;
    double nu;
    double k;
    double alfa;
    double Pr;
};

// Incropera, DeWitt, Bergman & Lavine, Fundamentals of Heat and Mass Transfer, 6th ed.,
// Table A.4, air at 1 atm: T in K, nu·10⁶ m²/s, k·10³ W/m K, alpha·10⁶ m²/s, Pr.
// clang-format off
constexpr std::array<FilaAire, 19> kTablaAire = {{
    { 150,   4.426, 13.8,   5.84, 0.758},
    { 200,   7.590, 18.1,  10.3,  0.737},
    { 250,  11.44,  22.3,  15.9,  0.720},
    { 300,  15.89,  26.3,  22.5,  0.707},
    { 350,  20.92,  30.0,  29.9,  0.700},
    { 400,  26.41,  33.8,  38.3,  0.690},
    { 450,  32.39,  37.3,  47.2,  0.686},
    { 500,  38.79,  40.7,  56.7,  0.684},
    { 550,  45.57,  43.9,  66.7,  0.683},
    { 600,  52.69,  46.9,  76.9,  0.685},
    { 650,  60.21,  49.7,  87.3,  0.690},
    { 700,  68.10,  52.4,  98.0,  0.695},
    { 750,  76.37,  54.9, 109,    0.702},
    { 800,  84.93,  57.3, 120,    0.709},
    { 850,  93.80,  59.6, 131,    0.716},
    { 900, 102.9,   62.0, 143,    0.720},
    { 950, 112.2,   64.3, 155,    0.723},
    {1000, 121.9,   66.7, 168,    0.726},
    {1100, 141.8,   71.5, 195,    0.728},
}};
// clang-format on

double Kelvin(double F) {
    return (F + 459.67) / 1.8;
}

double Interpolar(double a, double b, double t) {
    return a + (b - a) * t;
}

}  // namespace

PropiedadesAire AireEnPelicula(double Tf) {
    // The negated test also refuses a NaN.
    if (!(Tf >= kPeliculaMinima && Tf <= kPeliculaMaxima)) {
        throw ErrorVerificacion("La temperatura de película del aire (" + TextoNumero(Tf) +
                                " °F) queda fuera de la tabla de propiedades del aire, de "
                                "−100 °F a 1500 °F.");
    }
    const double T = Kelvin(Tf);
    size_t i = 1;
    while (i + 1 < kTablaAire.size() && kTablaAire[i].T < T) {
        ++i;
    }
    const FilaAire& a = kTablaAire[i - 1];
    const FilaAire& b = kTablaAire[i];
    const double t = (T - a.T) / (b.T - a.T);
    return {Interpolar(a.nu, b.nu, t) * 1e-6, Interpolar(a.k, b.k, t) * 1e-3,
            Interpolar(a.alfa, b.alfa, t) * 1e-6, Interpolar(a.Pr, b.Pr, t)};
}

}  // namespace kelvora
