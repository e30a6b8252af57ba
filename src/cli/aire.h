#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// aire --seco T (--humedad HR | --bulbo-humedo T | --rocio T) [--altitud A | --presion P]
/// [--unidad-temperatura U] [--unidad-altitud U] [--unidad-presion U] [--unidad-razon U]
/// [--unidad-entalpia U] [--json]: the moist-air window's calculation; prints every property
/// of the air, or one JSON object, or the message of the value at fault.
Ejecucion DeclararAire(CLI::App& comando);

}  // namespace kelvora::cli
