#include "core/economics/ahorro.h"

#include "core/runtime/aritmetica.h"

#include <cstddef>

namespace kelvora {

namespace {

double Por(double a, double b) {
    return Comprobar(a * b);
}

double Mas(double a, double b) {
    return Comprobar(a + b);
}

// A Single divided by an integer stays a Single.
float Fraccion(float eficiencia) {
    return eficiencia / 100.0F;
}

double Combustible(const DatosAhorro& d, std::size_t i, float fraccion) {
    const double energia = Por(Por(Comprobar(d.QSD[i] - d.QSA[i]), d.dimensiones[i]), d.horas);
    return Dividir(Dividir(energia, d.poder), fraccion);
}

// The last orientation first, then the others from the last but one down:
// Q(abajo) · A(abajo) + (A(vertical) · Q(vertical) + A(arriba) · Q(arriba)).
double PerdidaTotal(const std::vector<double>& perdidas, const std::vector<double>& dimensiones) {
    const std::size_t ultima = perdidas.size() - 1;
    double resto = 0;
    for (std::size_t i = ultima; i-- > 0;) {
        const double termino = Por(dimensiones[i], perdidas[i]);
        resto = i == ultima - 1 ? termino : Mas(resto, termino);
    }
    const double termino = Por(perdidas[ultima], dimensiones[ultima]);
    return ultima == 0 ? termino : Mas(termino, resto);
}

double CostoAnual(const DatosAhorro& d, const std::vector<double>& perdidas, float fraccion) {
    const double dinero = Por(Por(PerdidaTotal(perdidas, d.dimensiones), d.valor), d.horas);
    return Dividir(Dividir(dinero, d.poder), fraccion);
}

}  // namespace

Ahorro CalcularMontos(const DatosAhorro& datos) {
    const float fraccion = Fraccion(datos.eficiencia);
    Ahorro resultado;
    for (std::size_t i = 0; i < datos.QSD.size(); ++i) {
        resultado.combustible.push_back(Combustible(datos, i, fraccion));
        resultado.ahorro.push_back(Por(resultado.combustible.back(), datos.valor));
    }
    for (std::size_t n = 0; n < datos.ordenTotal.size(); ++n) {
        const double ahorro = resultado.ahorro[static_cast<std::size_t>(datos.ordenTotal[n])];
        resultado.total = n == 0 ? ahorro : Mas(resultado.total, ahorro);
    }
    resultado.CostoTotalSD = CostoAnual(datos, datos.QSD, fraccion);
    resultado.CostoTotalSA = CostoAnual(datos, datos.QSA, fraccion);
    return resultado;
}

}  // namespace kelvora
