#pragma once

#include "core/airehumedo/modeloairehumedo.h"

#include <QPointer>
#include <QWidget>

#include <memory>

class QButtonGroup;
class QComboBox;
class QKeyEvent;
class QLineEdit;

namespace Ui {
class frmAireHumedo;
}

namespace kelvora {

class frmDatosEntrada;

/// The moist-air window: the dry bulb, one moisture value and the altitude or pressure give
/// every other property at once. "&Aplicar" types dry bulb, wet bulb, dew point and relative
/// humidity into a cold data entry window, through that window's own keys.
class frmAireHumedo : public QWidget {
    Q_OBJECT

public:
    frmAireHumedo(const classUnidades& unidades, Prompter& prompter, QWidget* padre = nullptr);
    ~frmAireHumedo() override;

    const ModeloAireHumedo& Modelo() const { return mModelo; }
    /// The cold data entry window that "&Aplicar" writes into; nullptr for none.
    void PonerDestino(frmDatosEntrada* destino);
    /// Shows the model's state.
    void Refrescar();

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Conectar();
    void ConectarCampo(CampoAire campo);
    bool TeclaCaja(CampoAire campo, const QKeyEvent& tecla);
    void cmdAplicar_Click();
    QLineEdit* Caja(CampoAire campo) const;
    QComboBox* Lista(CampoAire campo) const;

    ModeloAireHumedo mModelo;
    std::unique_ptr<Ui::frmAireHumedo> mUi;
    QButtonGroup* mHumedad;
    QButtonGroup* mPresion;
    QPointer<frmDatosEntrada> mDestino;
};

/// Types a text into box `caja` of a data entry window as the keyboard would: the box is
/// emptied, then each character goes through the window's key filter.
void TeclearEnVentana(frmDatosEntrada& ventana, int caja, const QString& texto);

}  // namespace kelvora
