#pragma once

#include <vector>

namespace kelvora {

/// Offset of the absolute scale (°R = °F + 459.6) and the radiation constant of the film
/// formulas.
inline constexpr double kCeroAbsoluto = 459.6;
inline constexpr double kConstanteRadiacion = 0.174;

/// Convection coefficients C by geometry and position; a pipe's is C0 · (1 / D)^0.2.
inline constexpr double kCaraArriba = 0.941;
inline constexpr double kVertical = 0.7383;
inline constexpr double kCaraAbajo = 0.4714;
inline constexpr double kTuberiaVertical = 1.235;
inline constexpr double kTuberiaHorizontal = 1.016;

/// Which way heat crosses the film: a hot surface loses it, a cold one gains it.
enum class Sentido { Calor, Frio };

/// ((88 · V + 68.9) / 68.9)^(1/2), V in mi/h; exactly 1 at V = 0.
double FactorViento(double V);

/// Convection coefficient of a pipe surface of outer diameter D in plg: C0 · (1 / D)^0.2.
double CoeficienteTuberia(double C0, double D);

/// The surface film against air at TA (°F), with the wind factor of the calculation. Flows are
/// BTU/pie² h; the cold forms take TA minus the surface temperature.
class Pelicula {
public:
    Pelicula(double TA, double factorViento, Sentido sentido);

    /// (0.174 · e) · [((T + 459.6) / 100)^4 − ((TA + 459.6) / 100)^4], terms swapped when cold.
    double Qrad(double T, double e) const;
    /// C · (1 / (((TA + 459.6) + (T + 459.6)) / 2))^0.181 · (T − TA)^1.266, (TA − T) when cold.
    double Qconv0(double T, double C) const;
    /// Qconv0 times the wind factor.
    double Qconv(double T, double C) const;

    double TA() const { return mTA; }

private:
    double Conveccion(double T, double C) const;

    double mTA;
    double mFactorViento;
    Sentido mSentido;
    double mAbsolutoAmbiente;
    double mRadiacionAmbiente;
};

/// One evaluation of a film formula, as a measurement records it.
struct EvaluacionPelicula {
    enum class Formula { FactorViento, Coeficiente, Qrad, Qconv0, Qconv };

    Formula formula;
    Pelicula pelicula;
    double x;
    double parametro;
};

/// While registro is set, every film formula evaluated on this thread is appended to it; the
/// benchmarks replay the list to time the formulas alone.
void RegistrarEvaluaciones(std::vector<EvaluacionPelicula>* registro);

/// Evaluates a recorded formula again.
double Evaluar(const EvaluacionPelicula& evaluacion);

}  // namespace kelvora
