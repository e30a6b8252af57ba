#include "gui/charts/aperturagraficas.h"

#include "core/app/contexto.h"
#include "core/materials/fuentetubosbd.h"
#include "gui/app/mdikelvora.h"
#include "gui/charts/frmgraficas.h"
#include "gui/entry/frmdatosentrada.h"

#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>

namespace kelvora {

AperturaGraficas::AperturaGraficas(mdiKelvora& principal, ContextoAplicacion& contexto,
                                   Prompter& prompter)
    : AperturaGraficas(principal, contexto, prompter,
                       std::make_unique<FuenteTubosBD>(contexto.CadenaConexion)) {
}

AperturaGraficas::AperturaGraficas(mdiKelvora& principal, ContextoAplicacion& contexto,
                                   Prompter& prompter, std::unique_ptr<FuenteTubos> tubos)
    : QObject(&principal),
      mPrincipal(principal),
      mContexto(contexto),
      mPrompter(prompter),
      mTubos(std::move(tubos)) {
}

AperturaGraficas::~AperturaGraficas() = default;

void AperturaGraficas::Graficar(QWidget* ventana, int tipo) {
    auto* datos = qobject_cast<frmDatosEntrada*>(ventana);
    if (datos == nullptr) {
        return;
    }
    auto* grafica = new frmGraficas(mContexto, mPrompter, *mTubos);
    grafica->setTipoGrafica(static_cast<int16_t>(tipo), *datos);
    mPrincipal.AgregarHija(grafica);
    grafica->Graficar();
}

// The menu charts the active window: the button's window becomes it first.
void MostrarMenuGraficar(QWidget& boton) {
    for (QWidget* padre = boton.parentWidget(); padre != nullptr; padre = padre->parentWidget()) {
        if (auto* marco = qobject_cast<QMdiSubWindow*>(padre)) {
            marco->mdiArea()->setActiveSubWindow(marco);
            break;
        }
    }
    if (auto* menu = boton.window()->findChild<QMenu*>(QStringLiteral("mnuATGraficar"))) {
        menu->popup(boton.mapToGlobal(QPoint(0, boton.height())));
    }
}

}  // namespace kelvora
