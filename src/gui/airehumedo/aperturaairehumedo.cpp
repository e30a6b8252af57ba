#include "gui/airehumedo/aperturaairehumedo.h"

#include "core/app/contexto.h"
#include "gui/airehumedo/frmairehumedo.h"
#include "gui/app/mdikelvora.h"
#include "gui/entry/frmdatosentrada.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace kelvora {

AperturaAireHumedo::AperturaAireHumedo(mdiKelvora& principal, ContextoAplicacion& contexto,
                                       Prompter& prompter)
    : QObject(&principal), mPrincipal(principal), mContexto(contexto), mPrompter(prompter) {
    if (auto* area = principal.findChild<QMdiArea*>()) {
        connect(area, &QMdiArea::subWindowActivated, this, &AperturaAireHumedo::Activada);
    }
}

void AperturaAireHumedo::AireHumedo() {
    if (mVentana != nullptr) {
        if (auto* marco = qobject_cast<QMdiSubWindow*>(mVentana->parentWidget())) {
            marco->mdiArea()->setActiveSubWindow(marco);
        }
        return;
    }
    auto* destino = qobject_cast<frmDatosEntrada*>(mPrincipal.VentanaActiva());
    mVentana = new frmAireHumedo(mContexto.Unidades, mPrompter);
    mVentana->PonerDestino(destino);
    const QSize tamano = mVentana->size();
    if (QMdiSubWindow* marco = mPrincipal.AgregarHija(mVentana)) {
        marco->resize(tamano + marco->size() - mVentana->size());
    }
}

frmAireHumedo* AperturaAireHumedo::Ventana() const {
    return mVentana;
}

// Activating the moist-air window itself keeps the destination it had.
void AperturaAireHumedo::Activada(QMdiSubWindow* marco) {
    if (mVentana == nullptr || marco == nullptr || marco->widget() == mVentana) {
        return;
    }
    mVentana->PonerDestino(qobject_cast<frmDatosEntrada*>(marco->widget()));
}

}  // namespace kelvora
