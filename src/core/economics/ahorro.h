#pragma once

#include <vector>

namespace kelvora {

/// The inputs of the yearly saving, in the calculation's units.
struct DatosAhorro {
    /// Heat loss without (QSD) and with (QSA) insulation, per orientation, in BTU per hour and
    /// pie² (flat) or pie of pipe.
    std::vector<double> QSD;
    std::vector<double> QSA;
    /// Area in pie² or length in pie, per orientation.
    std::vector<double> dimensiones;
    double horas = 0;
    /// Money per fuel unit.
    double valor = 0;
    /// BTU per fuel unit.
    double poder = 0;
    /// Percent, as the window keeps it.
    float eficiencia = 0;
    /// Orientations in the order their savings are added up.
    std::vector<int> ordenTotal;
};

/// The yearly fuel and money of each orientation, and the totals.
struct Ahorro {
    std::vector<double> combustible;
    std::vector<double> ahorro;
    double total = 0;
    /// Fuel cost per year without and with insulation.
    double CostoTotalSD = 0;
    double CostoTotalSA = 0;
};

/// Fuel saved per orientation ((QSD − QSA) · dimension · hours / calorific value, over the
/// efficiency), its money, their total and the two yearly costs, with the runtime's errors
/// (a calorific value or an efficiency of 0 raises division by zero).
Ahorro CalcularMontos(const DatosAhorro& datos);

}  // namespace kelvora
