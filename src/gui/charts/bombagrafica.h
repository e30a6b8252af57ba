#pragma once

#include "gui/platform/qteventpump.h"

#include <cstdint>

namespace kelvora {

/// The event pump of a chart's series: lets window events run every few milliseconds, counts
/// its passes, and reports the series to stop once its owner has gone.
class BombaGrafica : public EventPump {
public:
    explicit BombaGrafica(QObject* propietario);

    bool DoEvents() override;
    /// Passes so far: the series makes at least one for each point it computes.
    int64_t Pasadas() const { return mPasadas; }

private:
    QtEventPump mBomba;
    int64_t mPasadas = 0;
};

}  // namespace kelvora
