#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// convertir VALOR DESDE HASTA: the converted value as its default text, with the point.
Ejecucion DeclararConvertir(CLI::App& comando);

/// unidades [FAMILIA]: the families, or the units of one family with their names.
Ejecucion DeclararUnidades(CLI::App& comando);

}  // namespace kelvora::cli
