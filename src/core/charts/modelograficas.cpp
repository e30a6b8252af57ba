#include "core/charts/modelograficas.h"

#include "core/app/contexto.h"
#include "core/entry/llamadacalculo.h"
#include "core/entry/modeloentrada.h"
#include "core/platform/eventpump.h"
#include "core/platform/prompter.h"
#include "core/runtime/formato.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/thermal/productos.h"

#include <string_view>
#include <utility>

namespace kelvora {

namespace {

constexpr double kPaso = 1.0;
constexpr const char* kEtiquetaX = "Espesor (plg)";
constexpr const char* kColumnaEspesor = "Espesor Recomendado (plg)";

// Holds the busy flag for the length of a run or a drawing.
class Ocupacion {
public:
    explicit Ocupacion(bool& ocupado) : mOcupado(ocupado) { mOcupado = true; }
    ~Ocupacion() { mOcupado = false; }
    Ocupacion(const Ocupacion&) = delete;
    Ocupacion& operator=(const Ocupacion&) = delete;

private:
    bool& mOcupado;
};

template <class T>
T Valor(const LlamadaCalculo& llamada, std::string_view nombre) {
    return std::get<T>(llamada.Argumento(nombre));
}

std::string Formateado(double valor, const char* patron) {
    std::string texto = Format(valor, patron);
    return NormalizarDecimal(texto);
}

bool EsTuberia(int32_t producto) {
    const Producto* p = BuscarProducto(producto);
    return p != nullptr && (p->analisis == Analisis::SC || p->analisis == Analisis::SCFrio);
}

// Only the hot analyses have a chart mode.
bool TieneSerie(int32_t producto) {
    const Producto* p = BuscarProducto(producto);
    return p != nullptr && (p->analisis == Analisis::SP || p->analisis == Analisis::SC);
}

}  // namespace

ModeloGraficas::ModeloGraficas(const classUnidades& unidades, Prompter& prompter, EventPump& bomba,
                               FuenteTubos& tubos)
    : mUnidades(unidades), mPrompter(prompter), mBomba(bomba), mTubos(tubos) {
}

void ModeloGraficas::setTipoGrafica(int16_t tipo, ModeloEntrada& ventana, int numeroVentana) {
    try {
        mBomba.DoEvents();
        mTipoGrafica = tipo;
        mSerieLista = false;
        mVentana = &ventana;
        mTipoAnalisis = ventana.TipoAnalisis();
        Etiquetas();
        mCaption = "Gráfica " + mTextos.titulo + " - " + NombreProducto(mTipoAnalisis, false) +
                   " [" + std::to_string(numeroVentana) + "]";
    } catch (const RuntimeError& error) {
        Avisar("Error inesperado: " + error.description);
    }
}

void ModeloGraficas::Etiquetas() {
    if (mTipoGrafica == kGraficaTemperatura) {
        mEtiquetaY = "Temperatura Superficie (°F)";
        mTextos.letrasY = "TS";
    } else {
        mEtiquetaY = EsTuberia(mTipoAnalisis) ? "Pérdida de Calor (BTU/pie h)"
                                              : "Pérdida de Calor (BTU/pie² h)";
        mTextos.letrasY = "Qv";
    }
    mTextos.etiquetaX = kEtiquetaX;
    mTextos.titulo = mEtiquetaY + " vs " + kEtiquetaX;
}

std::string ModeloGraficas::FormatoEncabezado() const {
    return "^ " + mEtiquetaY + " |^ " + kColumnaEspesor;
}

bool ModeloGraficas::Graficar(Surface& superficie, double ancho, double alto) {
    if (mOcupado || !CalcularSerie()) {
        return false;
    }
    const Ocupacion ocupacion(mOcupado);
    mEscala = EscalaGrafica::De(mEjes, ancho, alto);
    DibujarGrafica(superficie, mEscala, mSerie, mEjes, mTipoGrafica, mTextos);
    return true;
}

// A series that stops leaves the previous one, and its drawing, in place.
bool ModeloGraficas::CalcularSerie() {
    if (mOcupado) {
        return false;
    }
    if (mSerieLista) {
        return true;
    }
    const Ocupacion ocupacion(mOcupado);
    SerieGrafica serie;
    try {
        if (!Barrido(serie)) {
            return false;
        }
    } catch (const RuntimeError&) {
        return false;
    }
    mSerie = std::move(serie);
    mEjes = CalcularEjes(mSerie);
    LlenarTabla();
    mSerieLista = true;
    return true;
}

// Point 0 is the user's own TS; points 1 to N run from TA upward in steps of 1 °F. The cold
// products leave the series empty. A sweep with TI below TA has no points and stops.
bool ModeloGraficas::Barrido(SerieGrafica& serie) {
    if (mVentana == nullptr) {
        return false;
    }
    if (!TieneSerie(mTipoAnalisis)) {
        return true;
    }
    const LlamadaCalculo llamada = PrepararLlamada(*mVentana);
    mTI = Valor<double>(llamada, "TemperaturaInterior");
    mTA = Valor<double>(llamada, "TemperaturaAmbiente");
    serie.N = UltimoPunto(mTI, mTA);
    if (serie.N < 0) {
        return false;
    }
    serie.X.assign(static_cast<size_t>(serie.N) + 1, 0.0);
    serie.Y.assign(serie.X.size(), 0.0);
    Preparar(llamada);
    double TS = Valor<double>(llamada, "TemperaturaSuperficieAislamiento");
    for (int i = 0; i <= serie.N; ++i) {
        if (!mBomba.DoEvents() || !Punto(serie, i, TS)) {
            return false;
        }
        TS = i == 0 ? mTA : TS + kPaso;
    }
    return true;
}

// TI, TA, V and the diameter are converted once per series.
void ModeloGraficas::Preparar(const LlamadaCalculo& llamada) {
    mTuberia = EsTuberia(mTipoAnalisis);
    mSP = ArgumentosSP{};
    mSC = ArgumentosSC{};
    mSP.TemperaturaInterior = mSC.TemperaturaInterior = mTI;
    mSP.TemperaturaAmbiente = mSC.TemperaturaAmbiente = mTA;
    mSP.VelocidadAire = mSC.VelocidadAire = Valor<double>(llamada, "VelocidadAire");
    mSP.modoGrafica = mSC.modoGrafica = true;
    mSP.tipoGrafica = mSC.tipoGrafica = mTipoGrafica;
    if (mTuberia) {
        mSC.DiametroTuberia = Valor<double>(llamada, "DiametroTuberia");
    }
    mResultados.emplace(
            mTuberia ? TipoResultados::SuperficiesCilindricas : TipoResultados::SuperficiesPlanas,
            mUnidades, mPrompter, mBomba);
    mResultados->SetTipoAnalisis(mTipoAnalisis);
    mLeida = false;
}

// The routine cuts a nominal diameter of 14 or more to its integer part, for the rest of the
// series too.
bool ModeloGraficas::Punto(SerieGrafica& serie, int i, double TS) {
    if (mVentana == nullptr) {
        return false;
    }
    LeerVentana();
    const auto p = static_cast<size_t>(i);
    bool bien = false;
    if (mTuberia) {
        mSC.TemperaturaSuperficieAislamiento = TS;
        mSC.espesorGrafica = serie.X[p];
        mSC.valorGrafica = serie.Y[p];
        bien = RealizarCalculosSC(*mResultados, mSC, mTubos);
        serie.X[p] = mSC.espesorGrafica;
        serie.Y[p] = mSC.valorGrafica;
    } else {
        mSP.TemperaturaSuperficieAislamiento = TS;
        mSP.espesorGrafica = serie.X[p];
        mSP.valorGrafica = serie.Y[p];
        bien = RealizarCalculosSP(*mResultados, mSP);
        serie.X[p] = mSP.espesorGrafica;
        serie.Y[p] = mSP.valorGrafica;
    }
    return bien;
}

// Emissivities, codes and names are read from the window at each point: anew when a box, a
// list or a material name has changed since they were last read.
void ModeloGraficas::LeerVentana() {
    if (mLeida && !VentanaCambio()) {
        return;
    }
    const LlamadaCalculo llamada = PrepararLlamada(*mVentana);
    mSP.unidades = mSC.unidades = Valor<NombresUnidades>(llamada, "unidades");
    mSP.EmisividadSuperficieAislamiento = mSC.EmisividadSuperficieAislamiento =
            Valor<double>(llamada, "EmisividadSuperficieAislamiento");
    mSP.CodigoMaterialSuperficieAislamiento = mSC.CodigoMaterialSuperficieAislamiento =
            Valor<int16_t>(llamada, "CodigoMaterialSuperficieAislamiento");
    mSP.NombreMaterialAislamiento = mSC.NombreMaterialAislamiento =
            Valor<std::string>(llamada, "NombreMaterialAislamiento");
    if (!mTuberia) {
        mSP.EmisividadSuperficieDesnuda = Valor<double>(llamada, "EmisividadSuperficieDesnuda");
        mSP.CodigoMaterialSuperficieDesnuda =
                Valor<int16_t>(llamada, "CodigoMaterialSuperficieDesnuda");
        mSP.NombreMaterialDesnuda = Valor<std::string>(llamada, "NombreMaterialDesnuda");
    }
    RecordarVentana();
}

bool ModeloGraficas::VentanaCambio() const {
    const ModeloEntrada& v = *mVentana;
    for (int i = 1; i <= v.Ventana().Cajas(); ++i) {
        const auto k = static_cast<size_t>(i - 1);
        const int lista = v.TieneLista(i) ? v.Lista(i).ListIndex : -1;
        if (v.Texto(i) != mTextosLeidos[k] || lista != mListasLeidas[k]) {
            return true;
        }
    }
    return v.NombreMaterialAislamiento() != mNombreAislamiento ||
           v.NombreMaterialDesnuda() != mNombreDesnuda;
}

void ModeloGraficas::RecordarVentana() {
    const ModeloEntrada& v = *mVentana;
    mTextosLeidos.clear();
    mListasLeidas.clear();
    for (int i = 1; i <= v.Ventana().Cajas(); ++i) {
        mTextosLeidos.push_back(v.Texto(i));
        mListasLeidas.push_back(v.TieneLista(i) ? v.Lista(i).ListIndex : -1);
    }
    mNombreAislamiento = v.NombreMaterialAislamiento();
    mNombreDesnuda = v.NombreMaterialDesnuda();
    mLeida = true;
}

void ModeloGraficas::LlenarTabla() {
    mMSFG = Grilla();
    mMSFG.SetCols(2);
    mMSFG.SetRows(1);
    mMSFG.SetTextMatrix(0, 0, mEtiquetaY);
    mMSFG.SetTextMatrix(0, 1, kColumnaEspesor);
    for (int columna = 0; columna < 2; ++columna) {
        mMSFG.Estilo(0, columna).alineacion = Alineacion::Centro;
    }
    for (const FilaTablaGrafica& fila : TablaSerie(mSerie, mEjes, mTipoGrafica)) {
        const int r = mMSFG.Rows();
        mMSFG.SetRows(r + 1);
        mMSFG.SetTextMatrix(r, 0, Formateado(fila.y, "0.0#"));
        mMSFG.SetTextMatrix(r, 1, Formateado(fila.x, "0.0#"));
    }
}

// Inside the frame the status panel names both values; outside, tool tip and panel are empty.
LecturaRaton ModeloGraficas::picGrafica_MouseMove(double x, double y) const {
    if (mOcupado) {
        return {std::nullopt, mCaption};
    }
    const bool dentro = mSerieLista && !mSerie.Vacia() && x >= mEjes.Xlow &&
                        x <= mEjes.Xhigh + mEjes.mX && y >= mEjes.Ylow && y <= mEjes.Yhigh;
    if (!dentro) {
        return {std::string(), std::string()};
    }
    const std::string textoX = Formateado(x, "0.0");
    const std::string textoY = Formateado(y, "0.0");
    return {"(" + textoX + ", " + textoY + ")",
            mTextos.etiquetaX + " = " + textoX + ",  " + mEtiquetaY + " = " + textoY};
}

void ModeloGraficas::tbs_Click(int pestana) {
    if (pestana == mPestana) {
        return;
    }
    mPestana = pestana;
    mTag = pestana == 0 ? "15" : "16";
}

void ModeloGraficas::Descargar() {
    mVentana = nullptr;
}

void ModeloGraficas::Avisar(const std::string& texto) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = Icono::Exclamacion;
    mensaje.titulo = kTituloAplicacion;
    mPrompter.MsgBox(mensaje);
}

}  // namespace kelvora
