#include "core/entry/ventanadatosarchivo.h"

namespace kelvora {

int16_t VentanaDatosArchivo::FileState() const {
    return static_cast<int16_t>(mModelo.FileState());
}

int16_t VentanaDatosArchivo::TipoAnalisis() const {
    return static_cast<int16_t>(mModelo.TipoAnalisis());
}

}  // namespace kelvora
