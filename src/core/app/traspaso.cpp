#include "core/app/traspaso.h"

#include "core/runtime/texto.h"

#include <cctype>

namespace kelvora {

namespace {

constexpr size_t kCabecera = 8;
constexpr uint32_t kBytesMaximos = 32768;

void EscribirEntero(std::string& destino, uint32_t valor) {
    for (int i = 0; i < 4; ++i) {
        destino += static_cast<char>((valor >> (8 * i)) & 0xFF);
    }
}

uint32_t LeerEntero(std::string_view datos, size_t desde) {
    uint32_t valor = 0;
    for (size_t i = 0; i < 4; ++i) {
        valor |= static_cast<uint32_t>(static_cast<unsigned char>(datos[desde + i])) << (8 * i);
    }
    return valor;
}

}  // namespace

std::string CodificarTraspaso(std::string_view texto) {
    const std::string bytes = texto.empty() ? std::string(1, '\0') : std::string(texto);
    std::string registro;
    EscribirEntero(registro, static_cast<uint32_t>(Len(texto)));
    EscribirEntero(registro, static_cast<uint32_t>(bytes.size()));
    return registro + bytes;
}

LecturaTraspaso DecodificarTraspaso(std::string_view datos) {
    if (datos.size() < kCabecera) {
        return {};
    }
    const uint32_t cbData = LeerEntero(datos, 4);
    if (cbData > kBytesMaximos) {
        return {EstadoTraspaso::Invalido, {}};
    }
    if (datos.size() < kCabecera + cbData) {
        return {};
    }
    // The text ends at its first zero byte, as the empty text's single byte shows.
    const std::string_view bytes = datos.substr(kCabecera, cbData);
    return {EstadoTraspaso::Completo, std::string(bytes.substr(0, bytes.find('\0')))};
}

std::string RespuestaTraspaso() {
    std::string respuesta;
    EscribirEntero(respuesta, 0);
    return respuesta;
}

std::string NombreCanalTraspaso(std::string_view usuario) {
    std::string nombre = "FornalisSA.Kelvora_APPLICATION.";
    for (const char c : usuario) {
        nombre += std::isalnum(static_cast<unsigned char>(c)) ? c : '_';
    }
    return nombre;
}

}  // namespace kelvora
