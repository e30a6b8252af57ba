#pragma once

#include "core/datafile/ventanaarchivo.h"
#include "core/entry/materialesbd.h"
#include "core/entry/modeloentrada.h"
#include "gui/app/ventanaactivable.h"
#include "gui/entry/entornoventanas.h"
#include "gui/entry/formularioentrada.h"
#include "gui/platform/qteventpump.h"

#include <QWidget>

namespace kelvora {

/// The four data entry windows, built from the table of their model. The model decides; the
/// window hands it each key, click, focus and activation, and then shows the model's state.
class frmDatosEntrada : public VentanaActivable, public VentanaArchivo {
    Q_OBJECT

public:
    frmDatosEntrada(const DescripcionEntrada& descripcion, EntornoVentanas entorno,
                    QWidget* padre = nullptr);

    ModeloEntrada& Modelo() { return mModelo; }
    const ModeloEntrada& Modelo() const { return mModelo; }
    const FormularioEntrada& Formulario() const { return mFormulario; }

    /// The window's product: `TipoAnalisis` and the singular name in `lblProducto`.
    void PonerProducto(int16_t tipo);
    /// The activation steps; the frame calls them when the emissivity option changes.
    void Activar() override;
    /// Shows the model's state: boxes, lists, labels, buttons, focus and published properties.
    void Refrescar();

    std::string Tag() const override;
    std::string Caption() const override;
    std::string FileName() const override;
    void SetFileName(const std::string& nombre) override;
    int16_t FileState() const override;
    void SetFileState(int16_t estado) override;
    int16_t TipoAnalisis() const override;
    classUnidades* Unit() override;
    void ShowVariables() override;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;
    bool focusNextPrevChild(bool siguiente) override;

private:
    EntornoEntrada EntornoModelo();
    void Conectar();
    void ConectarCaja(CajaValor* caja);
    void txtValor_KeyPress(int i, int KeyAscii);
    void txtValor_Editada(int i);
    void cmdAceptar_Click();
    void cmdConsultarMaterial_Click(int k);
    void DesplegarProductos();
    Control ControlDe(const QObject* objeto) const;
    void GotFocus(const QObject* objeto);
    bool TeclaDeLista(const QObject* objeto, const QKeyEvent& tecla);
    QWidget* DestinoTeclaAcceso(const QKeyEvent& tecla) const;
    void RefrescarCaja(int i);
    void RefrescarBotones();
    void PublicarEstado();
    void LlevarFoco();

    EntornoVentanas mEntorno;
    MaterialesBD mMateriales;
    QtEventPump mBomba;
    // Off while the model is built: its first steps come before the form exists.
    bool mPublicar = false;
    ModeloEntrada mModelo;
    FormularioEntrada mFormulario;
    int mCalculos = 0;
    bool mCerrarAlTerminar = false;
    Control mFocoMostrado;
};

}  // namespace kelvora
