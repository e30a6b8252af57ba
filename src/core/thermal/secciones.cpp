#include "core/thermal/secciones.h"

#include "core/runtime/aritmetica.h"

namespace kelvora {

namespace {

// Tres is the last section SeccionSiguiente looks at.
constexpr size_t kSeccionesFrio = 5;

}  // namespace

std::array<Seccion, 7> SeccionesTubo(const FilaTubos& fila) {
    return {{{1, fila.Una},
             {1.5, fila.UnaMedia},
             {2, fila.Dos},
             {2.5, fila.DosMedia},
             {3, fila.Tres},
             {3.5, fila.TresMedia},
             {4, fila.Cuatro}}};
}

Seccion SeccionMasCercana(const FilaTubos& fila, double Dreq) {
    const auto secciones = SeccionesTubo(fila);
    if (secciones.front().diametro > Dreq) {
        return secciones.front();
    }
    for (size_t i = 1; i < secciones.size(); ++i) {
        if (secciones[i].diametro > Dreq) {
            const double exceso = Comprobar(secciones[i].diametro - Dreq);
            const double falta = Comprobar(Dreq - secciones[i - 1].diametro);
            return exceso < falta ? secciones[i] : secciones[i - 1];
        }
    }
    return secciones.back();
}

std::optional<Seccion> SeccionSiguiente(const FilaTubos& fila, double Dreq) {
    const auto secciones = SeccionesTubo(fila);
    for (size_t i = 0; i < kSeccionesFrio; ++i) {
        if (secciones[i].diametro > Dreq) {
            return secciones[i];
        }
    }
    return std::nullopt;
}

}  // namespace kelvora
