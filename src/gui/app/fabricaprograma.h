#pragma once

#include "gui/app/fabricaventanas.h"

namespace kelvora {

class Prompter;
class SettingsStore;
class mdiKelvora;
struct ContextoAplicacion;

/// The program's windows for the frame's commands: one line per window family.
FabricaVentanas CrearFabrica(mdiKelvora& principal, ContextoAplicacion& contexto,
                             SettingsStore& ajustes, Prompter& prompter);

}  // namespace kelvora
