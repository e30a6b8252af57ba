#pragma once

#include "core/materials/tubos.h"

namespace kelvora {

/// π of the hot pipe calculation, 4 · arctangent(1), and the literal of the cold one.
inline constexpr double kPiTuberia = 3.14159265358979323846;
inline constexpr double kPiTuberiaFrio = 3.1416;

/// Equivalent thickness of an insulation from radius r1 to r2: ln(r2 / r1) · r2, in plg.
double EspesorEquivalente(double r2, double r1);

/// A flow per pie² h turned into a flow per foot of a surface of diameter D: Q · π · D / 12.
double PorPie(double Q, double pi, double D);

/// The pipe row of a nominal diameter; error 1005 when the table has none.
FilaTubos LeerTubo(FuenteTubos& tubos, double nominal);

}  // namespace kelvora
