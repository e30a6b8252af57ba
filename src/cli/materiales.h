#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// Lists table Emisividad as the material list shows it, every row but code 0.
int ComandoMateriales(const Argumentos& argumentos);
/// Prints the row of table Tubos of a nominal diameter; error 1005 when there is none.
int ComandoTubo(const Argumentos& argumentos);

}  // namespace kelvora::cli
