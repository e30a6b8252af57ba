#include "core/thermal/pelicula.h"

#include "core/runtime/aritmetica.h"

#include <cmath>

namespace kelvora {

namespace {

constexpr double kVientoPieMinuto = 88;
constexpr double kVientoBase = 68.9;
constexpr double kExponenteTemperaturaMedia = 0.181;
constexpr double kExponenteConveccion = 1.266;
constexpr double kExponenteDiametro = 0.2;

thread_local std::vector<EvaluacionPelicula>* tRegistro = nullptr;

void Registrar(EvaluacionPelicula::Formula formula, const Pelicula& pelicula, double x,
               double parametro) {
    if (tRegistro != nullptr) {
        tRegistro->push_back({formula, pelicula, x, parametro});
    }
}

const Pelicula kSinPelicula(0, 0, Sentido::Calor);

// ((T + 459.6) / 100)^4
double RadiacionAbsoluta(double T) {
    return Potencia(Comprobar(T + kCeroAbsoluto) / 100, 4);
}

}  // namespace

double FactorViento(double V) {
    Registrar(EvaluacionPelicula::Formula::FactorViento, kSinPelicula, V, 0);
    const double pieMinuto = Comprobar(kVientoPieMinuto * V);
    return Potencia(Comprobar(pieMinuto + kVientoBase) / kVientoBase, 1.0 / 2);
}

double CoeficienteTuberia(double C0, double D) {
    Registrar(EvaluacionPelicula::Formula::Coeficiente, kSinPelicula, C0, D);
    return Comprobar(C0 * Potencia(Dividir(1, D), kExponenteDiametro));
}

// The ambient terms do not change within a calculation: an overflow in them stays infinite
// here and is raised by the formula that uses it, as the full expression would.
Pelicula::Pelicula(double TA, double factorViento, Sentido sentido)
    : mTA(TA),
      mFactorViento(factorViento),
      mSentido(sentido),
      mAbsolutoAmbiente(TA + kCeroAbsoluto),
      mRadiacionAmbiente(std::pow(mAbsolutoAmbiente / 100, 4)) {
}

double Pelicula::Qrad(double T, double e) const {
    Registrar(EvaluacionPelicula::Formula::Qrad, *this, T, e);
    const double emision = Comprobar(kConstanteRadiacion * e);
    const double superficie = RadiacionAbsoluta(T);
    const double diferencia = mSentido == Sentido::Calor ? superficie - mRadiacionAmbiente
                                                         : mRadiacionAmbiente - superficie;
    return Comprobar(emision * diferencia);
}

double Pelicula::Qconv0(double T, double C) const {
    Registrar(EvaluacionPelicula::Formula::Qconv0, *this, T, C);
    return Conveccion(T, C);
}

double Pelicula::Qconv(double T, double C) const {
    Registrar(EvaluacionPelicula::Formula::Qconv, *this, T, C);
    return Comprobar(Conveccion(T, C) * mFactorViento);
}

double Pelicula::Conveccion(double T, double C) const {
    const double suma = Comprobar(mAbsolutoAmbiente + (T + kCeroAbsoluto));
    const double coeficiente =
            Comprobar(C * Potencia(Dividir(1, suma / 2), kExponenteTemperaturaMedia));
    const double salto = Comprobar(mSentido == Sentido::Calor ? T - mTA : mTA - T);
    return Comprobar(coeficiente * Potencia(salto, kExponenteConveccion));
}

void RegistrarEvaluaciones(std::vector<EvaluacionPelicula>* registro) {
    tRegistro = registro;
}

double Evaluar(const EvaluacionPelicula& evaluacion) {
    switch (evaluacion.formula) {
        case EvaluacionPelicula::Formula::FactorViento:
            return FactorViento(evaluacion.x);
        case EvaluacionPelicula::Formula::Coeficiente:
            return CoeficienteTuberia(evaluacion.x, evaluacion.parametro);
        case EvaluacionPelicula::Formula::Qrad:
            return evaluacion.pelicula.Qrad(evaluacion.x, evaluacion.parametro);
        case EvaluacionPelicula::Formula::Qconv0:
            return evaluacion.pelicula.Qconv0(evaluacion.x, evaluacion.parametro);
        case EvaluacionPelicula::Formula::Qconv:
            return evaluacion.pelicula.Qconv(evaluacion.x, evaluacion.parametro);
    }
    return 0;
}

}  // namespace kelvora
