#include "core/entry/filtroteclas.h"

#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"

#include <algorithm>

namespace kelvora {

namespace {

// The box as an edit control holds it: characters, caret and selection.
struct Edicion {
    std::u32string texto;
    int caret = 0;
    int seleccion = 0;

    int Largo() const { return static_cast<int>(texto.size()); }
    bool Contiene(char32_t c) const { return texto.find(c) != std::u32string::npos; }
    void Reemplazar(std::u32string nuevo, int nuevoCaret) {
        texto = std::move(nuevo);
        caret = nuevoCaret;
        seleccion = 0;
    }
};

bool EsDigito(int tecla) {
    return tecla >= '0' && tecla <= '9';
}

bool MenosAdmitido(const CampoEntrada& campo, const Edicion& caja, const std::string& unidad) {
    return campo.aceptaMenos && !IgualTexto(unidad, "K") && caja.caret == 0 && !caja.Contiene(U'-');
}

// A comma becomes a point; an empty box or a lone minus first gets its zero.
int TeclaPunto(const CampoEntrada& campo, Edicion& caja) {
    int tecla = campo.codigo ? 0 : '.';
    if (caja.texto.empty()) {
        caja.Reemplazar(U"0", 1);
    }
    if (caja.texto == U"-") {
        caja.Reemplazar(U"-0", 2);
    }
    if (caja.Contiene(U'.')) {
        tecla = 0;
    }
    return tecla;
}

void Borrar(Edicion& caja) {
    if (caja.seleccion == 0 && caja.caret > 0) {
        --caja.caret;
        caja.seleccion = 1;
    }
    caja.texto.erase(static_cast<size_t>(caja.caret), static_cast<size_t>(caja.seleccion));
    caja.seleccion = 0;
}

// The edit control takes a character over its selection while the maximum length allows.
void Insertar(Edicion& caja, char32_t caracter, int maxLength) {
    if (caja.Largo() - caja.seleccion >= maxLength) {
        return;
    }
    caja.texto.replace(static_cast<size_t>(caja.caret), static_cast<size_t>(caja.seleccion), 1,
                       caracter);
    ++caja.caret;
    caja.seleccion = 0;
}

void TomarTecla(const CampoEntrada& campo, Edicion& caja, int tecla) {
    if (tecla == 0 || campo.soloLectura) {
        return;
    }
    if (tecla == kTeclaRetroceso) {
        Borrar(caja);
    } else {
        Insertar(caja, static_cast<char32_t>(tecla), campo.maxLength);
    }
}

}  // namespace

ResultadoTecla FiltrarTecla(const DescripcionEntrada& ventana, int indice, int KeyAscii,
                            const std::string& texto, int caret, const std::string& unidad,
                            int seleccion) {
    const CampoEntrada& campo = ventana.Campo(indice);
    Edicion caja{Caracteres(texto)};
    caja.caret = std::clamp(caret, 0, caja.Largo());
    caja.seleccion = std::clamp(seleccion, 0, caja.Largo() - caja.caret);
    ResultadoTecla resultado;
    int tecla = KeyAscii;
    if (tecla == '-') {
        tecla = MenosAdmitido(campo, caja, unidad) ? tecla : 0;
    } else if (tecla == '.' || tecla == ',') {
        tecla = TeclaPunto(campo, caja);
    } else if (!EsDigito(tecla) && tecla != kTeclaRetroceso) {
        if (tecla == kTeclaEnter && IsNumeric(texto)) {
            resultado.tabs = campo.codigo ? 2 : 1;
        }
        tecla = 0;
    }
    TomarTecla(campo, caja, tecla);
    resultado.KeyAscii = tecla;
    resultado.texto = Utf8(caja.texto);
    resultado.caret = caja.caret;
    return resultado;
}

}  // namespace kelvora
