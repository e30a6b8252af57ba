#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// calcular ARCHIVO.adk... [--json] [--sin-bd]: opens each data file as the program does and
/// presses "C&alcular"; prints the results listing, or one JSON object per file.
int ComandoCalcular(const Argumentos& argumentos);

}  // namespace kelvora::cli
