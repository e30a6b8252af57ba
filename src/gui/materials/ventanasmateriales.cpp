#include "gui/materials/ventanasmateriales.h"

#include "gui/app/mdikelvora.h"
#include "gui/materials/frmconsultarmateriales.h"
#include "gui/materials/frminsertarmaterial.h"

#include <QMdiArea>
#include <QMdiSubWindow>

namespace kelvora {

VentanasMateriales::VentanasMateriales(mdiKelvora& principal, ContextoAplicacion& contexto,
                                       Prompter& prompter)
    : VentanasMateriales(principal, contexto, prompter, [&principal](QWidget* ventana) {
          return principal.AgregarHija(ventana);
      }) {
}

VentanasMateriales::VentanasMateriales(QWidget& principal, ContextoAplicacion& contexto,
                                       Prompter& prompter, AgregarHija agregarHija)
    : QObject(&principal),
      mPrincipal(principal),
      mContexto(contexto),
      mPrompter(prompter),
      mAgregarHija(std::move(agregarHija)),
      mModelo({prompter, contexto,
               [this](const std::optional<CeldasMaterial>& fila) { MostrarInsertar(fila); },
               [this] { Cerrar(); }}) {
}

VentanasMateriales::~VentanasMateriales() = default;

frmConsultarMateriales* VentanasMateriales::Ventana() const {
    return mVentana;
}

void VentanasMateriales::ConsultarMateriales() {
    mModelo.AbrirMantenimiento();
    Mostrar();
}

void VentanasMateriales::InsertarMaterial() {
    MostrarInsertar(std::nullopt);
}

void VentanasMateriales::AbrirConsultaMateriales(QWidget* llamador, int indiceCaja) {
    if (mLlamador.Ventana() != llamador) {
        disconnect(mLlamadorCerrado);
        mLlamador.SetVentana(llamador);
        mLlamadorCerrado = connect(llamador, &QObject::destroyed, this,
                                   [this] { mModelo.OlvidarLlamador(&mLlamador); });
    }
    mModelo.AbrirParaSeleccion(&mLlamador, static_cast<int16_t>(indiceCaja));
    Mostrar();
}

// A new window takes its first activation here: the frame activates it before its signal is
// connected. An open window is activated by the frame when it comes to the top.
void VentanasMateriales::Mostrar() {
    if (mVentana == nullptr) {
        mModelo.Form_Load();
        mVentana = new frmConsultarMateriales(mModelo);
        const QSize tamano = mVentana->size();
        QMdiSubWindow* marco = mAgregarHija(mVentana);
        if (marco != nullptr) {
            marco->resize(tamano + marco->size() - mVentana->size());
            connect(marco, &QMdiSubWindow::aboutToActivate, mVentana,
                    &frmConsultarMateriales::Activar);
        }
        mVentana->Activar();
        return;
    }
    auto* marco = qobject_cast<QMdiSubWindow*>(mVentana->parentWidget());
    if (marco != nullptr && marco->mdiArea() != nullptr) {
        marco->showNormal();
        marco->mdiArea()->setActiveSubWindow(marco);
    }
}

void VentanasMateriales::MostrarInsertar(const std::optional<CeldasMaterial>& fila) {
    frmInsertarMaterial ventana({mPrompter, mContexto}, &mPrincipal);
    if (fila) {
        ventana.Modelo().CargarFila(*fila);
    } else {
        ventana.Modelo().Borrar();
    }
    ventana.Refrescar();
    ventana.exec();
}

void VentanasMateriales::Cerrar() {
    if (mVentana != nullptr) {
        mVentana->close();
    }
}

void AbrirConsultaMateriales(QWidget* llamador, int indiceCaja) {
    if (llamador == nullptr) {
        return;
    }
    auto* ventanas = llamador->window()->findChild<VentanasMateriales*>();
    if (ventanas != nullptr) {
        ventanas->AbrirConsultaMateriales(llamador, indiceCaja);
    }
}

}  // namespace kelvora
