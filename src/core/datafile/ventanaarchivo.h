#pragma once

#include "core/reports/grilla.h"
#include "core/units/unidades.h"

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvora {

/// A window as opening and saving see it: its public members read by name. A window overrides
/// what its kind has; the rest keeps the empty defaults.
class VentanaArchivo {
public:
    virtual ~VentanaArchivo() = default;

    /// "0" while the window has nothing to save, else its kind, "1" to "16".
    virtual std::string Tag() const = 0;
    virtual std::string Caption() const = 0;
    /// The file the window belongs to; empty for a new project.
    virtual std::string FileName() const = 0;
    virtual void SetFileName(const std::string& nombre) = 0;
    /// 0 incomplete, 1 as read from a file, 2 changed since, 3 as saved.
    virtual int16_t FileState() const = 0;
    virtual void SetFileState(int16_t estado) = 0;

    /// Data entry windows: the product code and the variable list.
    virtual int16_t TipoAnalisis() const;
    virtual classUnidades* Unit();
    /// Data entry windows: puts `Unit` on the screen.
    virtual void ShowVariables();
    /// The grid that a text listing prints, with the window's caption as its Caption: a
    /// results or report window's own, an economic window's input report.
    virtual Grilla GrillaListado() const;
    /// A chart window: writes its picture as a bitmap to `archivo`, whatever its extension.
    virtual void GuardarImagen(const std::string& archivo) const;
};

/// A window's kind: the number of its Tag, 0 when it holds none.
int16_t NumeroTag(std::string_view tag);

}  // namespace kelvora
