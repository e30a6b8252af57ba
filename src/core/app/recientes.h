#pragma once

#include "core/app/contexto.h"
#include "core/platform/settingsstore.h"

#include <functional>
#include <string>
#include <vector>

namespace kelvora {

/// One entry of the recent files list in the File menu.
struct EntradaReciente {
    std::string titulo;
    std::string archivo;
};

/// Puts a file at the head of the recent list in the settings store, with the list's own
/// arithmetic: a new name shifts entries 1 to n-1 down (so the old entry n is lost while the
/// list is shorter than five), a known name swaps places with entry 1, and the count grows
/// by one either way, up to five.
void AgregarArchivoReciente(SettingsStore& ajustes, const std::string& nombre);

/// The menu entries of the recent list: "&1. path" and so on, skipping empty entries and
/// files that no longer exist.
std::vector<EntradaReciente> ActualizarRecientes(
        SettingsStore& ajustes,
        const std::function<bool(const std::string&)>& existe = ArchivoExiste);

/// A path shortened for the menu: root and first folder, "...", and the file name; at most
/// 80 characters.
std::string AcortarRuta(const std::string& ruta);

}  // namespace kelvora
