#include "core/platform/eventpump.h"

#include "core/runtime/runtimeerror.h"

namespace kelvora {

RuntimeError ErrorNoConverge() {
    return {errores::Desbordamiento, "El cálculo no converge"};
}

BombaSinVentana::BombaSinVentana(int64_t limite) : mLimite(limite) {
}

bool BombaSinVentana::DoEvents() {
    if (++mLlamadas > mLimite) {
        throw ErrorNoConverge();
    }
    return true;
}

}  // namespace kelvora
