#pragma once

#include "core/platform/prompter.h"
#include "core/units/unidades.h"

#include <cstdint>

namespace kelvora {

/// Help topic of the box that no data entry window takes the file's Tipo.
inline constexpr int kAyudaArchivoSinVentana = 118;

/// Second stage of reading a data file: checks what the file left in `Unidades` for its Tipo,
/// sets the units it assumes, and reports. Errors ("- ") are shown and give False; otherwise
/// warnings ("* ") are shown with Aceptar and Cancelar, and Cancelar gives False. A Tipo
/// outside 1 to 14 shows that no window can take the data and gives False.
bool ValidarVariablesArchivo(int16_t Tipo, classUnidades& Unidades, Prompter& prompter);

}  // namespace kelvora
