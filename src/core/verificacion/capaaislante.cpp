#include "core/verificacion/capaaislante.h"

#include "core/thermal/productos.h"
#include "core/verificacion/errorverificacion.h"

#include <cmath>

namespace kelvora {

namespace {

constexpr int kPasosBiseccion = 100;
constexpr double kPi = 3.14159265358979323846;
constexpr double kPulgadasPorPie = 12;

bool Caliente(const SistemaAislado& s) {
    return s.TI > s.aire.TA;
}

// Conduction across the layer per pie² h of its outer face: the integral of k over the layer
// divided by E on a flat surface, by r2 · ln(r2 / r1) on a pipe.
double Conduccion(const SistemaAislado& s, double E, double TS) {
    const double potencial = s.k.Integral(TS, s.TI);
    if (!EsTuberia(s.posicion)) {
        return potencial / E;
    }
    const double r1 = s.D / 2;
    const double r2 = r1 + E;
    return potencial / (r2 * std::log(r2 / r1));
}

bool Cumple(const SistemaAislado& s, double TS, double requerida) {
    return Caliente(s) ? TS <= requerida : TS >= requerida;
}

}  // namespace

double LeyConductividad::Integral(double T1, double T2) const {
    if (b == 0) {
        return a * (T2 - T1);
    }
    return a * std::exp(b * T1) * std::expm1(b * (T2 - T1)) / b;
}

LeyConductividad ConductividadProducto(int codigo) {
    const Producto* producto = BuscarProducto(codigo);
    return producto == nullptr ? LeyConductividad{} : LeyConductividad{producto->a, producto->b};
}

// The balance of conduction against the film changes sign once between TI and TA; bisection
// moves toward TI while conduction still exceeds what the film carries away.
EstadoSuperficie SuperficieConEspesor(const SistemaAislado& s, double E,
                                      const FormulaPelicula& pelicula) {
    const double diametro = s.D + 2 * E;
    if (E <= 0) {
        return {s.TI, pelicula(s.TI, diametro)};
    }
    const double sentido = Caliente(s) ? 1 : -1;
    double haciaAire = s.aire.TA;
    double haciaInterior = s.TI;
    for (int paso = 0; paso < kPasosBiseccion; ++paso) {
        const double T = (haciaAire + haciaInterior) / 2;
        if ((Conduccion(s, E, T) - pelicula(T, diametro).Qt()) * sentido > 0) {
            haciaAire = T;
        } else {
            haciaInterior = T;
        }
    }
    const double TS = (haciaAire + haciaInterior) / 2;
    return {TS, pelicula(TS, diametro)};
}

EstadoSuperficie SuperficieConEspesor(const SistemaAislado& s, double E) {
    return SuperficieConEspesor(s, E, [&s](double T, double D) {
        return FlujoModerno(s.posicion, T, s.Es, D, s.aire);
    });
}

double FlujoMostrado(const SistemaAislado& s, double E, const EstadoSuperficie& estado) {
    if (!EsTuberia(s.posicion)) {
        return estado.flujo.Qt();
    }
    return estado.flujo.Qt() * kPi * (s.D + 2 * E) / kPulgadasPorPie;
}

std::optional<double> EspesorNecesario(const SistemaAislado& s, double requerida) {
    const bool caliente = Caliente(s);
    if (caliente ? requerida <= s.aire.TA : requerida >= s.aire.TA) {
        throw ErrorVerificacion("La temperatura exigida de la superficie (" +
                                TextoNumero(requerida) + " °F) no queda por " +
                                (caliente ? "encima" : "debajo") + " de la del aire (" +
                                TextoNumero(s.aire.TA) + " °F): ningún espesor la alcanza.");
    }
    if (Cumple(s, s.TI, requerida)) {
        return 0.0;
    }
    double corto = 0;
    double suficiente = 1;
    while (!Cumple(s, SuperficieConEspesor(s, suficiente).TS, requerida)) {
        if (suficiente >= kEspesorMaximo) {
            return std::nullopt;
        }
        corto = suficiente;
        suficiente = std::min(2 * suficiente, kEspesorMaximo);
    }
    for (int paso = 0; paso < kPasosBiseccion && suficiente - corto > 1e-9; ++paso) {
        const double E = (corto + suficiente) / 2;
        (Cumple(s, SuperficieConEspesor(s, E).TS, requerida) ? suficiente : corto) = E;
    }
    return suficiente;
}

}  // namespace kelvora
