#include "core/app/opciones.h"

#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"

#include <functional>
#include <vector>

namespace kelvora {

namespace {

struct Clave {
    const char* seccion;
    const char* nombre;
    const char* predeterminado;
    std::function<void(ContextoAplicacion&, const std::string&)> leer;
    std::function<std::string(const ContextoAplicacion&)> escribir;
};

bool LeerBandera(const std::string& texto) {
    return Val(texto) != 0;
}

int32_t LeerEntero(const std::string& texto) {
    try {
        return CLng(Val(texto));
    } catch (const RuntimeError&) {
        return 0;
    }
}

float LeerFlotante(const std::string& texto) {
    try {
        return CSng(Val(texto));
    } catch (const RuntimeError&) {
        return 0;
    }
}

std::string EscribirBandera(bool valor) {
    return valor ? "1" : "0";
}
std::string EscribirEntero(int32_t valor) {
    return std::to_string(valor);
}
std::string EscribirFlotante(float valor) {
    return TextoNumero(valor);
}
std::string Identidad(const std::string& texto) {
    return texto;
}

// A key whose variable is reached by `campo` (a generic accessor), read and written by the
// given conversions.
template <typename Campo, typename Leer, typename Escribir>
Clave HacerClave(const char* seccion, const char* nombre, const char* predeterminado, Campo campo,
                 Leer leer, Escribir escribir) {
    return {seccion, nombre, predeterminado,
            [=](ContextoAplicacion& c, const std::string& t) { campo(c) = leer(t); },
            [=](const ContextoAplicacion& c) { return escribir(campo(c)); }};
}

template <typename Campo>
Clave Bandera(const char* seccion, const char* nombre, const char* predeterminado, Campo campo) {
    return HacerClave(seccion, nombre, predeterminado, campo, LeerBandera, EscribirBandera);
}

template <typename Campo>
Clave Entero(const char* nombre, const char* predeterminado, Campo campo) {
    return HacerClave("ConfigurarPagina", nombre, predeterminado, campo, LeerEntero,
                      EscribirEntero);
}

template <typename Campo>
Clave Flotante(const char* nombre, const char* predeterminado, Campo campo) {
    return HacerClave("ConfigurarPagina", nombre, predeterminado, campo, LeerFlotante,
                      EscribirFlotante);
}

// The fourteen keys in the order they are read and written.
const std::vector<Clave>& Claves() {
    static const std::vector<Clave> claves = {
            Bandera(
                    "Opciones", "ConversionAutomatica", "0",
                    [](auto& c) -> auto& { return c.ConversionAutomatica; }),
            Bandera(
                    "Opciones", "PreguntarAntesDeCerrarVentana", "1",
                    [](auto& c) -> auto& { return c.PreguntarAntesDeCerrarVentana; }),
            Bandera(
                    "Opciones", "LeerEmisividadBD", "1",
                    [](auto& c) -> auto& { return c.LeerEmisividadBD; }),
            Entero(
                    "Orientacion", "1", [](auto& c) -> auto& { return c.Pagina.Orientacion; }),
            Entero(
                    "Justificar", "2", [](auto& c) -> auto& { return c.Pagina.Justificar; }),
            Flotante(
                    "Derecho", "15", [](auto& c) -> auto& { return c.Pagina.MargenDerecho; }),
            Flotante(
                    "Izquierdo", "15", [](auto& c) -> auto& { return c.Pagina.MargenIzquierdo; }),
            Flotante(
                    "Superior", "15", [](auto& c) -> auto& { return c.Pagina.MargenSuperior; }),
            Flotante(
                    "Inferior", "15", [](auto& c) -> auto& { return c.Pagina.MargenInferior; }),
            Entero(
                    "Tamaño", "1", [](auto& c) -> auto& { return c.Pagina.TamanoPapel; }),
            HacerClave(
                    "ConfigurarPagina", "Fuente.Nombre", "Courier New",
                    [](auto& c) -> auto& { return c.Pagina.FuenteNombre; }, Identidad, Identidad),
            Bandera(
                    "ConfigurarPagina", "Fuente.Negrita", "0",
                    [](auto& c) -> auto& { return c.Pagina.FuenteNegrita; }),
            Bandera(
                    "ConfigurarPagina", "Fuente.Cursiva", "0",
                    [](auto& c) -> auto& { return c.Pagina.FuenteCursiva; }),
            Flotante(
                    "Fuente.Tamaño", "10", [](auto& c) -> auto& { return c.Pagina.FuenteTamano; }),
    };
    return claves;
}

}  // namespace

void LeerOpciones(ContextoAplicacion& contexto, SettingsStore& ajustes) {
    for (const Clave& clave : Claves()) {
        clave.leer(contexto, ajustes.GetSetting(kTituloAplicacion, clave.seccion, clave.nombre,
                                                clave.predeterminado));
    }
}

void GuardarOpciones(const ContextoAplicacion& contexto, SettingsStore& ajustes) {
    for (const Clave& clave : Claves()) {
        ajustes.SaveSetting(kTituloAplicacion, clave.seccion, clave.nombre,
                            clave.escribir(contexto));
    }
}

}  // namespace kelvora
