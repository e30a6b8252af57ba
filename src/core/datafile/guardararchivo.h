#pragma once

#include "core/datafile/ventanaarchivo.h"
#include "core/platform/prompter.h"
#include "core/platform/settingsstore.h"

#include <functional>
#include <string>

namespace kelvora {

/// Writes the window into the file as its Tag says: an entry window (1, 5, 9, 12) its data
/// file, which then heads the recent files; a results, report or chart table window the text
/// listing of its grid; a chart (15) its picture; any other window an empty file. The file is
/// replaced whole or not at all. False after showing the error. `agregarReciente`, when given,
/// takes the data file's name instead of the recent list in `ajustes`.
bool GuardarArchivo(VentanaArchivo& ventana, const std::string& nombre, Prompter& prompter,
                    SettingsStore& ajustes,
                    const std::function<void(const std::string&)>& agregarReciente = {});

}  // namespace kelvora
