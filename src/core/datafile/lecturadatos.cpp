#include "core/datafile/lecturadatos.h"

#include "core/app/contexto.h"
#include "core/runtime/codificacion.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

#include <algorithm>
#include <array>
#include <string>

namespace kelvora {

namespace {

constexpr int kUnidadNoExisteParaFamilia = 1002;
constexpr size_t kLargoPrefijoUnidad = 6;

// Keys in capitals: a line's key is put in capitals once and compared with these. Every number
// key that the writer puts out is read back, the two codes included.
constexpr std::array<std::string_view, 13> kClavesNumero = {
        "TEMPERATURAINTERIOR",
        "TEMPERATURASUPERFICIEAISLAMIENTO",
        "TEMPERATURAAMBIENTE",
        "TEMPERATURABULBOHUMEDO",
        "TEMPERATURAPUNTOROCIO",
        "HUMEDADRELATIVA",
        "COEFICIENTETRANSMISIONCALOR",
        "VELOCIDADAIRE",
        "DIAMETROTUBERIA",
        "CODIGOMATERIALSUPERFICIEAISLAMIENTO",
        "EMISIVIDADSUPERFICIEAISLAMIENTO",
        "CODIGOMATERIALSUPERFICIEDESNUDA",
        "EMISIVIDADSUPERFICIEDESNUDA",
};

struct ClaveUnidad {
    std::string_view clave;
    const char* familia;
};

constexpr std::array<ClaveUnidad, 7> kClavesUnidad = {{
        {"UNIDADTEMPERATURAINTERIOR", "Temperatura"},
        {"UNIDADTEMPERATURASUPERFICIEAISLAMIENTO", "Temperatura"},
        {"UNIDADTEMPERATURAAMBIENTE", "Temperatura"},
        {"UNIDADTEMPERATURABULBOHUMEDO", "Temperatura"},
        {"UNIDADTEMPERATURAPUNTOROCIO", "Temperatura"},
        {"UNIDADVELOCIDADAIRE", "Velocidad"},
        {"UNIDADDIAMETROTUBERIA", "Longitud"},
}};

bool EsClaveNumero(std::string_view mayusculas) {
    return std::find(kClavesNumero.begin(), kClavesNumero.end(), mayusculas) != kClavesNumero.end();
}

const ClaveUnidad* BuscarClaveUnidad(std::string_view mayusculas) {
    for (const ClaveUnidad& conocida : kClavesUnidad) {
        if (conocida.clave == mayusculas) {
            return &conocida;
        }
    }
    return nullptr;
}

void LeerUnidad(const std::string& clave, const std::string& valor, const char* familia,
                classUnidades& Unidades) {
    if (Unidades.ExistUnit(valor, familia)) {
        Unidades.setUnitVariable(clave.substr(kLargoPrefijoUnidad), valor);
    } else if (!valor.empty()) {
        throw RuntimeError(kUnidadNoExisteParaFamilia,
                           "La Unidad '" + valor + "' no existe para '" + familia + "'.");
    }
}

// The reading's state: the Tipo kept aside from the store.
struct Lectura {
    classUnidades& Unidades;
    Prompter& prompter;
    int16_t Tipo = 0;
};

void Asignar(Lectura& lectura, const std::string& clave, const std::string& valor) {
    const std::string mayusculas = UCase(clave);
    if (mayusculas == "TIPO") {
        lectura.Tipo = CInt(Val(valor));
    } else if (EsClaveNumero(mayusculas)) {
        lectura.Unidades.setValueVariable(clave, Val(valor));
    } else if (const ClaveUnidad* unidad = BuscarClaveUnidad(mayusculas)) {
        LeerUnidad(clave, valor, unidad->familia, lectura.Unidades);
    }
}

bool SeguirTrasExpresionDesconocida(Prompter& prompter, const std::string& linea) {
    Mensaje mensaje;
    mensaje.texto = "Expresión Desconocida: " + linea;
    mensaje.botones = Botones::AceptarCancelar;
    mensaje.icono = Icono::Exclamacion;
    mensaje.titulo = kTituloAplicacion;
    return prompter.MsgBox(mensaje) != Respuesta::Cancelar;
}

// One trimmed line; false when the reading must stop.
bool LeerLinea(Lectura& lectura, const std::string& linea) {
    const size_t igual = linea.find('=');
    if (igual != std::string::npos && igual > 0) {
        Asignar(lectura, Trim(linea.substr(0, igual)), Trim(linea.substr(igual + 1)));
        return true;
    }
    if (linea.empty() || EsComentario(linea)) {
        return true;
    }
    return SeguirTrasExpresionDesconocida(lectura.prompter, linea);
}

// The end of the line that starts at `inicio` and the start of the next one.
std::pair<size_t, size_t> FinDeLinea(const std::string& texto, size_t inicio) {
    const size_t fin = texto.find_first_of("\r\n", inicio);
    if (fin == std::string::npos) {
        return {texto.size(), texto.size()};
    }
    const bool crlf = texto[fin] == '\r' && fin + 1 < texto.size() && texto[fin + 1] == '\n';
    return {fin, fin + (crlf ? 2 : 1)};
}

}  // namespace

bool EsComentario(std::string_view linea) {
    return !linea.empty() &&
           std::string_view("';:/*!#").find(linea.front()) != std::string_view::npos;
}

int16_t LeerDatosArchivo(std::string_view bytes, classUnidades& Unidades, Prompter& prompter) {
    const std::string texto = DesdeWindows1252(bytes);
    Lectura lectura{Unidades, prompter};
    size_t inicio = 0;
    while (inicio < texto.size()) {
        const auto [fin, siguiente] = FinDeLinea(texto, inicio);
        if (!LeerLinea(lectura, Trim(std::string_view(texto).substr(inicio, fin - inicio)))) {
            break;
        }
        inicio = siguiente;
    }
    return lectura.Tipo;
}

}  // namespace kelvora
