#include "core/verificacion/correlaciones.h"

#include <cmath>

namespace kelvora {

namespace {

constexpr double kReynoldsTransicion = 5e5;
constexpr double kRayleighTurbulento = 1e7;
constexpr double kExponenteMixto = 3;

// The Prandtl function shared by the two Churchill–Chu correlations.
double FuncionPrandtl(double constante, double Pr) {
    return std::pow(1 + std::pow(constante / Pr, 9.0 / 16), 8.0 / 27);
}

}  // namespace

// Churchill & Chu, Int. J. Heat Mass Transfer 18 (1975) 1323; Incropera 6th ed. eq. 9.26.
double NusseltPlacaVertical(double Ra, double Pr) {
    const double raiz = 0.825 + 0.387 * std::pow(Ra, 1.0 / 6) / FuncionPrandtl(0.492, Pr);
    return raiz * raiz;
}

// Churchill & Chu, Int. J. Heat Mass Transfer 18 (1975) 1049; Incropera 6th ed. eq. 9.34.
double NusseltCilindroHorizontal(double Ra, double Pr) {
    const double raiz = 0.60 + 0.387 * std::pow(Ra, 1.0 / 6) / FuncionPrandtl(0.559, Pr);
    return raiz * raiz;
}

// McAdams, Heat Transmission, 3rd ed. (1954); Incropera 6th ed. eqs. 9.30 (Ra 10⁴ to 10⁷) and
// 9.31 (10⁷ to 10¹¹). Each form is carried past its range rather than cut off.
double NusseltPlacaHorizontalInestable(double Ra) {
    return Ra < kRayleighTurbulento ? 0.54 * std::pow(Ra, 0.25) : 0.15 * std::cbrt(Ra);
}

// McAdams (1954); Incropera 6th ed. eq. 9.32 (Ra 10⁵ to 10¹⁰).
double NusseltPlacaHorizontalEstable(double Ra) {
    return 0.27 * std::pow(Ra, 0.25);
}

// Churchill & Bernstein, J. Heat Transfer 99 (1977) 300; Incropera 6th ed. eq. 7.54.
double NusseltCilindroForzado(double Re, double Pr) {
    const double laminar =
            0.62 * std::sqrt(Re) * std::cbrt(Pr) / std::pow(1 + std::pow(0.4 / Pr, 2.0 / 3), 0.25);
    return 0.3 + laminar * std::pow(1 + std::pow(Re / 282000, 5.0 / 8), 4.0 / 5);
}

// Incropera 6th ed. eq. 7.30 (laminar, Pohlhausen) and eq. 7.38 (mixed boundary layer with
// transition at Re = 5·10⁵); the two meet at the transition.
double NusseltPlacaForzada(double Re, double Pr) {
    if (Re <= kReynoldsTransicion) {
        return 0.664 * std::sqrt(Re) * std::cbrt(Pr);
    }
    return (0.037 * std::pow(Re, 0.8) - 871) * std::cbrt(Pr);
}

// Churchill, AIChE J. 23 (1977) 10; Incropera 6th ed. eq. 9.64 with n = 3 and the sum taken,
// since the wind crosses the buoyant flow.
double ConveccionMixta(double forzada, double natural) {
    return std::cbrt(std::pow(forzada, kExponenteMixto) + std::pow(natural, kExponenteMixto));
}

}  // namespace kelvora
