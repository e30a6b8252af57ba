#include "core/units/formulas.h"

#include "core/runtime/aritmetica.h"
#include "core/runtime/runtimeerror.h"

#include <map>
#include <utility>

namespace kelvora {

namespace {

constexpr PasoFormula Mas(double c) {
    return {Operacion::Sumar, c, 1};
}

constexpr PasoFormula Menos(double c) {
    return {Operacion::Restar, c, 1};
}

constexpr PasoFormula Por(double c) {
    return {Operacion::Multiplicar, c, 1};
}

constexpr PasoFormula Entre(double c) {
    return {Operacion::Dividir, c, 1};
}

constexpr PasoFormula PorCuadrado(double c) {
    return {Operacion::Multiplicar, c, 2};
}

constexpr PasoFormula EntreCuadrado(double c) {
    return {Operacion::Dividir, c, 2};
}

constexpr PasoFormula Desborda() {
    return {Operacion::Desbordar, 0, 1};
}

// Each pair has its own constants, kept as they are although some pairs disagree with
// their reverse. A leading "c² * x" is written as a first multiplication, which is exact.
std::vector<FormulaConversion> Formulas() {
    // clang-format off
    return {
        {"mm",     "cm",     {Entre(10)}},
        {"mm",     "m",      {Entre(1000)}},
        {"mm",     "km",     {Entre(1000), Entre(1000)}},
        {"mm",     "pie",    {Entre(304.8)}},
        {"mm",     "plg",    {Entre(25.4)}},
        {"mm",     "mi",     {Entre(1000), Por(0.00062137)}},
        {"mm",     "yd",     {Entre(1000), Entre(0.9144)}},
        {"cm",     "mm",     {Por(10)}},
        {"cm",     "m",      {Entre(100)}},
        {"cm",     "km",     {Entre(100), Entre(1000)}},
        {"cm",     "pie",    {Entre(30.48)}},
        {"cm",     "plg",    {Entre(2.54)}},
        {"cm",     "mi",     {Entre(100), Por(0.00062137)}},
        {"cm",     "yd",     {Entre(100), Entre(0.9144)}},
        {"m",      "mm",     {Por(1000)}},
        {"m",      "cm",     {Por(100)}},
        {"m",      "km",     {Entre(1000)}},
        {"m",      "pie",    {Entre(0.3048)}},
        {"m",      "plg",    {Entre(0.0254)}},
        {"m",      "mi",     {Por(0.00062137)}},
        {"m",      "yd",     {Entre(0.9144)}},
        {"km",     "mm",     {Por(1000), Por(1000)}},
        {"km",     "cm",     {Por(100), Por(1000)}},
        {"km",     "m",      {Por(1000)}},
        {"km",     "pie",    {Entre(0.3048), Por(1000)}},
        {"km",     "plg",    {Entre(0.0254), Por(1000)}},
        {"km",     "mi",     {Por(0.62137)}},
        {"km",     "yd",     {Entre(0.9144), Por(1000)}},
        {"pie",    "mm",     {Por(304.8)}},
        {"pie",    "cm",     {Por(30.48)}},
        {"pie",    "m",      {Por(0.3048)}},
        {"pie",    "km",     {Por(0.3048), Por(1000)}},
        {"pie",    "plg",    {Por(12)}},
        {"pie",    "mi",     {Por(0.3048), Por(0.00062137)}},
        {"pie",    "yd",     {Por(0.3048), Entre(0.9144)}},
        {"plg",    "mm",     {Por(25.4)}},
        {"plg",    "cm",     {Por(2.54)}},
        {"plg",    "m",      {Por(0.0254)}},
        {"plg",    "km",     {Por(0.0254), Por(1000)}},
        {"plg",    "pie",    {Entre(12)}},
        {"plg",    "mi",     {Por(0.0254), Por(0.00062137)}},
        {"plg",    "yd",     {Por(0.0254), Entre(0.9144)}},
        {"mi",     "mm",     {Por(1000), Entre(0.00062137)}},
        {"mi",     "cm",     {Por(100), Entre(0.00062137)}},
        {"mi",     "m",      {Entre(0.00062137)}},
        {"mi",     "km",     {Entre(0.62137)}},
        {"mi",     "pie",    {Entre(0.3048), Entre(0.00062137)}},
        {"mi",     "plg",    {Entre(0.0254), Entre(0.00062137)}},
        {"mi",     "yd",     {Entre(0.00062137), Entre(0.9144)}},
        {"yd",     "mm",     {Por(1000), Por(0.9144)}},
        {"yd",     "cm",     {Por(100), Por(0.9144)}},
        {"yd",     "m",      {Por(0.9144)}},
        {"yd",     "km",     {Por(0.9144), Entre(1000)}},
        {"yd",     "pie",    {Entre(0.3048), Por(0.9144)}},
        {"yd",     "plg",    {Entre(0.0254), Por(0.9144)}},
        {"yd",     "mi",     {Por(0.00062137), Por(0.9144)}},

        {"BTU",    "cal",    {Por(251.996)}},
        {"BTU",    "kJ",     {Por(1.055056)}},
        {"BTU",    "erg",    {Por(1055.056), Por(10000000)}},
        {"cal",    "BTU",    {Entre(251.996)}},
        {"cal",    "kJ",     {Por(0.0041869)}},
        {"cal",    "erg",    {Por(4.1869), Por(10000000)}},
        {"kJ",     "BTU",    {Entre(1.055056)}},
        {"kJ",     "cal",    {Por(1000), Entre(4.1869)}},
        {"kJ",     "erg",    {Por(10000000000)}},
        {"erg",    "BTU",    {Entre(1055.056), Entre(10000000)}},
        {"erg",    "cal",    {Entre(4.1869), Entre(10000000)}},
        {"erg",    "kJ",     {Entre(10000000000)}},

        {"kW",     "BTU/h",  {Por(3600), Por(1000), Entre(1055.056)}},
        {"kW",     "hp",     {Entre(0.7457)}},
        {"BTU/h",  "kW",     {Entre(3600), Entre(1000), Por(1055.056)}},
        {"BTU/h",  "hp",     {Entre(3600), Entre(1000), Por(1055.056), Entre(0.7457)}},
        {"hp",     "kW",     {Por(0.7457)}},
        {"hp",     "BTU/h",  {Por(3600), Por(1000), Entre(1055.056), Por(0.7457)}},

        {"psi",    "atm",    {Entre(14.696)}},
        {"psi",    "bar",    {Por(0.0689473326)}},
        {"psi",    "kPa",    {Por(6.89473326)}},
        {"atm",    "psi",    {Por(14.696)}},
        {"atm",    "bar",    {Por(1.01325)}},
        {"atm",    "kPa",    {Por(101.325)}},
        {"bar",    "psi",    {Entre(0.0689473326)}},
        {"bar",    "atm",    {Entre(1.01325)}},
        {"bar",    "kPa",    {Por(100)}},
        {"kPa",    "psi",    {Entre(6.89473326)}},
        {"kPa",    "atm",    {Entre(101.325)}},
        {"kPa",    "bar",    {Entre(100)}},

        {"°R",     "°F",     {Menos(459.67)}},
        {"°R",     "°C",     {Menos(491.67), Por(5), Entre(9)}},
        {"°R",     "K",      {Por(5), Entre(9)}},
        {"°F",     "°R",     {Mas(459.67)}},
        {"°F",     "°C",     {Menos(32), Por(5), Entre(9)}},
        {"°F",     "K",      {Mas(459.67), Por(5), Entre(9)}},
        {"°C",     "°R",     {Mas(273.15), Por(9), Entre(5)}},
        {"°C",     "°F",     {Por(9), Entre(5), Mas(32)}},
        {"°C",     "K",      {Mas(273.15)}},
        {"K",      "°R",     {Por(9), Entre(5)}},
        {"K",      "°F",     {Por(9), Entre(5), Menos(459.67)}},
        {"K",      "°C",     {Menos(273.15)}},

        {"L",      "gal",    {Entre(3.78541)}},
        {"L",      "pie³",   {Entre(28.316846592)}},
        {"L",      "m³",     {Por(0.001)}},
        {"gal",    "L",      {Por(3.78541)}},
        {"gal",    "pie³",   {Por(3.78541), Entre(28.3168)}},
        {"gal",    "m³",     {Por(3.78541), Por(0.001)}},
        {"pie³",   "L",      {Por(28.316846592)}},
        {"pie³",   "gal",    {Entre(3.78541), Por(28.3168)}},
        {"pie³",   "m³",     {Por(0.028316846592)}},
        {"m³",     "L",      {Por(1000)}},
        {"m³",     "gal",    {Entre(3.78541), Por(1000)}},
        {"m³",     "pie³",   {Entre(0.028316846592)}},

        {"seg",    "min",    {Entre(60)}},
        {"seg",    "h",      {Entre(3600)}},
        {"seg",    "días",   {Desborda()}},
        {"min",    "seg",    {Por(60)}},
        {"min",    "h",      {Entre(60)}},
        {"min",    "días",   {Entre(1440)}},
        {"h",      "seg",    {Por(60), Por(60)}},
        {"h",      "min",    {Por(60)}},
        {"h",      "días",   {Entre(24)}},
        {"días",   "seg",    {Por(24), Por(60), Por(60)}},
        {"días",   "min",    {Por(24), Por(60)}},
        {"días",   "h",      {Por(24)}},

        {"m³/h",   "pie³/h", {Por(35.31466672)}},
        {"pie³/h", "m³/h",   {Entre(35.31466672)}},

        {"mi/h",   "km/h",   {Entre(0.62137)}},
        {"mi/h",   "yd/h",   {Entre(0.00062137), Entre(0.9144)}},
        {"mi/h",   "m/s",    {Entre(0.00062137), Entre(3600)}},
        {"km/h",   "mi/h",   {Por(0.62137)}},
        {"km/h",   "yd/h",   {Entre(0.9144), Por(1000)}},
        {"km/h",   "m/s",    {Por(1000), Entre(3600)}},
        {"yd/h",   "mi/h",   {Por(0.00062137), Por(0.9144)}},
        {"yd/h",   "km/h",   {Por(0.9144), Entre(1000)}},
        {"yd/h",   "m/s",    {Por(0.9144), Entre(3600)}},
        {"m/s",    "mi/h",   {Por(0.00062137), Por(3600)}},
        {"m/s",    "km/h",   {Entre(1000), Por(3600)}},
        {"m/s",    "yd/h",   {Entre(0.9144), Por(3600)}},

        {"cm²",    "m²",     {EntreCuadrado(100)}},
        {"cm²",    "pulg²",  {EntreCuadrado(2.54)}},
        {"cm²",    "pie²",   {EntreCuadrado(30.48)}},
        {"cm²",    "ha",     {EntreCuadrado(100), Entre(10000)}},
        {"cm²",    "acre",   {EntreCuadrado(100), Entre(4046.856)}},
        {"m²",     "cm²",    {PorCuadrado(100)}},
        {"m²",     "pulg²",  {EntreCuadrado(0.0254)}},
        {"m²",     "pie²",   {EntreCuadrado(0.3048)}},
        {"m²",     "ha",     {Entre(10000)}},
        {"m²",     "acre",   {Entre(4046.856)}},
        {"pulg²",  "cm²",    {PorCuadrado(2.54)}},
        {"pulg²",  "m²",     {PorCuadrado(0.0254)}},
        {"pulg²",  "pie²",   {EntreCuadrado(12)}},
        {"pulg²",  "ha",     {PorCuadrado(0.0254), Entre(10000)}},
        {"pulg²",  "acre",   {PorCuadrado(0.0254), Entre(4046.856)}},
        {"pie²",   "cm²",    {PorCuadrado(30.48)}},
        {"pie²",   "m²",     {PorCuadrado(0.3048)}},
        {"pie²",   "pulg²",  {PorCuadrado(12)}},
        {"pie²",   "ha",     {PorCuadrado(0.3048), Entre(10000)}},
        {"pie²",   "acre",   {PorCuadrado(0.3048), Entre(4046.856)}},
        {"ha",     "cm²",    {PorCuadrado(100), Por(10000)}},
        {"ha",     "m²",     {Por(10000)}},
        {"ha",     "pulg²",  {EntreCuadrado(0.0254), Por(10000)}},
        {"ha",     "pie²",   {EntreCuadrado(0.3048), Por(10000)}},
        {"ha",     "acre",   {Por(10000), Entre(4046.856)}},
        {"acre",   "cm²",    {PorCuadrado(100), Por(4046.856)}},
        {"acre",   "m²",     {Por(4046.856)}},
        {"acre",   "pulg²",  {EntreCuadrado(0.0254), Por(4046.856)}},
        {"acre",   "pie²",   {EntreCuadrado(0.3048), Por(4046.856)}},
        {"acre",   "ha",     {Por(10000), Entre(4046.856)}},

        {"N",      "dina",   {Por(100000)}},
        {"N",      "lbf",    {Entre(4.4482205)}},
        {"N",      "kgf",    {Entre(9.806652)}},
        {"dina",   "N",      {Entre(100000)}},
        {"dina",   "lbf",    {Entre(4.4482205), Entre(100000)}},
        {"dina",   "kgf",    {Entre(9.806652), Entre(100000)}},
        {"lbf",    "N",      {Por(4.4482205)}},
        {"lbf",    "dina",   {Por(4.4482205), Por(100000)}},
        {"lbf",    "kgf",    {Por(4.4482205), Entre(9.806652)}},
        {"kgf",    "N",      {Por(9.806652)}},
        {"kgf",    "dina",   {Por(9.806652), Por(100000)}},
        {"kgf",    "lbf",    {Entre(4.4482205), Por(9.806652)}},

        {"oz",     "g",      {Por(453.5924), Entre(16)}},
        {"oz",     "kg",     {Por(453.5924), Entre(16), Entre(1000)}},
        {"oz",     "lb",     {Entre(16)}},
        {"oz",     "ton",    {Por(453.5924), Entre(16), Entre(1000), Entre(1016.05)}},
        {"g",      "oz",     {Entre(453.5924), Por(16)}},
        {"g",      "kg",     {Entre(1000)}},
        {"g",      "lb",     {Entre(453.5924)}},
        {"g",      "ton",    {Entre(1000), Entre(1016.05)}},
        {"kg",     "oz",     {Entre(453.5924), Por(16), Por(1000)}},
        {"kg",     "g",      {Por(1000)}},
        {"kg",     "lb",     {Entre(453.5924), Por(1000)}},
        {"kg",     "ton",    {Entre(1016.05)}},
        {"lb",     "oz",     {Por(16)}},
        {"lb",     "g",      {Por(453.5924)}},
        {"lb",     "kg",     {Por(453.5924), Entre(1000)}},
        {"lb",     "ton",    {Entre(1016.05), Por(453.5924), Por(1000)}},
        {"ton",    "oz",     {Entre(453.5924), Por(16), Por(1000), Por(1016.05)}},
        {"ton",    "g",      {Por(1000), Por(1016.05)}},
        {"ton",    "kg",     {Por(1016.05)}},
        {"ton",    "lb",     {Por(1016.05), Entre(453.5924), Entre(1000)}},
    };
    // clang-format on
}

double AplicarPaso(const PasoFormula& paso, double x) {
    if (paso.operacion == Operacion::Desbordar) {
        throw RuntimeError::DelRuntime(errores::Desbordamiento);
    }
    const double c = Potencia(paso.constante, paso.exponente);
    switch (paso.operacion) {
        case Operacion::Sumar:
            return Comprobar(x + c);
        case Operacion::Restar:
            return Comprobar(x - c);
        case Operacion::Multiplicar:
            return Comprobar(x * c);
        default:
            return Dividir(x, c);
    }
}

using Par = std::pair<std::string, std::string>;

std::map<Par, const FormulaConversion*> IndicePorPar() {
    std::map<Par, const FormulaConversion*> indice;
    for (const FormulaConversion& formula : FormulasConversion()) {
        indice.emplace(Par{formula.desde, formula.hasta}, &formula);
    }
    return indice;
}

}  // namespace

const std::vector<FormulaConversion>& FormulasConversion() {
    static const std::vector<FormulaConversion> formulas = Formulas();
    return formulas;
}

const FormulaConversion* BuscarFormula(const std::string& desde, const std::string& hasta) {
    static const std::map<Par, const FormulaConversion*> indice = IndicePorPar();
    const auto encontrada = indice.find(Par{desde, hasta});
    return encontrada == indice.end() ? nullptr : encontrada->second;
}

double AplicarFormula(const FormulaConversion& formula, double x) {
    for (const PasoFormula& paso : formula.pasos) {
        x = AplicarPaso(paso, x);
    }
    return x;
}

}  // namespace kelvora
