#include "core/verificacion/peliculamoderna.h"

#include "core/verificacion/aire.h"
#include "core/verificacion/correlaciones.h"

#include <cmath>

namespace kelvora {

namespace {

constexpr double kGravedad = 9.80665;
// Stefan–Boltzmann constant, W/m² K⁴.
constexpr double kStefanBoltzmann = 5.670e-8;
constexpr double kMetrosPorPulgada = 0.0254;
constexpr double kMetrosPorSegundoPorMilla = 0.44704;
// 1 BTU/pie² h = 3.154591 W/m².
constexpr double kVatiosPorBtuPie2 = 3.154591;
// A square's area over its perimeter is a quarter of its side.
constexpr double kLadoALongitudHorizontal = 0.25;

double Kelvin(double F) {
    return (F + 459.67) / 1.8;
}

// Buoyancy is driven by the temperature difference and resisted by ν α; β = 1 / Tf of an
// ideal gas.
double Rayleigh(double salto, double Tf, double longitud, const PropiedadesAire& aire) {
    return kGravedad * salto / Tf * std::pow(longitud, 3) / (aire.nu * aire.alfa);
}

// A hot face up or a cold face down carries the buoyant air away: the unstable case.
double NusseltHorizontal(Posicion posicion, double T, double TA, double Ra) {
    const bool caliente = T > TA;
    const bool inestable = (posicion == Posicion::CaraArriba) == caliente;
    return inestable ? NusseltPlacaHorizontalInestable(Ra) : NusseltPlacaHorizontalEstable(Ra);
}

double CoeficienteNatural(Posicion posicion, double T, double D, const Aire& a,
                          const PropiedadesAire& aire) {
    const double salto = std::abs(T - a.TA) / 1.8;
    const double Tf = Kelvin((T + a.TA) / 2);
    switch (posicion) {
        case Posicion::CaraArriba:
        case Posicion::CaraAbajo: {
            const double L = a.L * kLadoALongitudHorizontal;
            const double Ra = Rayleigh(salto, Tf, L, aire);
            return NusseltHorizontal(posicion, T, a.TA, Ra) * aire.k / L;
        }
        case Posicion::Vertical:
        case Posicion::TuberiaVertical:
            // A vertical run is taken as a vertical plate of its height (thin-cylinder
            // curvature neglected, Incropera 6th ed. eq. 9.33).
            return NusseltPlacaVertical(Rayleigh(salto, Tf, a.L, aire), aire.Pr) * aire.k / a.L;
        case Posicion::TuberiaHorizontal:
            return NusseltCilindroHorizontal(Rayleigh(salto, Tf, D, aire), aire.Pr) * aire.k / D;
    }
    return 0;
}

// The wind crosses a pipe of either run and sweeps a flat surface along L.
double CoeficienteForzado(Posicion posicion, double D, const Aire& a, const PropiedadesAire& aire) {
    const double V = a.V * kMetrosPorSegundoPorMilla;
    if (EsTuberia(posicion)) {
        return NusseltCilindroForzado(V * D / aire.nu, aire.Pr) * aire.k / D;
    }
    return NusseltPlacaForzada(V * a.L / aire.nu, aire.Pr) * aire.k / a.L;
}

}  // namespace

bool EsTuberia(Posicion posicion) {
    return posicion == Posicion::TuberiaVertical || posicion == Posicion::TuberiaHorizontal;
}

FlujoSuperficie FlujoModerno(Posicion posicion, double T, double e, double D, const Aire& a) {
    const PropiedadesAire aire = AireEnPelicula((T + a.TA) / 2);
    const double diametro = D * kMetrosPorPulgada;
    const double natural = CoeficienteNatural(posicion, T, diametro, a, aire);
    const double h =
            a.V > 0 ? ConveccionMixta(CoeficienteForzado(posicion, diametro, a, aire), natural)
                    : natural;
    const double superficie = Kelvin(T);
    const double ambiente = Kelvin(a.TA);
    // A small surface in large surroundings at the air temperature: Incropera 6th ed. eq. 1.7.
    const double radiacion =
            e * kStefanBoltzmann * (std::pow(superficie, 4) - std::pow(ambiente, 4));
    const double conveccion = h * (superficie - ambiente);
    return {radiacion / kVatiosPorBtuPie2, conveccion / kVatiosPorBtuPie2};
}

}  // namespace kelvora
