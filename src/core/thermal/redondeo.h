#pragma once

namespace kelvora {

/// Practical thickness of the hot calculations: with n the integer part, below n + 0.25 gives n,
/// below n + 0.75 gives n + 0.5, otherwise n + 1. No minimum.
double RedondeoPractico(double espesor);

/// RedondeoPractico with the pipes' minimum of 1 plg.
double RedondeoPracticoTuberia(double espesor);

/// Practical thickness of the cold calculations, always upward: n + 0.5 below n + 0.5,
/// otherwise n + 1, so that a whole number also goes up by a half.
double RedondeoPracticoFrio(double espesor);

}  // namespace kelvora
