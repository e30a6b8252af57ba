#include "core/platform/eventpump.h"

#include "core/runtime/runtimeerror.h"

namespace kelvora {

BombaSinVentana::BombaSinVentana(int64_t limite) : mLimite(limite) {
}

bool BombaSinVentana::DoEvents() {
    if (++mLlamadas > mLimite) {
        throw RuntimeError(errores::Desbordamiento, "El cálculo no converge");
    }
    return true;
}

}  // namespace kelvora
