#pragma once

#include "core/materials/modeloconsultamateriales.h"
#include "gui/materials/llamadorventana.h"

#include <QObject>
#include <QPointer>

#include <functional>

class QMdiSubWindow;
class QWidget;

namespace kelvora {

class frmConsultarMateriales;
class mdiKelvora;

/// The two material windows of the program: the query window, one at a time in the frame,
/// whose public values last for the whole run, and the modal insert window. A child of the
/// frame.
class VentanasMateriales : public QObject {
    Q_OBJECT

public:
    /// Places a window in the frame, shows it and makes it the active child.
    using AgregarHija = std::function<QMdiSubWindow*(QWidget* ventana)>;

    /// Its windows in the frame's area.
    VentanasMateriales(mdiKelvora& principal, ContextoAplicacion& contexto, Prompter& prompter);
    VentanasMateriales(QWidget& principal, ContextoAplicacion& contexto, Prompter& prompter,
                       AgregarHija agregarHija);
    ~VentanasMateriales() override;

    /// "&Consultar Acabado Superficial": the query window, shown and brought to the top.
    void ConsultarMateriales();
    /// "&Insertar Acabado Superficial": the insert window, modal, for a new row.
    void InsertarMaterial();
    /// "C&onsultar" of a data entry window: the query window in selection mode, to write the
    /// chosen code into box `indiceCaja` of `llamador`.
    void AbrirConsultaMateriales(QWidget* llamador, int indiceCaja);

    /// The query window while it is open.
    frmConsultarMateriales* Ventana() const;
    ModeloConsultaMateriales& Modelo() { return mModelo; }

private:
    void Mostrar();
    void MostrarInsertar(const std::optional<CeldasMaterial>& fila);
    void Cerrar();

    QWidget& mPrincipal;
    ContextoAplicacion& mContexto;
    Prompter& mPrompter;
    AgregarHija mAgregarHija;
    LlamadorVentana mLlamador;
    QMetaObject::Connection mLlamadorCerrado;
    ModeloConsultaMateriales mModelo;
    QPointer<frmConsultarMateriales> mVentana;
};

/// `AbrirConsultaMateriales` of the material windows of the frame that holds `llamador`; it
/// does nothing when that frame has none. The data entry windows' hook.
void AbrirConsultaMateriales(QWidget* llamador, int indiceCaja);

}  // namespace kelvora
