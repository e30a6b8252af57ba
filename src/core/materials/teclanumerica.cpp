#include "core/materials/teclanumerica.h"

#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"

#include <algorithm>

namespace kelvora {

namespace {

// The box as the edit control holds it.
struct Caja {
    std::u32string texto;
    int caret = 0;
    int seleccion = 0;

    bool Contiene(char32_t c) const { return texto.find(c) != std::u32string::npos; }
};

void Insertar(Caja& caja, char32_t c) {
    caja.texto.replace(static_cast<size_t>(caja.caret), static_cast<size_t>(caja.seleccion), 1, c);
    ++caja.caret;
    caja.seleccion = 0;
}

void Retroceder(Caja& caja) {
    if (caja.seleccion == 0 && caja.caret > 0) {
        --caja.caret;
        caja.seleccion = 1;
    }
    caja.texto.erase(static_cast<size_t>(caja.caret), static_cast<size_t>(caja.seleccion));
    caja.seleccion = 0;
}

void Punto(Caja& caja) {
    if (caja.texto.empty() || caja.texto == U"-") {
        caja.texto += U'0';
        caja.caret = static_cast<int>(caja.texto.size());
        caja.seleccion = 0;
    }
    if (!caja.Contiene(U'.')) {
        Insertar(caja, U'.');
    }
}

void Menos(Caja& caja, bool aceptaMenos) {
    if (aceptaMenos && caja.caret == 0 && !caja.Contiene(U'-')) {
        Insertar(caja, U'-');
    }
}

}  // namespace

ResultadoTeclaNumerica FiltrarTeclaNumerica(const std::string& texto, int caret, int seleccion,
                                            int KeyAscii, bool aceptaMenos) {
    Caja caja{Caracteres(texto)};
    const int largo = static_cast<int>(caja.texto.size());
    caja.caret = std::clamp(caret, 0, largo);
    caja.seleccion = std::clamp(seleccion, 0, largo - caja.caret);
    ResultadoTeclaNumerica resultado;
    if (KeyAscii >= '0' && KeyAscii <= '9') {
        Insertar(caja, static_cast<char32_t>(KeyAscii));
    } else if (KeyAscii == '.' || KeyAscii == ',') {
        Punto(caja);
    } else if (KeyAscii == '-') {
        Menos(caja, aceptaMenos);
    } else if (KeyAscii == kAsciiRetroceso) {
        Retroceder(caja);
    } else if (KeyAscii == kAsciiEnter) {
        resultado.tab = IsNumeric(texto);
    }
    resultado.texto = Utf8(caja.texto);
    resultado.caret = caja.caret;
    return resultado;
}

}  // namespace kelvora
