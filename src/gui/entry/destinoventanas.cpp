#include "gui/entry/destinoventanas.h"

#include "gui/platform/texto.h"
#include "gui/thermal/frmresultados.h"

namespace kelvora {

DestinoVentanas::DestinoVentanas(EntornoVentanas& entorno) : mEntorno(entorno) {
}

DestinoVentanas::~DestinoVentanas() {
    if (mVentana) {
        mVentana->TerminarCalculo();
    }
}

// The window is shown before the calculation runs, so that it can be closed to stop it.
ModeloResultados& DestinoVentanas::NuevaVentanaResultados(TipoResultados tipo) {
    auto* ventana = new frmResultados(tipo, mEntorno.contexto, mEntorno.prompter);
    ventana->setWindowTitle(Q(CaptionNumerado(S(ventana->windowTitle()), mEntorno)));
    ventana->EmpezarCalculo();
    mVentana = ventana;
    mEntorno.AgregarHija(ventana);
    return ventana->Modelo();
}

void DestinoVentanas::DescargarVentanaResultados(ModeloResultados&) {
    if (mVentana) {
        mVentana->TerminarCalculo();
        mVentana->close();
    }
}

FuenteTubos& DestinoVentanas::Tubos() {
    return mEntorno.tubos;
}

}  // namespace kelvora
