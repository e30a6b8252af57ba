#pragma once

namespace kelvora {

/// Film temperatures the air table serves, in °F.
inline constexpr double kPeliculaMinima = -100;
inline constexpr double kPeliculaMaxima = 1500;

/// Dry air at one atmosphere, SI units: kinematic viscosity m²/s, conductivity W/m K,
/// diffusivity m²/s, Prandtl number.
struct PropiedadesAire {
    double nu;
    double k;
    double alfa;
    double Pr;
};

/// Air at the film temperature Tf in °F, interpolated linearly in the tabulated kelvins; a
/// film outside −100 °F to 1500 °F is refused with a message that says so.
PropiedadesAire AireEnPelicula(double Tf);

}  // namespace kelvora
