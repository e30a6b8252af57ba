#pragma once

#include "core/materials/modeloinsertarmaterial.h"

#include <QDialog>

#include <memory>

class QKeyEvent;
class QLineEdit;

namespace Ui {
class frmInsertarMaterial;
}

namespace kelvora {

/// The modal window that inserts or modifies one row of the material list, over its model.
class frmInsertarMaterial : public QDialog {
    Q_OBJECT

public:
    explicit frmInsertarMaterial(EntornoInsertar entorno, QWidget* padre = nullptr);
    ~frmInsertarMaterial() override;

    /// `Borrar` or `CargarFila` before the window is shown.
    ModeloInsertarMaterial& Modelo() { return mModelo; }
    /// Shows the model's state: boxes, button, title and the focus it asks for.
    void Refrescar();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void showEvent(QShowEvent* evento) override;

private:
    void Conectar();
    void DescripcionCambiada();
    bool TeclaCajaNumero(int i, const QKeyEvent& tecla);
    void cmdAceptar_Click();
    QLineEdit* Caja(int i) const;
    QWidget* Control(int i) const;

    ModeloInsertarMaterial mModelo;
    std::unique_ptr<Ui::frmInsertarMaterial> mUi;
};

}  // namespace kelvora
