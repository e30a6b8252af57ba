#pragma once

#include "core/app/contexto.h"
#include "core/platform/prompter.h"
#include "core/platform/settingsstore.h"

#include <functional>
#include <string>

namespace kelvora {

/// What opening and saving files need from the program: the context (its Unidades, folders
/// and options), the message boxes, and the settings that hold the recent files.
struct EntornoArchivos {
    ContextoAplicacion& contexto;
    Prompter& prompter;
    SettingsStore& ajustes;
    /// Puts a file at the head of the recent files. Left empty, the list in `ajustes` is
    /// updated; the frame gives its own, which also rebuilds its menu.
    std::function<void(const std::string& nombre)> AgregarReciente = {};
};

}  // namespace kelvora
