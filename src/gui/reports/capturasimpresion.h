#pragma once

#include <QWidget>

#include <functional>

namespace kelvora {

class SettingsStore;
struct ContextoAplicacion;

using PrepararCaptura = std::function<QWidget*(QWidget&)>;

/// Runs `preparar` in a frame of MarcoCapturas, then writes the print of the active window as
/// docs/capturas/`nombre`.pdf, to be turned into the picture of its first page.
PrepararCaptura ImpresoEjemplo(const char* nombre, PrepararCaptura preparar);

/// Runs `preparar`, then opens the preview of the active window, to be pictured.
PrepararCaptura VistaPreliminarEjemplo(PrepararCaptura preparar);

/// The page setup window of a context, to be pictured.
std::unique_ptr<QWidget> ConfigurarPaginaCaptura(ContextoAplicacion& contexto,
                                                 SettingsStore& ajustes);

}  // namespace kelvora
