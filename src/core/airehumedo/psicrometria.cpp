#include "core/airehumedo/psicrometria.h"

#include <cmath>
#include <functional>

namespace kelvora {

namespace {

constexpr double kCeroAbsoluto = 273.15;
/// Ratio of the molar masses of water and dry air, eq. (20).
constexpr double kRazonMolar = 0.621945;

// Root of an increasing function between a and b, to well below a hundredth of a degree.
double Biseccion(const std::function<double(double)>& f, double a, double b) {
    constexpr int kPasos = 100;
    for (int i = 0; i < kPasos && b - a > 1e-10; ++i) {
        const double medio = (a + b) / 2;
        if (f(medio) < 0) {
            a = medio;
        } else {
            b = medio;
        }
    }
    return (a + b) / 2;
}

}  // namespace

double PresionSaturacion(double t) {
    const double T = t + kCeroAbsoluto;
    double lnP = 0;
    if (t < 0) {
        // Eq. (5), over ice, Pa.
        lnP = -5.6745359e3 / T + 6.3925247 - 9.6778430e-3 * T + 6.2215701e-7 * T * T +
              2.0747825e-9 * T * T * T - 9.4840240e-13 * T * T * T * T + 4.1635019 * std::log(T);
    } else {
        // Eq. (6), over liquid water, Pa.
        lnP = -5.8002206e3 / T + 1.3914993 - 4.8640239e-2 * T + 4.1764768e-5 * T * T -
              1.4452093e-8 * T * T * T + 6.5459673 * std::log(T);
    }
    return std::exp(lnP) / 1000;
}

double PresionEstandar(double altitud) {
    return 101.325 * std::pow(1 - 2.25577e-5 * altitud, 5.2559);
}

double AltitudEstandar(double presion) {
    return (1 - std::pow(presion / 101.325, 1 / 5.2559)) / 2.25577e-5;
}

double RazonHumedad(double presionVapor, double presion) {
    return kRazonMolar * presionVapor / (presion - presionVapor);
}

double PresionVapor(double razon, double presion) {
    return presion * razon / (kRazonMolar + razon);
}

double RazonBulboHumedo(double t, double tbh, double presion) {
    const double Ws = RazonHumedad(PresionSaturacion(tbh), presion);
    if (tbh >= 0) {
        // Eq. (33): the wet wick holds liquid water.
        return ((2501 - 2.326 * tbh) * Ws - 1.006 * (t - tbh)) / (2501 + 1.86 * t - 4.186 * tbh);
    }
    // Eq. (35): the wick is iced.
    return ((2830 - 0.24 * tbh) * Ws - 1.006 * (t - tbh)) / (2830 + 1.86 * t - 2.1 * tbh);
}

double PuntoRocio(double presionVapor, double desde, double hasta) {
    return Biseccion([presionVapor](double t) { return PresionSaturacion(t) - presionVapor; },
                     desde, hasta);
}

double BulboHumedo(double t, double razon, double presion, double desde) {
    return Biseccion([&](double tbh) { return RazonBulboHumedo(t, tbh, presion) - razon; }, desde,
                     t);
}

double EntalpiaSI(double t, double razon) {
    return 1.006 * t + razon * (2501 + 1.86 * t);
}

double EntalpiaIP(double tF, double razon) {
    return 0.240 * tF + razon * (1061 + 0.444 * tF);
}

}  // namespace kelvora
