#include "core/comparacion/grillacomparacion.h"

#include "core/economics/combustibles.h"
#include "core/economics/modeloeconomico.h"
#include "core/entry/modeloentrada.h"
#include "core/runtime/formato.h"
#include "core/runtime/texto.h"
#include "core/thermal/modeloresultados.h"

#include <algorithm>
#include <numeric>

namespace kelvora {

namespace {

enum Columna {
    kProducto,
    kLimite,
    kPosicion,
    kK,
    kIdeal,
    kPractico,
    kPerdida,
    kEficiencia,
    kCombustible,
    kAhorro
};

const std::vector<const char*> kPosicionesPlanas = {"Cara arriba", "Vertical", "Cara abajo"};
const std::vector<const char*> kPosicionesTuberia = {"Vertical", "Horizontal"};
const std::vector<const char*> kEncabezados = {"Producto",    "Límite",   "Posición", "k",
                                               "Ideal",       "Práctico", "Pérdida",  "Eficiencia",
                                               "Combustible", "Ahorro"};

// The duty as the entry window holds it, in its units: temperatures, speed, diameter.
const char* const kSimbolos[] = {"TI", "TS", "TA", "V", "D"};

bool EsPlana(Analisis analisis) {
    return analisis == Analisis::SP;
}

std::string TextoEnUnidad(const ModeloEntrada& ventana, int caja) {
    return Trim(ventana.Texto(caja)) + " " + ventana.Lista(caja).Text();
}

std::string LineaServicio(const ModeloEntrada& ventana) {
    std::string linea;
    for (int caja = 1; caja <= ventana.Ventana().Cajas() && ventana.TieneLista(caja); ++caja) {
        linea += (linea.empty() ? "" : "   ") + std::string(kSimbolos[caja - 1]) + " " +
                 TextoEnUnidad(ventana, caja);
    }
    for (const BotonMaterial& boton : ventana.Ventana().materiales) {
        linea += std::string("   ") + (boton.desnuda ? "Ed " : "Es ") +
                 Trim(ventana.Texto(boton.cajaEmisividad));
    }
    return linea;
}

std::string LineaUnidades(Analisis analisis, const ModeloEconomico* economia) {
    std::string linea = std::string(
                                "Límite de servicio en °F; k en BTU plg/pie² h °F; espesores en "
                                "plg; pérdida en ") +
                        (EsPlana(analisis) ? "BTU/pie² h" : "BTU/pie h") + "; eficiencia en %";
    if (economia == nullptr) {
        return linea + ".";
    }
    const Combustible& combustible = TablaCombustibles().at(
            static_cast<size_t>(economia->cboCombustibleUtilizado().ListIndex));
    const std::string nombre =
            economia->txtValor(economia->Ventana().nombreCombustible.indice).Text;
    return linea + kSaltoDeLinea + "Combustible ahorrado (" + nombre + ") en " +
           combustible.precioPor + " y dinero ahorrado, por año, con " +
           economia->cboHorasTrabajadas().Text + " h de trabajo.";
}

// Builds the grid row by row.
class Escritor {
public:
    Escritor(Grilla& grilla, int columnas) : mGrilla(grilla) { mGrilla.SetCols(columnas); }

    int NuevaFila() {
        mGrilla.SetRows(mGrilla.Rows() + 1);
        return mGrilla.Rows() - 1;
    }

    void Encabezado(const std::string& texto) {
        const int fila = NuevaFila();
        mGrilla.SetMergeRow(fila, true);
        for (int c = 0; c < mGrilla.Cols(); ++c) {
            mGrilla.SetTextMatrix(fila, c, texto);
        }
    }

    void Celda(int fila, int columna, std::string texto) {
        if (columna < mGrilla.Cols()) {
            mGrilla.SetTextMatrix(fila, columna, std::move(texto));
        }
    }

