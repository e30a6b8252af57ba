#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// verificar ARCHIVO.adk [--longitud L] [--json] [--sin-bd]: calculates the file as `calcular`
/// does and checks each position of its result with the modern film correlations; prints the
/// verification report or one JSON object.
Ejecucion DeclararVerificar(CLI::App& comando);

}  // namespace kelvora::cli
