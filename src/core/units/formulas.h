#pragma once

#include <string>
#include <vector>

namespace kelvora {

enum class Operacion { Sumar, Restar, Multiplicar, Dividir, Desbordar };

/// One step of a formula: the running value, the operation, then the constant raised to
/// the exponent at run time.
struct PasoFormula {
    Operacion operacion;
    double constante;
    double exponente;
};

/// The conversion of one ordered pair of catalogue units: its steps, in the order written.
struct FormulaConversion {
    const char* desde;
    const char* hasta;
    std::vector<PasoFormula> pasos;
};

/// Every formula of the catalogue.
const std::vector<FormulaConversion>& FormulasConversion();

/// The formula of the pair named by the catalogue's own symbols; nullptr when there is none.
const FormulaConversion* BuscarFormula(const std::string& desde, const std::string& hasta);

/// Applies the steps to x with the runtime's checked arithmetic (errors 6 and 11).
double AplicarFormula(const FormulaConversion& formula, double x);

}  // namespace kelvora
