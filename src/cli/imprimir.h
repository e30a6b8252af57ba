#pragma once

#include "cli/comandos.h"

namespace kelvora::cli {

/// imprimir ARCHIVO.adk --tipo resultados|grafica [--grafica 1|2] (--pdf SALIDA.pdf |
/// --registro) [page settings]: the document of a window of the project laid out as the program
/// prints it, into a PDF file, or as a record of every drawing call with fixed metrics.
Ejecucion DeclararImprimir(CLI::App& comando);

}  // namespace kelvora::cli
