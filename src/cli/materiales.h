#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// Lists table Emisividad as the material list shows it, every row but code 0.
Ejecucion DeclararMateriales(CLI::App& comando);
/// Prints the row of table Tubos of a nominal diameter; error 1005 when there is none.
Ejecucion DeclararTubo(CLI::App& comando);

}  // namespace kelvora::cli
