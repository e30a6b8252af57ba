#include "core/economics/combustibles.h"

#include <array>
#include <utility>

namespace kelvora {

namespace {

// Exact entries of the hours list first; then the label of the range each value falls in.
// clang-format off
constexpr std::array<std::pair<int32_t, const char*>, 9> kCiclosExactos = {{
    {876,  "Ciclo de Operación = 10%"},
    {1752, "Ciclo de Operación = 20%"},
    {2628, "Ciclo de Operación = 30%"},
    {3480, "Ciclo de Operación = 40%"},
    {5256, "Ciclo de Operación = 50%"},
    {6132, "Ciclo de Operación = 60%"},
    {7008, "Ciclo de Operación = 70%"},
    {7884, "Ciclo de Operación = 80%"},
    {8760, "Ciclo de Operación = 100%"},
}};

constexpr std::array<std::pair<int32_t, const char*>, 9> kCiclosMenores = {{
    {876,  "Ciclo de Operación < 10%"},
    {1752, "Ciclo de Operación entre 10% y 20%"},
    {2628, "Ciclo de Operación entre 20% y 30%"},
    {3480, "Ciclo de Operación entre 30% y 40%"},
    {5256, "Ciclo de Operación entre 40% y 50%"},
    {6132, "Ciclo de Operación entre 50% y 60%"},
    {7008, "Ciclo de Operación entre 60% y 70%"},
    {7884, "Ciclo de Operación entre 70% y 80%"},
    {8760, "Ciclo de Operación entre 80% y 100%"},
}};
// clang-format on

}  // namespace

// The electricity row keeps 0.000293, which is kW h per BTU although its label says the
// opposite; the calculation divides by it all the same.
const std::vector<Combustible>& TablaCombustibles() {
    // clang-format off
    static const std::vector<Combustible> tabla = {
        {"Carbón",            26455,    "kg",                      "BTU/kg",                  "kilogramo",             false},
        {"ACPM",              138500,   "galón",                   "BTU/gal",                 "galón",                 false},
        {"Crudo",             150000,   "galón",                   "BTU/gal",                 "galón",                 false},
        {"Fuel Oil",          150000,   "galón",                   "BTU/gal",                 "galón",                 false},
        {"Gas natural",       1000,     "pie³",                    "BTU/pie³",                "pie³",                  false},
        {"Energia eléctrica", 0.000293, "kW h",                    "BTU/kW h",                "kilovatio-hora",        false},
        {"Propano",           91690,    "galón",                   "BTU/gal",                 "galón",                 false},
        {"Otro",              0,        "unid. de volumen ó peso", "unid. de volumen ó peso", "unidad de volumen/peso", true },
    };
    // clang-format on
    return tabla;
}

const std::vector<std::string>& HorasTrabajadas() {
    static const std::vector<std::string> horas = {"876",  "1752", "2628", "3480", "5256",
                                                   "6132", "7008", "7884", "8760"};
    return horas;
}

const std::vector<std::string>& Monedas() {
    static const std::vector<std::string> monedas = {"Pesos", "Dolares", "Euros"};
    return monedas;
}

std::string CicloOperacion(int32_t horas) {
    for (const auto& [valor, texto] : kCiclosExactos) {
        if (horas == valor) {
            return texto;
        }
    }
    for (const auto& [limite, texto] : kCiclosMenores) {
        if (horas < limite) {
            return texto;
        }
    }
    return "Ciclo de Operación > 100%";
}

std::string EtiquetaValor(const Combustible& combustible) {
    return std::string("Valor del co&mbustible por ") + combustible.precioPor + ":";
}

std::string EtiquetaPoder(const Combustible& combustible) {
    return std::string("&Poder Calorífico (") + combustible.unidadPoder + "):";
}

}  // namespace kelvora
