#include "core/thermal/modeloresultados.h"

#include "core/app/contexto.h"
#include "core/runtime/formato.h"
#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"
#include "core/thermal/biseccion.h"
#include "core/thermal/productos.h"
#include "core/units/unidades.h"

namespace kelvora {

namespace {

constexpr int kSubindiceFueraDeIntervalo = 9;
constexpr int kColumnas = 3;
constexpr double kAltoEncabezado = 2.5;
constexpr int kColorEtiqueta = 1;
constexpr int kColorValor = 2;
constexpr int kColorTextoEncabezado = 4;
constexpr int kColorFondoEncabezado = 5;
constexpr const char* kFinDeLinea = "\r\n";

// The product name in upper case, but with its density unit as the catalogue writes it.
std::string ProductoEnMayusculas(const std::string& nombre) {
    static const std::string kUnidadMayusculas = "KG/M³";
    static const std::string kUnidad = "kg/m³";
    std::string texto = UCase(nombre);
    for (size_t i = texto.find(kUnidadMayusculas); i != std::string::npos;
         i = texto.find(kUnidadMayusculas, i + kUnidad.size())) {
        texto.replace(i, kUnidadMayusculas.size(), kUnidad);
    }
    return texto;
}

}  // namespace

const std::string& UnidadVisual(const NombresUnidades& unidades, int i) {
    if (i < 1 || static_cast<size_t>(i) > unidades.size()) {
        throw RuntimeError(kSubindiceFueraDeIntervalo, "El subíndice está fuera del intervalo");
    }
    return unidades[static_cast<size_t>(i - 1)];
}

ModeloResultados::ModeloResultados(TipoResultados tipo, const classUnidades& unidades,
                                   Prompter& prompter, EventPump& bomba)
    : mVentana(DescripcionResultados(tipo)),
      mUnidades(unidades),
      mPrompter(prompter),
      mBomba(bomba),
      mResultadosCalculo(static_cast<size_t>(mVentana.Ranuras()), 0.0) {
    for (const auto& [nombre, valor] : mVentana.valores) {
        mValores.Establecer(nombre, valor);
    }
}

double ModeloResultados::Resultado(int ranura) const {
    return mResultadosCalculo.at(static_cast<size_t>(ranura - 1));
}

void ModeloResultados::MostrarResultados(const std::vector<double>& resultados,
                                         const NombresUnidades& unidades) {
    mResultadosCalculo = resultados;
    mResultadosCalculo.resize(static_cast<size_t>(mVentana.Ranuras()), 0.0);
    LimpiarGrilla();
    EscribirEncabezado(0, UCase(kEmpresa));
    EscribirEncabezado(1, TituloProducto());
    for (int bloque = 0; bloque < mVentana.Bloques(); ++bloque) {
        EscribirBloque(bloque, unidades);
    }
}

void ModeloResultados::LimpiarGrilla() {
    mMSFG.SetRows(0);
    mMSFG.SetCols(kColumnas);
    mMSFG.SetRows(mVentana.filas);
    for (int fila = 0; fila < mVentana.filas; ++fila) {
        for (int columna = 0; columna < kColumnas; ++columna) {
            mMSFG.Estilo(fila, columna).alineacion =
                    columna == 0 ? Alineacion::Izquierda : Alineacion::Centro;
        }
    }
}

std::string ModeloResultados::TituloProducto() const {
    return UCase(mVentana.titulo) + kFinDeLinea +
           ProductoEnMayusculas(NombreProducto(mTipoAnalisis, false));
}

void ModeloResultados::EscribirEncabezado(int fila, const std::string& texto) {
    for (int columna = 0; columna < kColumnas; ++columna) {
        mMSFG.SetTextMatrix(fila, columna, texto);
        EstiloCelda& estilo = mMSFG.Estilo(fila, columna);
        estilo.negrita = true;
        estilo.colorFondo = kColorFondoEncabezado;
        estilo.colorTexto = kColorTextoEncabezado;
        estilo.alineacion = Alineacion::Centro;
    }
    mMSFG.SetRowHeight(fila, mMSFG.RowHeight(fila) * kAltoEncabezado);
    mMSFG.SetMergeRow(fila, true);
}

void ModeloResultados::EscribirBloque(int bloque, const NombresUnidades& unidades) {
    const int base = kFilasEncabezado + kFilasPorBloque * bloque;
    const std::string posicion = mVentana.posiciones[static_cast<size_t>(bloque / 2)];
    EscribirEncabezado(base, posicion + kFinDeLinea + CasoBloque(bloque));
    for (int desplazamiento = 1; desplazamiento <= kFilasDatos; ++desplazamiento) {
        EscribirDato(base + desplazamiento, mVentana.datos[static_cast<size_t>(desplazamiento - 1)],
                     unidades);
        if (desplazamiento == kFilaEspesor) {
            mMSFG.SetRowData(base + desplazamiento, -(base + desplazamiento));
        }
    }
}

void ModeloResultados::EscribirDato(int fila, const FilaResultado& dato,
                                    const NombresUnidades& unidades) {
    mMSFG.SetTextMatrix(fila, 0, dato.etiqueta);
    mMSFG.Estilo(fila, 0).colorFondo = kColorEtiqueta;
    mMSFG.Estilo(fila, 0).negrita = true;
    mMSFG.SetTextMatrix(fila, 2,
                        dato.unidadVisual > 0 ? UnidadVisual(unidades, dato.unidadVisual)
                                              : std::string(dato.unidad));
    const double valor = Resultado(fila - kFilasEncabezado);
    mMSFG.SetTextMatrix(fila, 1, TextoValor(valor, dato, unidades));
    mMSFG.Estilo(fila, 1).colorFondo = kColorValor;
    if (dato.material) {
        mMSFG.SetRowData(fila, fila);
        mMSFG.SetTextMatrix(fila, 1, TextoNumero(valor));
    }
}

std::string ModeloResultados::TextoValor(double valor, const FilaResultado& dato,
                                         const NombresUnidades& unidades) const {
    const double mostrado =
            dato.unidadVisual > 0
                    ? DesdeFahrenheit(valor, UnidadVisual(unidades, dato.unidadVisual))
                    : valor;
    std::string texto = Format(mostrado, dato.formato);
    return NormalizarDecimal(texto);
}

bool ModeloResultados::ConTrampa(const std::function<bool()>& calculo) {
    try {
        return calculo();
    } catch (const RuntimeError& error) {
        Avisar("Error inesperado: " + error.description);
        return false;
    } catch (const CalculoInterrumpido&) {
        return false;
    }
}

void ModeloResultados::Avisar(const std::string& texto) {
    Mensaje mensaje;
    mensaje.texto = texto;
    mensaje.icono = Icono::Exclamacion;
    mensaje.titulo = kTituloAplicacion;
    mPrompter.MsgBox(mensaje);
}

double ModeloResultados::DesdeFahrenheit(double valor, const std::string& unidad) const {
    return mUnidades.Convert(valor, "°F", unidad);
}

}  // namespace kelvora
