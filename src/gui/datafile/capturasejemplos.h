#pragma once

#include <QWidget>

#include <functional>
#include <memory>

namespace kelvora {

class Clock;
class Prompter;
class SettingsStore;
struct ContextoAplicacion;

/// A frame for the pictures of the calculation windows: the program's windows, with the
/// database beside the executable and the default colours.
std::unique_ptr<QWidget> MarcoCapturas(ContextoAplicacion& contexto, SettingsStore& ajustes,
                                       Clock& reloj, Prompter& prompter);

/// The same for the environment of a picture, with the members of those names.
template <class Entorno>
std::unique_ptr<QWidget> MarcoCapturas(Entorno& e) {
    return MarcoCapturas(e.contexto, e.ajustes, e.reloj, *e.prompter);
}

/// Opens an example data file in a frame of MarcoCapturas, presses "C&alcular" when asked, and
/// gives the framed window that came up last, to be pictured.
std::function<QWidget*(QWidget&)> AbrirEjemplo(const char* archivo, bool calcular);

}  // namespace kelvora
