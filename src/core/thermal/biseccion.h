#pragma once

#include "core/platform/eventpump.h"
#include "core/thermal/pelicula.h"

namespace kelvora {

/// Raised inside a calculation when its window has gone while events ran: the calculation
/// ends without a message.
struct CalculoInterrumpido {};

/// Lets pending events run; raises CalculoInterrumpido when the pump says the window has gone.
void DejarPasarEventos(EventPump& bomba);

/// The outcome of a bisection that may give up.
struct Biseccion {
    bool convergio = false;
    double valor = 0;
};

/// The surface temperature between TA and TS + TS at which Qrad(T, Es) + Qconv(T, C) meets the
/// target flux within 0.01; gives up when the bracket closes to 1E-10 in 32-bit floats. Events
/// run on every pass that does neither.
Biseccion BiseccionSuperficie(double objetivo, double C, const Pelicula& pelicula, double Es,
                              double TS, EventPump& bomba);

/// The cold surface temperature between TI and TA at which the gained flux meets the target
/// within 0.01. There is no give-up test: events run on every pass.
double BiseccionSuperficieFrio(double objetivo, double C, const Pelicula& pelicula, double Es,
                               double TI, EventPump& bomba);

/// The outer radius r2 between r1 and r1 + Eq with ln(r2 / r1) · r2 = Eq within 0.001. Gives
/// up as BiseccionSuperficie does, and then too returns the radius reached.
double BiseccionRadio(double Eq, double r1, EventPump& bomba);

/// BiseccionRadio without the give-up test and without events.
double BiseccionRadioFrio(double Eq, double r1);

}  // namespace kelvora
