#pragma once

#include "core/comparacion/comparacion.h"
#include "core/reports/grilla.h"

#include <string>

namespace kelvora {

class ModeloEconomico;
class ModeloEntrada;

/// The window kind of a comparison, for saving and printing: its grid is printed as it stands.
inline constexpr const char* kTagComparacion = "17";

/// The title of a comparison of an analysis: "Comparación de Productos - Superficies Planas
/// (Calor)".
std::string TituloComparacion(Analisis analisis);

/// The comparison as a report grid: the company, the title, the duty as the entry window holds
/// it, the units, a row of column heads, then each product with one row per position. A product
/// out of service says so in its row, a failed one carries the routine's message as a long
/// text. With `economia`, two columns more: fuel and money saved in a year.
Grilla GrillaComparacion(const Comparacion& comparacion, const ModeloEntrada& ventana,
                         const ModeloEconomico* economia = nullptr);

}  // namespace kelvora
