#include "core/materials/tubos.h"

#include "core/materials/sentencias.h"

namespace kelvora {

std::string TextoNominal(double nominal) {
    return NumeroSql(nominal);
}

RuntimeError ErrorTuboNoEncontrado(double nominal) {
    return {kErrorTuboNoEncontrado,
            "No se encontró un diámetro de " + TextoNominal(nominal) + " plg en la Base de Datos."};
}

}  // namespace kelvora
