#pragma once

#include "core/runtime/runtimeerror.h"

#include <cstdint>

namespace kelvora {

/// The error of a calculation that cannot converge: error 6, "El cálculo no converge".
RuntimeError ErrorNoConverge();

/// Lets pending window events run inside a long loop.
class EventPump {
public:
    virtual ~EventPump() = default;

    /// Runs pending events; false when the window that owns the work has gone and it must stop.
    virtual bool DoEvents() = 0;
};

/// The pump of the command line and the tests: no events, but a bound on the passes, past which
/// the work is declared not to converge.
class BombaSinVentana : public EventPump {
public:
    explicit BombaSinVentana(int64_t limite = 10'000'000);

    bool DoEvents() override;
    int64_t Llamadas() const { return mLlamadas; }
    void Reiniciar() { mLlamadas = 0; }

private:
    int64_t mLimite;
    int64_t mLlamadas = 0;
};

}  // namespace kelvora
