#pragma once

#include "core/platform/eventpump.h"

#include <QElapsedTimer>
#include <QObject>
#include <QPointer>

namespace kelvora {

/// Lets window events run every few milliseconds, and at least every so many passes, inside a
/// long loop; reports false once the window that owns the work has been closed.
class QtEventPump : public EventPump {
public:
    explicit QtEventPump(QObject* propietario = nullptr, int intervaloMs = 15);

    bool DoEvents() override;

private:
    QPointer<QObject> mPropietario;
    bool mConPropietario;
    int mIntervaloMs;
    int mPasadasSinEventos = 0;
    QElapsedTimer mReloj;
};

}  // namespace kelvora
