#pragma once

#include <string>

namespace kelvora {

/// The analysis a product code belongs to.
enum class Analisis { SP, SC, SPFrio, SCFrio };

/// One row of the product catalogue: name, analysis, service limit in °F and the coefficients of
/// k = a · exp(b · Tm).
struct Producto {
    const char* nombre;
    Analisis analisis;
    double limite;
    double a;
    double b;
};

inline constexpr int kPrimerProducto = 1;
inline constexpr int kUltimoProducto = 14;

/// The catalogue row of a product code 1 to 14; nullptr for any other code.
const Producto* BuscarProducto(int codigo);

/// The product's name, with the suffix of its analysis when conAnalisis; empty for an unknown
/// code.
std::string NombreProducto(int codigo, bool conAnalisis);

/// Maximum operating temperature in °F; 0 for an unknown code.
double TemperaturaMaximaProducto(int codigo);

/// k in BTU plg/pie² h °F at the mean temperature Tm in °F; 0 for an unknown code.
double ConductividadTermica(int codigo, double Tm);

}  // namespace kelvora
