#pragma once

#include "core/units/unidades.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelvora {

/// The lines of the data file of an entry window, UTF-8 and without line ends: "Tipo" with the
/// product's name, then each key of the window's kind (Tag 1 flat hot, 5 pipes hot, 9 flat
/// cold, 12 pipes cold) as key + " = " + value, numbers as their default text with a point.
std::vector<std::string> LineasDatosArchivo(int tag, int16_t TipoAnalisis,
                                            const classUnidades& Unit);

/// The bytes of a text file: each line ended by CR LF, in Windows-1252.
std::string BytesArchivoTexto(const std::vector<std::string>& lineas);

}  // namespace kelvora
