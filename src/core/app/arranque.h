#pragma once

#include "core/app/contexto.h"
#include "core/platform/prompter.h"
#include "core/platform/settingsstore.h"

#include <string>

namespace kelvora {

/// The file named on the command line: quotes removed, blanks and line ends trimmed.
std::string ArchivoDeLineaComandos(const std::string& lineaComandos);

/// The start-up steps that need no window: paths, the data folder, the database probe,
/// options and colours. Returns false when the process must end without going on.
bool IniciarContexto(ContextoAplicacion& contexto, const std::string& carpetaEjecutable,
                     SettingsStore& ajustes, const ColoresSistema& sistema, Prompter& prompter);

}  // namespace kelvora
