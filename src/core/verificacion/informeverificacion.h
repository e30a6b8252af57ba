#pragma once

#include "core/reports/grilla.h"

namespace kelvora {

struct Verificacion;

/// The window kind of a verification, for saving and printing.
inline constexpr const char* kTagVerificacion = "18";

/// The verification as a report grid of five columns: label, unit, the program's value, the
/// modern method's and their difference. Headings for the company, the title, the inputs and
/// each position; after each position a heading that says whether the program's practical
/// thickness still meets the requirement.
Grilla InformeVerificacion(const Verificacion& verificacion);

}  // namespace kelvora
