#pragma once

#include "core/materials/tubos.h"

#include <array>
#include <optional>

namespace kelvora {

/// An insulation section of a pipe size: its thickness and its outer diameter, in plg.
struct Seccion {
    double espesor;
    double diametro;
};

/// The sections of a row of `Tubos`, thinnest first: Una (1 plg) to Cuatro (4 plg).
std::array<Seccion, 7> SeccionesTubo(const FilaTubos& fila);

/// The section whose outer diameter is nearest to the required one, Dreq: Una when it already
/// exceeds Dreq, Cuatro when none does; between the two sections around Dreq a tie goes to the
/// smaller one.
Seccion SeccionMasCercana(const FilaTubos& fila, double Dreq);

/// The first section from Una to Tres whose outer diameter exceeds Dreq; none beyond Tres.
std::optional<Seccion> SeccionSiguiente(const FilaTubos& fila, double Dreq);

}  // namespace kelvora
