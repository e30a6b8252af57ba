#pragma once

#include "core/datafile/ventanaarchivo.h"
#include "core/thermal/modeloresultados.h"
#include "gui/platform/qteventpump.h"

#include <QWidget>

class QPushButton;
class QTableWidget;

namespace kelvora {

struct ContextoAplicacion;

/// The four results windows: the grid `MSFG` of the model, the letterhead and the buttons. A
/// data entry window makes one, numbers and shows it, and runs its calculation in it; closing
/// the window while the calculation runs stops the calculation.
class frmResultados : public QWidget, public VentanaArchivo {
    Q_OBJECT

public:
    frmResultados(TipoResultados tipo, ContextoAplicacion& contexto, Prompter& prompter,
                  QWidget* padre = nullptr);

    ModeloResultados& Modelo() { return mModelo; }
    const ModeloResultados& Modelo() const { return mModelo; }

    /// The calculation of this window begins: from now on, closing the window stops it.
    void EmpezarCalculo();
    /// The calculation has ended; a closing asked for meanwhile takes place now.
    void TerminarCalculo();
    bool Calculando() const { return mCalculando; }
    /// Puts the grid the calculation filled on the screen.
    void MostrarGrilla();
    /// What the grid shows as tool tip with the pointer over cell (fila, columna).
    QString ToolTipCelda(int fila, int columna) const;

    std::string Tag() const override;
    std::string Caption() const override;
    std::string FileName() const override;
    void SetFileName(const std::string& nombre) override;
    int16_t FileState() const override;
    void SetFileState(int16_t estado) override;
    Grilla GrillaListado() const override;
    QSize sizeHint() const override;

protected:
    void closeEvent(QCloseEvent* evento) override;
    void resizeEvent(QResizeEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    void CrearControles();
    QPushButton* Boton(const char* nombre, const char* caption, const char* toolTip);
    void AjustarColumnas();

    ContextoAplicacion& mContexto;
    QObject* mTestigo;
    QtEventPump mBomba;
    ModeloResultados mModelo;
    QTableWidget* mMSFG = nullptr;
    bool mCalculando = false;
    bool mCerrarAlTerminar = false;
};

}  // namespace kelvora
