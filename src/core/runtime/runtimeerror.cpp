#include "core/runtime/runtimeerror.h"

#include <utility>

namespace kelvora {

RuntimeError::RuntimeError(int numero, std::string descripcion)
    : std::runtime_error(descripcion), number(numero), description(std::move(descripcion)) {
}

RuntimeError RuntimeError::DelRuntime(int numero) {
    switch (numero) {
        case errores::LlamadaNoValida:
            return {numero, "Argumento o llamada a procedimiento no válidos"};
        case errores::Desbordamiento:
            return {numero, "Desbordamiento"};
        case errores::DivisionPorCero:
            return {numero, "División por cero"};
        case errores::TiposNoCoinciden:
            return {numero, "No coinciden los tipos"};
        default:
            return {numero, "Error definido por la aplicación o el objeto"};
    }
}

}  // namespace kelvora
