#pragma once

#include "core/datafile/dialogosarchivo.h"
#include "core/datafile/entornoarchivos.h"
#include "core/datafile/ventanaarchivo.h"

#include <string_view>

namespace kelvora {

/// The Save dialog for a window's kind: bitmaps for a chart (15), data files for an entry
/// window (1, 5, 9, 12), text for the rest; starting in the data folder.
OpcionesDialogo OpcionesGuardar(std::string_view tag, const std::string& RutaDatos);

/// Saves a window under its own file, or under a name asked for when it has none or when
/// `comoNuevo`. After a save the window belongs to that file (FileState 3); after a failure or
/// a cancelled dialog it is as it was. True when the file was written.
bool GuardarVentana(VentanaArchivo& ventana, bool comoNuevo, EntornoArchivos& entorno,
                    DialogosArchivo& dialogos);

/// Before a window closes: when its data changed since they were read or saved (FileState 2),
/// and it has a file or the option to ask is on, offers to save them. False when the closing
/// must stop: the user cancelled, or the save failed.
bool PreguntarGuardar(VentanaArchivo& ventana, EntornoArchivos& entorno, DialogosArchivo& dialogos);

}  // namespace kelvora
