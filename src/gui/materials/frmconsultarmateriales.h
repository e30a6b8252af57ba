#pragma once

#include "core/materials/modeloconsultamateriales.h"

#include <QWidget>

#include <memory>

class QKeyEvent;
class QLineEdit;

namespace Ui {
class frmConsultarMateriales;
}

namespace kelvora {

/// The material query window: the query form, the results grid and the buttons, over its
/// model. Each event goes to the model, and then the window shows the model's state.
class frmConsultarMateriales : public QWidget {
    Q_OBJECT

public:
    explicit frmConsultarMateriales(ModeloConsultaMateriales& modelo, QWidget* padre = nullptr);
    ~frmConsultarMateriales() override;

    /// The activation: the model's steps, then the focus on the grid and one {TAB}.
    Q_INVOKABLE void Activar();
    /// Shows the model's state: form, grid, selection and buttons.
    void Refrescar();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void ConectarFormulario();
    void ConectarGrilla();
    void ConectarBotones();
    /// Runs a command of the model and shows what it left.
    void Ejecutar(void (ModeloConsultaMateriales::*comando)());
    void SeleccionarAlEntrar(QObject* objeto);
    bool TeclaCajaNumero(int i, const QKeyEvent& tecla);
    bool TeclaGrilla(const QKeyEvent& tecla);
    void TomarSeleccion();
    void RefrescarFormulario();
    void RefrescarGrilla();
    void RefrescarSeleccion();
    void RefrescarBotones();
    QLineEdit* Caja(int i) const;

    ModeloConsultaMateriales& mModelo;
    std::unique_ptr<Ui::frmConsultarMateriales> mUi;
    /// The grid as last shown, so that an unchanged grid keeps the user's scroll.
    Grilla mMostrada;
    bool mActivando = false;
};

}  // namespace kelvora
