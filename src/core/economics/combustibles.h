#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kelvora {

/// One entry of the fuel list of the economic windows.
struct Combustible {
    const char* nombre;
    /// BTU per fuel unit, written into the calorific box; "Otro" has it typed.
    double poderCalorifico;
    /// What the price is given per, in the caption of the price box.
    const char* precioPor;
    /// The calorific unit, in the caption of the calorific box.
    const char* unidadPoder;
    /// The word of the price box's hint.
    const char* palabra;
    /// "Otro": name and calorific value are typed.
    bool escrito;
};

/// The fuels in list order; the last one, "Otro", is typed by the user.
const std::vector<Combustible>& TablaCombustibles();

/// Entries of the hours list: multiples of 876, but 3480 in fourth place and no 4380.
const std::vector<std::string>& HorasTrabajadas();

/// The currencies of the price's unit list, by name.
const std::vector<std::string>& Monedas();

/// Text of the status label for the hours worked per year.
std::string CicloOperacion(int32_t horas);

/// Caption of the price box for a fuel: "Valor del co&mbustible por kg:".
std::string EtiquetaValor(const Combustible& combustible);
/// Caption of the calorific box for a fuel: "&Poder Calorífico (BTU/kg):".
std::string EtiquetaPoder(const Combustible& combustible);

}  // namespace kelvora
