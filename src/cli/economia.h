#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// economia ARCHIVO.adk [--areas A,B,C | --longitudes A,B] [--unidad U] [--horas H]
/// [--combustible NOMBRE] [--nombre N] [--poder P] [--valor V] [--moneda M] [--eficiencia E]
/// [--json] [--sin-bd]: calculates the file as `calcular` does, hands its results to the
/// economic window, fills it, presses "C&alcular" and prints the result boxes and the costs.
Ejecucion DeclararEconomia(CLI::App& comando);

}  // namespace kelvora::cli
