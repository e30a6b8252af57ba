#include "gui/platform/qteventpump.h"

#include <QCoreApplication>

namespace kelvora {

QtEventPump::QtEventPump(QObject* propietario, int intervaloMs)
    : mPropietario(propietario),
      mConPropietario(propietario != nullptr),
      mIntervaloMs(intervaloMs) {
}

bool QtEventPump::DoEvents() {
    // A pass count as well as the clock, so that a fast machine still lets events through
    // during a loop that is long in passes but short in time.
    constexpr int kPasadasMaximas = 1024;
    if (!mReloj.isValid() || mReloj.elapsed() >= mIntervaloMs ||
        ++mPasadasSinEventos >= kPasadasMaximas) {
        QCoreApplication::processEvents();
        mReloj.start();
        mPasadasSinEventos = 0;
    }
    return !mConPropietario || !mPropietario.isNull();
}

}  // namespace kelvora
