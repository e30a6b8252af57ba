#include "gui/charts/bombagrafica.h"

namespace kelvora {

BombaGrafica::BombaGrafica(QObject* propietario) : mBomba(propietario) {
}

bool BombaGrafica::DoEvents() {
    ++mPasadas;
    return mBomba.DoEvents();
}

}  // namespace kelvora
