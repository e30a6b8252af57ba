#include "core/comparacion/comparacion.h"

#include "core/economics/modeloeconomico.h"
#include "core/economics/traspasoresultados.h"
#include "core/entry/llamadacalculo.h"
#include "core/entry/modeloentrada.h"
#include "core/platform/prompter.h"
#include "core/runtime/runtimeerror.h"
#include "core/thermal/modeloresultados.h"

#include <algorithm>
#include <numeric>

namespace kelvora {

namespace {

constexpr int kFilaK = 9;
constexpr int kFilaQt = 14;
constexpr int kFilaEf = 16;

// Keeps the message a routine gives instead of showing it, and answers as the command line.
class PrompterRegistro : public Prompter {
public:
    Respuesta MsgBox(const Mensaje& mensaje) override {
        ultimo = mensaje.texto;
        return RespuestaQueSigue(mensaje.botones);
    }
    std::optional<std::string> InputBox(const Entrada&) override { return std::nullopt; }

    std::string ultimo;
};

// Position p has its ideal block 2p and its practical block 2p + 1 in the results window.
PosicionComparada LeerPosicion(const ModeloResultados& resultados, int posicion) {
    const int ideal = 2 * posicion;
    const int practico = ideal + 1;
    const auto celda = [&](int bloque, int desplazamiento) {
        return resultados.MSFG().TextMatrix(
                kFilasEncabezado + kFilasPorBloque * bloque + desplazamiento, 1);
    };
    const auto ranura = [&](int bloque, int desplazamiento) {
        return resultados.Resultado(kFilasPorBloque * bloque + desplazamiento);
    };
    return {celda(practico, kFilaK),  celda(ideal, kFilaEspesor), celda(practico, kFilaEspesor),
            celda(practico, kFilaQt), celda(practico, kFilaEf),   ranura(practico, kFilaEspesor),
            ranura(practico, kFilaQt)};
}

// The saving of a calculated product, read back as the economic window reads its results.
void AgregarAhorro(ProductoComparado& producto, const ModeloResultados& resultados,
                   const ModeloEconomico& economia) {
    const ValoresAnalisis valores = ValoresParaAnalisis(resultados);
    try {
        producto.ahorro = CalcularMontos(economia.DatosEntrada(valores.QSD, valores.QSA));
    } catch (const RuntimeError& error) {
        producto.mensaje = "Error inesperado: " + error.description;
    }
}

class Comparador {
public:
    Comparador(const ModeloEntrada& ventana, FuenteTubos& tubos, EventPump& bomba,
               const ModeloEconomico* economia)
        : mVentana(ventana),
          mTubos(tubos),
          mBomba(bomba),
          mEconomia(economia),
          mLlamada(PrepararLlamada(ventana)),
          mInterior(std::get<double>(mLlamada.Argumento("TemperaturaInterior"))) {}

    ProductoComparado Calcular(int16_t codigo) {
        ProductoComparado producto;
        producto.codigo = codigo;
        producto.nombre = NombreProducto(codigo, false);
        producto.limite = TemperaturaMaximaProducto(codigo);
        if (producto.limite < mInterior) {
            producto.estado = EstadoProducto::FueraDeServicio;
            return producto;
        }
        PrompterRegistro prompter;
        ModeloResultados resultados(mVentana.Ventana().resultados, mVentana.Unit(), prompter,
                                    mBomba);
        resultados.SetTipoAnalisis(codigo);
        if (!RealizarLlamada(mLlamada, resultados, mTubos)) {
            producto.estado = EstadoProducto::Fallido;
            producto.mensaje =
                    prompter.ultimo.empty() ? "El cálculo se interrumpió." : prompter.ultimo;
            return producto;
        }
        const int posiciones = static_cast<int>(resultados.Ventana().posiciones.size());
        for (int p = 0; p < posiciones; ++p) {
            producto.posiciones.push_back(LeerPosicion(resultados, p));
        }
        if (mEconomia != nullptr) {
            AgregarAhorro(producto, resultados, *mEconomia);
        }
        return producto;
    }

private:
    const ModeloEntrada& mVentana;
    FuenteTubos& mTubos;
    EventPump& mBomba;
    const ModeloEconomico* mEconomia;
    LlamadaCalculo mLlamada;
    double mInterior;
};

bool Antes(const ProductoComparado& a, const ProductoComparado& b) {
    const bool calculadoA = a.estado == EstadoProducto::Calculado;
    const bool calculadoB = b.estado == EstadoProducto::Calculado;
    if (calculadoA != calculadoB) {
        return calculadoA;
    }
    if (!calculadoA || a.Espesor() != b.Espesor()) {
        return calculadoA && a.Espesor() < b.Espesor();
    }
    return a.Perdida() < b.Perdida();
}

}  // namespace

double ProductoComparado::Espesor() const {
    double espesor = 0;
    for (const PosicionComparada& posicion : posiciones) {
        espesor = std::max(espesor, posicion.espesorPractico);
    }
    return espesor;
}

double ProductoComparado::Perdida() const {
    return std::accumulate(
            posiciones.begin(), posiciones.end(), 0.0,
            [](double suma, const PosicionComparada& p) { return suma + p.perdidaPractica; });
}

bool Comparacion::TodosFueraDeServicio() const {
    return std::all_of(productos.begin(), productos.end(), [](const ProductoComparado& p) {
        return p.estado == EstadoProducto::FueraDeServicio;
    });
}

bool PuedeCompararse(Analisis analisis) {
    return analisis == Analisis::SP || analisis == Analisis::SC;
}

Comparacion CompararProductos(const ModeloEntrada& ventana, FuenteTubos& tubos, EventPump& bomba,
                              const ModeloEconomico* economia) {
    Comparador comparador(ventana, tubos, bomba, economia);
    Comparacion comparacion;
    comparacion.analisis = ventana.Ventana().analisis;
    for (int codigo = kPrimerProducto; codigo <= kUltimoProducto; ++codigo) {
        if (BuscarProducto(codigo)->analisis == comparacion.analisis) {
            comparacion.productos.push_back(comparador.Calcular(static_cast<int16_t>(codigo)));
        }
    }
    std::stable_sort(comparacion.productos.begin(), comparacion.productos.end(), Antes);
    return comparacion;
}

}  // namespace kelvora
