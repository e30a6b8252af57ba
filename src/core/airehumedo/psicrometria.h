#pragma once

namespace kelvora {

// Moist air relations of the ASHRAE Handbook—Fundamentals (2017), chapter 1, in SI: t in °C,
// pressures in kPa, altitude in m, humidity ratio in kg of water per kg of dry air.

/// Saturation pressure of water vapour (Hyland–Wexler): over ice below 0 °C, eq. (5), and over
/// liquid water from 0 °C, eq. (6). Valid from −100 °C to 200 °C.
double PresionSaturacion(double t);

/// Pressure of the standard atmosphere at an altitude, eq. (3), and the altitude of a pressure.
double PresionEstandar(double altitud);
double AltitudEstandar(double presion);

/// Humidity ratio of a vapour pressure at a total pressure, eq. (20); and back.
double RazonHumedad(double presionVapor, double presion);
double PresionVapor(double razon, double presion);

/// Humidity ratio of air at dry bulb t whose thermodynamic wet bulb is tbh: eq. (33) above
/// freezing, eq. (35) below. Negative when tbh is too low for t.
double RazonBulboHumedo(double t, double tbh, double presion);

/// Dew point of a vapour pressure: the temperature whose saturation pressure it is, eq. (36),
/// searched between `desde` and `hasta`.
double PuntoRocio(double presionVapor, double desde, double hasta);

/// Wet bulb of air at dry bulb t with humidity ratio W: eq. (33)/(35) solved for tbh between
/// `desde` and t.
double BulboHumedo(double t, double razon, double presion, double desde);

/// Specific enthalpy of moist air, eq. (30): kJ per kg of dry air, 0 for dry air at 0 °C.
double EntalpiaSI(double t, double razon);
/// The same in the handbook's inch-pound form, eq. (30): BTU per lb of dry air at tF in °F,
/// 0 for dry air at 0 °F.
double EntalpiaIP(double tF, double razon);

}  // namespace kelvora
