#include "cli/json.h"

#include <array>
#include <charconv>
#include <cmath>
#include <cstdio>

namespace kelvora::cli {

namespace {

constexpr int kDigitos = 17;

void Escapar(std::string& destino, char caracter) {
    switch (caracter) {
        case '"':
            destino += "\\\"";
            return;
        case '\\':
            destino += "\\\\";
            return;
        case '\n':
            destino += "\\n";
            return;
        case '\r':
            destino += "\\r";
            return;
        case '\t':
            destino += "\\t";
            return;
        default:
            break;
    }
    if (static_cast<unsigned char>(caracter) < 0x20) {
        std::array<char, 8> codigo{};
        std::snprintf(codigo.data(), codigo.size(), "\\u%04x", static_cast<unsigned>(caracter));
        destino += codigo.data();
        return;
    }
    destino += caracter;
}

}  // namespace

std::string TextoJson(std::string_view texto) {
    std::string resultado = "\"";
    for (const char caracter : texto) {
        Escapar(resultado, caracter);
    }
    return resultado + "\"";
}

std::string NumeroJson(double numero) {
    if (!std::isfinite(numero)) {
        return "null";
    }
    std::array<char, 40> texto{};
    const auto fin = std::to_chars(texto.data(), texto.data() + texto.size(), numero,
                                   std::chars_format::general, kDigitos);
    return std::string(texto.data(), fin.ptr);
}

void EscritorJson::Separar() {
    if (mTrasClave) {
        mTrasClave = false;
        return;
    }
    if (!mVacio.empty()) {
        if (!mVacio.back()) {
            mTexto += ',';
        }
        mVacio.back() = false;
    }
}

void EscritorJson::Abrir(char caracter) {
    Separar();
    mTexto += caracter;
    mVacio.push_back(true);
}

void EscritorJson::Cerrar(char caracter) {
    mTexto += caracter;
    mVacio.pop_back();
}

EscritorJson& EscritorJson::AbrirObjeto() {
    Abrir('{');
    return *this;
}

EscritorJson& EscritorJson::CerrarObjeto() {
    Cerrar('}');
    return *this;
}

EscritorJson& EscritorJson::AbrirLista() {
    Abrir('[');
    return *this;
}

EscritorJson& EscritorJson::CerrarLista() {
    Cerrar(']');
    return *this;
}

EscritorJson& EscritorJson::Clave(std::string_view clave) {
    Separar();
    mTexto += TextoJson(clave) + ':';
    mTrasClave = true;
    return *this;
}

EscritorJson& EscritorJson::Texto(std::string_view texto) {
    Separar();
    mTexto += TextoJson(texto);
    return *this;
}

EscritorJson& EscritorJson::Numero(double numero) {
    Separar();
    mTexto += NumeroJson(numero);
    return *this;
}

EscritorJson& EscritorJson::Booleano(bool valor) {
    Separar();
    mTexto += valor ? "true" : "false";
    return *this;
}

EscritorJson& EscritorJson::Nulo() {
    Separar();
    mTexto += "null";
    return *this;
}

}  // namespace kelvora::cli