    // A text printed across to the right margin instead of widening its column.
    void TextoLargo(int fila, int columna, std::string texto) {
        std::replace(texto.begin(), texto.end(), ';', ',');
        Celda(fila, columna, texto);
        mLargos.push_back(std::move(texto));
        mGrilla.SetRowData(fila, static_cast<int32_t>(mLargos.size()));
        mGrilla.SetColData(columna, 1);
        mGrilla.Tag = std::accumulate(mLargos.begin(), mLargos.end(), std::string("."),
                                      [](const std::string& lista, const std::string& largo) {
                                          return lista + ";" + largo;
                                      }) +
                      ";";
    }

private:
    Grilla& mGrilla;
    std::vector<std::string> mLargos;
};

void EscribirAhorro(Escritor& escritor, int fila, const ProductoComparado& producto,
                    const ModeloEconomico& economia, const classUnidades& unidades) {
    if (!producto.ahorro) {
        if (!producto.mensaje.empty()) {
            escritor.TextoLargo(fila, kCombustible, producto.mensaje);
        }
        return;
    }
    const Ahorro& ahorro = *producto.ahorro;
    const double combustible =
            std::accumulate(ahorro.combustible.begin(), ahorro.combustible.end(), 0.0);
    const std::string moneda = economia.cboUnidad(economia.Ventana().valor.indice).Text;
    escritor.Celda(fila, kCombustible, Format(combustible, "Standard"));
    escritor.Celda(fila, kAhorro,
                   unidades.getUnitCurrency(moneda) + Format(ahorro.total, "Standard"));
}

}  // namespace

std::string TituloComparacion(Analisis analisis) {
    return std::string("Comparación de Productos - Superficies ") +
           (EsPlana(analisis) ? "Planas" : "Cilíndricas") + " (Calor)";
}

Grilla GrillaComparacion(const Comparacion& comparacion, const ModeloEntrada& ventana,
                         const ModeloEconomico* economia) {
    Grilla grilla;
    grilla.Caption = TituloComparacion(comparacion.analisis);
    Escritor escritor(grilla, economia != nullptr ? kAhorro + 1 : kCombustible);
    escritor.Encabezado(kEmpresa);
    escritor.Encabezado(UCase(grilla.Caption));
    escritor.Encabezado(LineaServicio(ventana) + kSaltoDeLinea +
                        LineaUnidades(comparacion.analisis, economia));
    const int cabeza = escritor.NuevaFila();
    for (int c = 0; c < grilla.Cols(); ++c) {
        escritor.Celda(cabeza, c, kEncabezados[static_cast<size_t>(c)]);
    }
    const auto& posiciones = EsPlana(comparacion.analisis) ? kPosicionesPlanas : kPosicionesTuberia;
    for (const ProductoComparado& producto : comparacion.productos) {
        int fila = escritor.NuevaFila();
        grilla.SetRowData(fila, -fila);
        escritor.Celda(fila, kProducto, producto.nombre);
        escritor.Celda(fila, kLimite, Format(producto.limite, "0"));
        if (producto.estado == EstadoProducto::FueraDeServicio) {
            escritor.Celda(fila, kPosicion, "fuera de servicio");
            continue;
        }
        if (producto.estado == EstadoProducto::Fallido) {
            escritor.TextoLargo(fila, kPosicion, producto.mensaje);
            continue;
        }
        if (economia != nullptr) {
            EscribirAhorro(escritor, fila, producto, *economia, ventana.Unit());
        }
        for (size_t p = 0; p < producto.posiciones.size(); ++p) {
            if (p > 0) {
                fila = escritor.NuevaFila();
            }
            const PosicionComparada& posicion = producto.posiciones[p];
            escritor.Celda(fila, kPosicion, posiciones.at(p));
            escritor.Celda(fila, kK, posicion.k);
            escritor.Celda(fila, kIdeal, posicion.ideal);
            escritor.Celda(fila, kPractico, posicion.practico);
            escritor.Celda(fila, kPerdida, posicion.perdida);
            escritor.Celda(fila, kEficiencia, posicion.eficiencia);
        }
    }
    if (comparacion.TodosFueraDeServicio()) {
        escritor.Encabezado("Ningún producto de la familia sirve a una Temperatura Interior de " +
                            TextoEnUnidad(ventana, 1) + ".");
    }
    return grilla;
}

}  // namespace kelvora
