#include "core/thermal/biseccion.h"

#include "core/runtime/aritmetica.h"
#include "core/runtime/numeros.h"
#include "core/thermal/tuberia.h"

#include <cmath>

namespace kelvora {

namespace {

constexpr double kToleranciaFlujo = 0.01;
constexpr double kToleranciaRadio = 0.001;

const float kCierre = CSng(1E-10);

// The loops run these on every pass: the runtime's checks are called only to raise.
inline double Finito(double x) {
    return std::isfinite(x) ? x : Comprobar(x);
}

inline float Simple(double x) {
    const auto f = static_cast<float>(x);
    return std::isinf(f) ? CSng(x) : f;
}

// Both distances to the bracket's ends, each as a 32-bit float, below 1E-10 as a 32-bit
// float. Both are converted before the test, so an overflow in either is raised.
bool IntervaloCerrado(double inferior, double superior, double x) {
    const bool inferiorCerrado = Simple(std::fabs(inferior - x)) < kCierre;
    const bool superiorCerrado = Simple(std::fabs(superior - x)) < kCierre;
    return inferiorCerrado && superiorCerrado;
}

double PuntoMedio(double inferior, double superior) {
    return Finito(Finito(superior - inferior) / 2 + inferior);
}

double FlujoSuperficie(const Pelicula& pelicula, double T, double Es, double C) {
    const double radiacion = pelicula.Qrad(T, Es);
    return Finito(radiacion + pelicula.Qconv(T, C));
}

}  // namespace

void DejarPasarEventos(EventPump& bomba) {
    if (!bomba.DoEvents()) {
        throw CalculoInterrumpido{};
    }
}

Biseccion BiseccionSuperficie(double objetivo, double C, const Pelicula& pelicula, double Es,
                              double TS, EventPump& bomba) {
    double inferior = pelicula.TA();
    double superior = Comprobar(TS + TS);
    for (;;) {
        const double T = PuntoMedio(inferior, superior);
        const double Q = FlujoSuperficie(pelicula, T, Es, C);
        if (std::fabs(Finito(objetivo - Q)) < kToleranciaFlujo) {
            return {true, T};
        }
        if (Q < objetivo) {
            inferior = T;
        } else {
            superior = T;
        }
        if (IntervaloCerrado(inferior, superior, T)) {
            return {false, T};
        }
        DejarPasarEventos(bomba);
    }
}

double BiseccionSuperficieFrio(double objetivo, double C, const Pelicula& pelicula, double Es,
                               double TI, EventPump& bomba) {
    double inferior = TI;
    double superior = pelicula.TA();
    for (;;) {
        const double T = PuntoMedio(inferior, superior);
        const double Q = FlujoSuperficie(pelicula, T, Es, C);
        if (std::fabs(Finito(objetivo - Q)) < kToleranciaFlujo) {
            return T;
        }
        if (Q > objetivo) {
            inferior = T;
        } else {
            superior = T;
        }
        DejarPasarEventos(bomba);
    }
}

double BiseccionRadio(double Eq, double r1, EventPump& bomba) {
    double inferior = r1;
    double superior = Comprobar(r1 + Eq);
    for (;;) {
        const double r = PuntoMedio(inferior, superior);
        const double e = EspesorEquivalente(r, r1);
        if (std::fabs(Finito(e - Eq)) < kToleranciaRadio) {
            return r;
        }
        if (e > Eq) {
            superior = r;
        } else {
            inferior = r;
        }
        if (IntervaloCerrado(inferior, superior, r)) {
            return r;
        }
        DejarPasarEventos(bomba);
    }
}

double BiseccionRadioFrio(double Eq, double r1) {
    double inferior = r1;
    double superior = Comprobar(r1 + Eq);
    for (;;) {
        const double r = PuntoMedio(inferior, superior);
        const double e = EspesorEquivalente(r, r1);
        if (std::fabs(Finito(e - Eq)) < kToleranciaRadio) {
            return r;
        }
        // Eq = 0 meets the tolerance at r1 on the first pass, and checked arithmetic never
        // yields NaN; a bracket that holds no root (Eq < 0) or cannot be split any further
        // ends here, since this loop runs no events that could stop it.
        if (r == inferior || r == superior) {
            throw ErrorNoConverge();
        }
        if (e > Eq) {
            superior = r;
        } else {
            inferior = r;
        }
    }
}

}  // namespace kelvora
