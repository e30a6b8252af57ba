#pragma once

#include "core/app/contexto.h"
#include "core/platform/prompter.h"
#include "core/platform/settingsstore.h"

namespace kelvora {

/// What opening and saving files need from the program: the context (its Unidades, folders
/// and options), the message boxes, and the settings that hold the recent files.
struct EntornoArchivos {
    ContextoAplicacion& contexto;
    Prompter& prompter;
    SettingsStore& ajustes;
};

}  // namespace kelvora
