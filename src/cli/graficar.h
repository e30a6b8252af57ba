#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// graficar ARCHIVO.adk --tipo 1|2 [--json] [--png F] [--svg F] [--sin-bd]: opens the file as
/// `calcular` does, computes the chart's series from its entry window and prints its data
/// table, or the series as JSON; draws the chart into PNG or SVG files.
Ejecucion DeclararGraficar(CLI::App& comando);

}  // namespace kelvora::cli
