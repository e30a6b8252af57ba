#pragma once

#include "core/entry/llamadacalculo.h"
#include "gui/entry/entornoventanas.h"

#include <QPointer>

namespace kelvora {

class frmResultados;

/// Where one "C&alcular" puts its results: a new results window, numbered and shown in the
/// frame, that holds its calculation while it runs.
class DestinoVentanas : public DestinoResultados {
public:
    explicit DestinoVentanas(EntornoVentanas& entorno);
    /// Releases the window of a calculation that has returned.
    ~DestinoVentanas() override;
    DestinoVentanas(const DestinoVentanas&) = delete;
    DestinoVentanas& operator=(const DestinoVentanas&) = delete;

    ModeloResultados& NuevaVentanaResultados(TipoResultados tipo) override;
    void DescargarVentanaResultados(ModeloResultados& ventana) override;
    FuenteTubos& Tubos() override;

    /// The window made, while it stands.
    frmResultados* Ventana() const { return mVentana; }

private:
    EntornoVentanas& mEntorno;
    QPointer<frmResultados> mVentana;
};

}  // namespace kelvora
