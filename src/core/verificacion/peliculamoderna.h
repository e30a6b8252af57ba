#pragma once

namespace kelvora {

/// The surfaces the verification knows: the three flat positions and the two pipe runs.
enum class Posicion { CaraArriba, Vertical, CaraAbajo, TuberiaVertical, TuberiaHorizontal };

bool EsTuberia(Posicion posicion);

/// The air around a surface: temperature in °F, wind in mi/h across the surface, and the
/// characteristic length in m: height of a wall or a vertical run, side of a horizontal
/// surface, and the run of the wind along a wall.
struct Aire {
    double TA = 0;
    double V = 0;
    double L = 1;
};

/// Flows leaving a surface by radiation and convection, BTU/pie² h; negative into a cold one.
struct FlujoSuperficie {
    double Qr = 0;
    double Qc = 0;
    double Qt() const { return Qr + Qc; }
};

/// The film of a surface at T (°F) of emissivity e, by today's textbook correlations with air
/// properties at the film temperature; D is the outer diameter of a pipe in plg. Radiation goes
/// to surroundings at the air temperature.
FlujoSuperficie FlujoModerno(Posicion posicion, double T, double e, double D, const Aire& aire);

}  // namespace kelvora
