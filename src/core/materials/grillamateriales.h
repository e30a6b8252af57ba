#pragma once

#include "core/materials/recordset.h"
#include "core/reports/grilla.h"

#include <array>
#include <string>

namespace kelvora {

/// The four cells of a row of the material list: code, description, emissivity, temperature.
using CeldasMaterial = std::array<std::string, 4>;

/// The empty material list: its heading row "^ Código |^ Descripción |^ Emisividad |^
/// Temperatura (°F) ", every column centred.
Grilla GrillaMateriales();

/// Appends the current row of a recordset of table Emisividad: the code, the description
/// trimmed and in upper case, the emissivity as "0.0#" and the temperature as "0.0##" with a
/// point; a NULL leaves its cell empty.
void AgregarFilaMaterial(Grilla& grilla, const Recordset& recordset);

/// The cells of row `fila`.
CeldasMaterial CeldasDe(const Grilla& grilla, int fila);

}  // namespace kelvora
