#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// comparar ARCHIVO.adk [--json] [--sin-bd] [the options of `economia`]: opens a hot project as
/// `calcular` does and calculates every product of its family for its duty; prints the
/// comparison table, or one JSON object. With economic options, each product's yearly saving.
Ejecucion DeclararComparar(CLI::App& comando);

}  // namespace kelvora::cli
