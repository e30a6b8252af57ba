#pragma once

#include <iosfwd>
#include <optional>
#include <string>
#include <vector>

namespace kelvora {

class classUnidades;

/// One published case of the reference table, in the program's units: plg, °F, mi/h. The value
/// stays in its published unit.
struct CasoReferencia {
    std::string id;
    std::string fuente;
    std::string url;
    std::string geometria;
    std::string magnitud;
    std::string unidadValor;
    std::string nota;
    double D = 0;
    double TS = 0;
    double TA = 0;
    double V = 0;
    std::optional<double> emisividad;
    double valor = 0;
    /// The insulated case: thickness in plg and k in BTU plg/pie² h °F.
    double espesor = 0;
    double k = 0;
};

/// The rows of the reference table, a CSV with one heading row; a row that cannot be read is
/// refused with its line number.
std::vector<CasoReferencia> LeerCasosReferencia(std::istream& csv, const classUnidades& unidades);

/// The emissivity the modern method takes where a source states none: oxidised steel.
inline constexpr double kEmisividadSinDato = 0.9;

/// A case computed with the program's film formulas and with the modern method, both in the
/// published unit.
struct CasoValidado {
    CasoReferencia caso;
    double programa = 0;
    double moderno = 0;
    /// The source itself uses modern correlations: a textbook or a modern tool's test case.
    bool fuenteModerna = false;
};

CasoValidado ValidarCaso(const CasoReferencia& caso);

/// (valor − publicado) / publicado in percent.
double Diferencia(double valor, double publicado);

/// Why a method differs from a published value by more than 5 %; metodo is "programa" or
/// "moderno".
struct Explicacion {
    std::string id;
    std::string metodo;
    std::string texto;
};

/// The explanation table, a CSV of id, method and text with one heading row.
std::vector<Explicacion> LeerExplicaciones(std::istream& csv);

inline constexpr double kDiferenciaExplicada = 5;

/// The validation page in Markdown: the method, the table and each explained difference.
std::string PaginaValidacion(const std::vector<CasoValidado>& casos,
                             const std::vector<Explicacion>& explicaciones);

}  // namespace kelvora
