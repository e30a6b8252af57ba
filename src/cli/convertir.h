#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// convertir VALOR DESDE HASTA: the converted value as its default text, with the point.
int ComandoConvertir(const Argumentos& argumentos);

/// unidades [FAMILIA]: the families, or the units of one family with their names.
int ComandoUnidades(const Argumentos& argumentos);

}  // namespace kelvora::cli
