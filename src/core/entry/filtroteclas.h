#pragma once

#include "core/entry/descripcionentrada.h"

#include <string>

namespace kelvora {

inline constexpr int kTeclaRetroceso = 8;
inline constexpr int kTeclaEnter = 13;

/// What a key pressed in a box becomes.
struct ResultadoTecla {
    /// The key after the filter; 0 when it was discarded.
    int KeyAscii = 0;
    /// The box's text and caret after the key (and after the box took it, when it passed).
    std::string texto;
    int caret = 0;
    /// {TAB}s to send: 1, or 2 from a code box, after Enter on a numeric text.
    int tabs = 0;
};

/// `txtValor_KeyPress` of box `indice` of a window: the key filter, then what the box does with
/// the key that passes (insertion at the caret over the selection, within the maximum length,
/// not in a read-only box; Backspace deletes). `unidad` is the text of the box's list.
ResultadoTecla FiltrarTecla(const DescripcionEntrada& ventana, int indice, int KeyAscii,
                            const std::string& texto, int caret, const std::string& unidad,
                            int seleccion = 0);

}  // namespace kelvora
