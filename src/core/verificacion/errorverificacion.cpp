#include "core/verificacion/errorverificacion.h"

#include "core/runtime/formato.h"
#include "core/runtime/texto.h"

#include <utility>

namespace kelvora {

RuntimeError ErrorVerificacion(std::string mensaje) {
    return {kErrorVerificacion, std::move(mensaje)};
}

std::string TextoNumero(double valor, const char* patron) {
    std::string texto = Format(valor, patron);
    NormalizarDecimal(texto);
    return texto;
}

}  // namespace kelvora
