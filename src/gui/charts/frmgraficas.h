#pragma once

#include "core/charts/modelograficas.h"
#include "core/datafile/ventanaarchivo.h"
#include "gui/app/ventanaactivable.h"
#include "gui/charts/bombagrafica.h"

#include <QWidget>

class QTabWidget;
class QTableWidget;

namespace kelvora {

class PicGrafica;
class frmDatosEntrada;
struct ContextoAplicacion;

/// The chart window: the series of a hot data entry window drawn on `picGrafica` and listed in
/// `MSFG`, on the two tabs of `tbs`. Closing it while its series runs stops the series.
class frmGraficas : public VentanaActivable, public VentanaArchivo {
    Q_OBJECT

public:
    frmGraficas(ContextoAplicacion& contexto, Prompter& prompter, FuenteTubos& tubos,
                QWidget* padre = nullptr);

    ModeloGraficas& Modelo() { return mModelo; }
    const ModeloGraficas& Modelo() const { return mModelo; }

    /// Chooses the chart of a data entry window, which names it in the caption; the series is
    /// computed again by the next `Graficar`.
    void setTipoGrafica(int16_t tipo, frmDatosEntrada& ventana);
    /// Computes the series if it is not ready, then draws it and fills the table. False, with
    /// the previous drawing left, while a run is in progress or when the series stopped.
    bool Graficar();
    /// The activation steps.
    void Activar() override;
    /// Passes of the series' event pump so far.
    int64_t PasadasSerie() const { return mBomba.Pasadas(); }

    std::string Tag() const override;
    std::string Caption() const override;
    std::string FileName() const override;
    void SetFileName(const std::string& nombre) override;
    int16_t FileState() const override;
    void SetFileState(int16_t estado) override;
    Grilla GrillaListado() const override;
    void GuardarImagen(const std::string& archivo) const override;
    QSize sizeHint() const override;

protected:
    void AlEntrarEnMarco(QMdiSubWindow* marco) override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void CrearControles();
    QWidget* PestanaGrafica();
    QWidget* PestanaTabla();
    /// Draws the series, if ready, at the picture's present size.
    bool Pintar();
    void Redibujar();
    void MostrarTabla();
    void tbs_Click(int pestana);
    void picGrafica_MouseMove(double xMm, double yMm);
    void PonerPanel(const QString& texto);

    ContextoAplicacion& mContexto;
    QObject* mTestigo;
    BombaGrafica mBomba;
    ModeloGraficas mModelo;
    QTabWidget* mTbs = nullptr;
    PicGrafica* mPicGrafica = nullptr;
    QTableWidget* mMSFG = nullptr;
    bool mCerrarAlTerminar = false;
};

}  // namespace kelvora
