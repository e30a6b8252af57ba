#include "core/datafile/ventanaarchivo.h"

#include "core/runtime/numeros.h"

namespace kelvora {

int16_t VentanaArchivo::TipoAnalisis() const {
    return 0;
}

classUnidades* VentanaArchivo::Unit() {
    return nullptr;
}

void VentanaArchivo::ShowVariables() {
}

Grilla VentanaArchivo::GrillaListado() const {
    return {};
}

void VentanaArchivo::GuardarImagen(const std::string&) const {
}

int16_t NumeroTag(std::string_view tag) {
    return CInt(Val(tag));
}

}  // namespace kelvora
