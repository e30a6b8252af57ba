#include "gui/platform/qteventpump.h"

#include <QCoreApplication>

namespace kelvora {

QtEventPump::QtEventPump(QObject* propietario, int intervaloMs)
    : mPropietario(propietario),
      mConPropietario(propietario != nullptr),
      mIntervaloMs(intervaloMs) {
    mReloj.start();
}

bool QtEventPump::DoEvents() {
    if (mReloj.elapsed() >= mIntervaloMs) {
        QCoreApplication::processEvents();
        mReloj.restart();
    }
    return !mConPropietario || !mPropietario.isNull();
}

}  // namespace kelvora
