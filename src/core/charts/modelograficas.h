#pragma once

#include "core/charts/dibujografica.h"
#include "core/charts/serie.h"
#include "core/reports/grilla.h"
#include "core/thermal/modeloresultados.h"
#include "core/thermal/realizarcalculossc.h"
#include "core/thermal/realizarcalculossp.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kelvora {

class classUnidades;
class EventPump;
class FuenteTubos;
class ModeloEntrada;
struct LlamadaCalculo;
class Prompter;
class Surface;

/// What the pointer over the picture shows: the picture's tool tip (nullopt: left as it is) and
/// the text of status panel 2 of the main window.
struct LecturaRaton {
    std::optional<std::string> toolTip;
    std::string panel;
};

/// The model of the chart window: the series of a hot data entry window swept over the surface
/// temperature, its axes, its data table and its drawing.
class ModeloGraficas {
public:
    ModeloGraficas(const classUnidades& unidades, Prompter& prompter, EventPump& bomba,
                   FuenteTubos& tubos);

    /// Chooses the chart for a data entry window, numbered as its caption says; the series is
    /// computed again by the next `Graficar`.
    void setTipoGrafica(int16_t tipo, ModeloEntrada& ventana, int numeroVentana);
    /// Computes the series if it is not ready, then draws it on a picture of ancho × alto
    /// surface units. False, with nothing drawn, while a run is in progress or when the series
    /// stopped.
    bool Graficar(Surface& superficie, double ancho, double alto);
    /// The series and its table, if they are not ready; false while a run is in progress or
    /// when it stopped.
    bool CalcularSerie();

    /// The pointer at (x, y) in plot units.
    LecturaRaton picGrafica_MouseMove(double x, double y) const;
    /// Tab 0 shows the chart, tab 1 the table.
    void tbs_Click(int pestana);
    /// The source window has gone.
    void Descargar();

    int16_t tipoGrafica() const { return mTipoGrafica; }
    int32_t TipoAnalisis() const { return mTipoAnalisis; }
    bool SerieLista() const { return mSerieLista; }
    bool Ocupado() const { return mOcupado; }
    const SerieGrafica& Serie() const { return mSerie; }
    const EjesGrafica& Ejes() const { return mEjes; }
    /// The scale of the last drawing.
    const EscalaGrafica& Escala() const { return mEscala; }
    const TextosGrafica& Textos() const { return mTextos; }
    const std::string& EtiquetaY() const { return mEtiquetaY; }
    /// The grid's header format, "^ " + value label + " |^ Espesor Recomendado (plg)".
    std::string FormatoEncabezado() const;
    const Grilla& MSFG() const { return mMSFG; }
    const std::string& Caption() const { return mCaption; }
    const std::string& Tag() const { return mTag; }
    /// TI and TA in °F, as read for the last series.
    double TI() const { return mTI; }
    double TA() const { return mTA; }

private:
    void Etiquetas();
    bool Barrido(SerieGrafica& serie);
    void Preparar(const LlamadaCalculo& llamada);
    bool Punto(SerieGrafica& serie, int i, double TS);
    void LeerVentana();
    bool VentanaCambio() const;
    void RecordarVentana();
    void LlenarTabla();
    void Avisar(const std::string& texto);

    const classUnidades& mUnidades;
    Prompter& mPrompter;
    EventPump& mBomba;
    FuenteTubos& mTubos;
    ModeloEntrada* mVentana = nullptr;
    std::optional<ModeloResultados> mResultados;
    int16_t mTipoGrafica = 0;
    int32_t mTipoAnalisis = 0;
    bool mSerieLista = false;
    bool mOcupado = false;
    SerieGrafica mSerie;
    EjesGrafica mEjes;
    EscalaGrafica mEscala;
    TextosGrafica mTextos;
    std::string mEtiquetaY;
    Grilla mMSFG;
    std::string mCaption = "Gráficas";
    int mPestana = 0;
    std::string mTag = "15";
    double mTI = 0;
    double mTA = 0;
    bool mTuberia = false;
    ArgumentosSP mSP;
    ArgumentosSC mSC;
    /// What the window showed when its values were last read.
    bool mLeida = false;
    std::vector<std::string> mTextosLeidos;
    std::vector<int> mListasLeidas;
    std::string mNombreAislamiento;
    std::string mNombreDesnuda;
};

}  // namespace kelvora
