#pragma once

namespace kelvora {

/// Average Nusselt numbers of the film correlations, each from its published source (see the
/// definitions). Ra and Re are built on the length the correlation names; Pr of the air.

/// Natural convection, vertical plate of height L, all Ra.
double NusseltPlacaVertical(double Ra, double Pr);

/// Natural convection, long horizontal cylinder of diameter D, Ra up to 10¹².
double NusseltCilindroHorizontal(double Ra, double Pr);

/// Natural convection, horizontal plate on L = area / perimeter. Unstable: a hot face up or a
/// cold face down; stable: a hot face down or a cold face up.
double NusseltPlacaHorizontalInestable(double Ra);
double NusseltPlacaHorizontalEstable(double Ra);

/// Forced convection, cylinder in cross flow, Re·Pr above 0.2.
double NusseltCilindroForzado(double Re, double Pr);

/// Forced convection, flat plate of length L along the flow: laminar up to Re = 5·10⁵, then
/// laminar leading part and turbulent rest.
double NusseltPlacaForzada(double Re, double Pr);

/// Forced and natural convection combined by the power sum, exponent 3: Nusselt numbers on one
/// length, or the coefficients themselves.
double ConveccionMixta(double forzada, double natural);

}  // namespace kelvora
