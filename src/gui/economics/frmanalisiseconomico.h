#pragma once

#include "core/datafile/ventanaarchivo.h"
#include "core/economics/modeloeconomico.h"
#include "core/platform/clock.h"
#include "gui/app/ventanaactivable.h"
#include "gui/economics/formularioeconomico.h"
#include "gui/platform/qteventpump.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <string>

class QKeyEvent;

namespace kelvora {

/// The two economic windows, built from the table of their model. The model decides; the
/// window hands it each key, choice, click, focus and activation, and then shows its state.
class frmAnalisisEconomico : public VentanaActivable, public VentanaArchivo {
    Q_OBJECT

public:
    frmAnalisisEconomico(TipoEconomico tipo, ContextoAplicacion& contexto, Prompter& prompter,
                         std::unique_ptr<Clock> reloj, QWidget* padre = nullptr);
    /// Leaves its controls deaf: hiding them as they go must not reach the model, gone first.
    ~frmAnalisisEconomico() override;

    ModeloEconomico& Modelo() { return mModelo; }
    const ModeloEconomico& Modelo() const { return mModelo; }
    const FormularioEconomico& Formulario() const { return mFormulario; }

    /// The losses and report values of the results window.
    void setVariables(const ValoresAnalisis& valores);
    /// The activation steps.
    void Activar() override;
    /// Shows the model's state: boxes, lists, labels, status line, buttons and the Tag.
    void Refrescar();

    std::string Tag() const override;
    std::string Caption() const override;
    std::string FileName() const override;
    void SetFileName(const std::string& nombre) override;
    int16_t FileState() const override;
    void SetFileState(int16_t estado) override;

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void Conectar();
    void ConectarListas();
    /// Runs a step of the model, shows its state and takes the focus where the model put it:
    /// always after "C&alcular", else when the step moved it.
    void Paso(const std::function<void()>& paso, bool seguirFoco = false);
    void txtValor_KeyPress(int indice, int KeyAscii);
    void cboHorasTrabajadas_KeyPress(QKeyEvent& tecla);
    void cmdAceptar_Click();
    void GotFocus(QObject* objeto);
    QWidget* DestinoTeclaAcceso(const QKeyEvent& tecla) const;
    bool TeclaDeAcceso(QKeyEvent& tecla);
    void RefrescarCajas();
    void RefrescarListas();
    void PublicarEstado();
    void LlevarFoco();

    QtEventPump mBomba;
    std::unique_ptr<Clock> mReloj;
    ModeloEconomico mModelo;
    FormularioEconomico mFormulario;
};

}  // namespace kelvora
