#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace kelvora {

/// The record that hands a file name to the running instance: the text's length in
/// characters and its byte count as two little-endian 32-bit fields, then the bytes (UTF-8).
/// An empty text is sent as one zero byte, so its byte count is 1.
std::string CodificarTraspaso(std::string_view texto);

enum class EstadoTraspaso { Incompleto, Completo, Invalido };

struct LecturaTraspaso {
    EstadoTraspaso estado = EstadoTraspaso::Incompleto;
    std::string texto;
};

/// Reads a record from the bytes received so far: incomplete until all its bytes are there,
/// invalid when its byte count is beyond any path.
LecturaTraspaso DecodificarTraspaso(std::string_view datos);

/// The receiver's answer once it has the name: the 32-bit result 0.
std::string RespuestaTraspaso();

/// The name of the per-user channel on which the first instance listens.
std::string NombreCanalTraspaso(std::string_view usuario);

}  // namespace kelvora
