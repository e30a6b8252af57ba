#pragma once

#include "core/verificacion/peliculamoderna.h"

#include <functional>
#include <optional>

namespace kelvora {

/// Conductivity of an insulation, k = a · exp(b · T) in BTU plg/pie² h °F with T in °F; b = 0
/// for a constant k.
struct LeyConductividad {
    double a = 0;
    double b = 0;

    /// The integral of k from T1 to T2, BTU plg/pie² h: the conduction potential across a layer.
    double Integral(double T1, double T2) const;
};

/// The law of a product code of the catalogue; a = b = 0 for an unknown code.
LeyConductividad ConductividadProducto(int codigo);

/// An insulated surface: the hot or cold face at TI (°F), the jacket's emissivity, the outer
/// diameter of the bare pipe in plg (0 on a flat surface) and the air outside.
struct SistemaAislado {
    Posicion posicion = Posicion::Vertical;
    double TI = 0;
    double Es = 0;
    double D = 0;
    LeyConductividad k;
    Aire aire;
};

/// The state of the outer face at one thickness: its temperature in °F and the flows leaving
/// it per pie² h.
struct EstadoSuperficie {
    double TS = 0;
    FlujoSuperficie flujo;
};

/// The flows leaving a surface at T (°F) whose outer diameter is D plg.
using FormulaPelicula = std::function<FlujoSuperficie(double T, double D)>;

/// The outer face of E plg of insulation, where conduction through the layer, with k integrated
/// over the temperatures it spans, meets the film. E = 0 is the bare surface.
EstadoSuperficie SuperficieConEspesor(const SistemaAislado& sistema, double E,
                                      const FormulaPelicula& pelicula);

/// The same with the film of the modern method.
EstadoSuperficie SuperficieConEspesor(const SistemaAislado& sistema, double E);

/// Total flow of a state as the program shows it: per pie² h on a flat surface, per foot of
/// run (pie h) on a pipe of outer diameter D + 2 E.
double FlujoMostrado(const SistemaAislado& sistema, double E, const EstadoSuperficie& estado);

/// Thicknesses beyond this are not searched.
inline constexpr double kEspesorMaximo = 100;

/// The least thickness, in plg, whose outer face reaches the required temperature: at or below
/// it on a hot surface, at or above it on a cold one; 0 when the bare surface already does, no
/// value past kEspesorMaximo. A requirement on the far side of the air is refused.
std::optional<double> EspesorNecesario(const SistemaAislado& sistema, double requerida);

}  // namespace kelvora
