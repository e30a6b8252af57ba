#pragma once

#include "core/platform/prompter.h"
#include "core/units/unidades.h"

#include <cstdint>
#include <string_view>

namespace kelvora {

/// True when the line's first character is one of ' ; : / * ! #.
bool EsComentario(std::string_view linea);

/// First stage of reading a data file: the lines of the Windows-1252 bytes (ending in CR LF, LF
/// or CR), trimmed, put their known keys into `Unidades`, values as numbers and units checked
/// against their family. A line that is neither an assignment, a comment nor blank is shown
/// through `prompter`; Cancelar ends the reading there. Returns the last Tipo, 0 when there is
/// none. Raises 1002 for a unit outside its family, 1003 from setUnitVariable, 6 and 13 from
/// the numbers; what was read until then stays in `Unidades`.
int16_t LeerDatosArchivo(std::string_view bytes, classUnidades& Unidades, Prompter& prompter);

}  // namespace kelvora
