#pragma once

#include <QString>

class QWidget;

namespace kelvora {

/// How a child window of the frame tells what it can do. It sets these dynamic Qt properties
/// on itself (the widget placed in the frame with mdiKelvora::AgregarHija):
///
///  - "Tag" (QString): "0" while its data are incomplete, else its kind, "1" to "16";
///  - "FileName" (QString): the file it belongs to, empty for a new project;
///  - "FileState" (int): 0 incomplete, 1 as read, 2 changed since, 3 as saved.
///
/// `setProperty("Tag", ...)` is all it takes: the frame watches the change and brings its
/// menus and toolbar into line. A data entry window (objectName starting "frmDatosEntrada")
/// also declares `Q_INVOKABLE void Activar();`, which the frame calls when the emissivity
/// option changes.
///
/// A child unloads itself with its own `close()` (a "Cerrar" or "Cancelar" button, Escape, a
/// failed calculation): the frame then removes its sub-window too.
inline constexpr char kPropiedadTag[] = "Tag";
inline constexpr char kPropiedadFileName[] = "FileName";
inline constexpr char kPropiedadFileState[] = "FileState";

QString TagDe(const QWidget* ventana);
QString FileNameDe(const QWidget* ventana);
int FileStateDe(const QWidget* ventana);

}  // namespace kelvora
