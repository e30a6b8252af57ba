#pragma once

#include <optional>
#include <string>

namespace kelvora {

/// How the Open or Save dialog is set up.
struct OpcionesDialogo {
    /// Pairs of description and pattern separated by "|", the first one active.
    std::string filtro;
    /// Added to a name typed without one; empty for none.
    std::string extension;
    std::string carpetaInicial;
};

/// The Open and Save dialogs. Opening asks for an existing file; saving asks before it
/// overwrites one.
class DialogosArchivo {
public:
    virtual ~DialogosArchivo() = default;

    /// The chosen name, or nullopt when the dialog was cancelled.
    virtual std::optional<std::string> Abrir(const OpcionesDialogo& opciones) = 0;
    virtual std::optional<std::string> Guardar(const OpcionesDialogo& opciones) = 0;
};

}  // namespace kelvora
