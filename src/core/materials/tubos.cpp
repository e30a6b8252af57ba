#include "core/materials/tubos.h"

#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"

namespace kelvora {

std::string TextoNominal(double nominal) {
    std::string texto = TextoNumero(nominal);
    return NormalizarDecimal(texto);
}

RuntimeError ErrorTuboNoEncontrado(double nominal) {
    return {kErrorTuboNoEncontrado,
            "No se encontró un diámetro de " + TextoNominal(nominal) + " plg en la Base de Datos."};
}

}  // namespace kelvora
