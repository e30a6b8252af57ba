#include "cli/graficar.h"

#include "cli/calcular.h"
#include "cli/json.h"
#include "core/app/contexto.h"
#include "core/charts/modelograficas.h"
#include "core/datafile/listadogrilla.h"
#include "core/entry/llamadacalculo.h"
#include "core/entry/modeloentrada.h"

#include <iostream>
#include <optional>

#ifdef KELVORA_QTSURFACE
#include "qtsurfaceimagen.h"
#endif

namespace kelvora::cli {

namespace {

constexpr const char* kUso =
        "Uso: kelvora-cli graficar ARCHIVO.adk --tipo 1|2 [--json] [--png F] [--svg F] "
        "[--sin-bd]";

// The picture: 240 × 150 mm at 5 pixels per mm, 1200 × 750 pixels.
constexpr double kAncho = 240;
constexpr double kAlto = 150;
constexpr double kPixelesPorMm = 5;

// The windowless pump gives up after 10,000,000 passes; a series costs a few hundred a point.
constexpr int32_t kPuntosMaximos = 20000;

struct OpcionesGraficar {
    std::string archivo;
    int16_t tipo = 0;
    bool json = false;
    bool sinBD = false;
    std::string png;
    std::string svg;
};

bool LeerTipo(const std::string& texto, OpcionesGraficar& opciones) {
    if (texto != "1" && texto != "2") {
        return false;
    }
    opciones.tipo = static_cast<int16_t>(texto == "1" ? kGraficaTemperatura : kGraficaCalor);
    return true;
}

std::optional<OpcionesGraficar> LeerOpciones(const Argumentos& argumentos) {
    OpcionesGraficar o;
    for (size_t i = 0; i < argumentos.size(); ++i) {
        const std::string& a = argumentos[i];
        const bool hayValor = i + 1 < argumentos.size();
        if (a == "--json" || a == "--sin-bd") {
            (a == "--json" ? o.json : o.sinBD) = true;
        } else if (a == "--tipo" && hayValor && LeerTipo(argumentos[i + 1], o)) {
            ++i;
        } else if ((a == "--png" || a == "--svg") && hayValor) {
            (a == "--png" ? o.png : o.svg) = argumentos[++i];
        } else if (a.starts_with("-") || !o.archivo.empty()) {
            std::cerr << "Opción desconocida o sin valor: " << a << '\n';
            return std::nullopt;
        } else {
            o.archivo = a;
        }
    }
    if (o.archivo.empty() || o.tipo == 0) {
        return std::nullopt;
    }
    return o;
}

void ListaNumeros(EscritorJson& json, const char* clave, const std::vector<double>& numeros) {
    json.Clave(clave).AbrirLista();
    for (const double numero : numeros) {
        json.Numero(numero);
    }
    json.CerrarLista();
}

std::string Json(const ModeloGraficas& grafica) {
    const SerieGrafica& s = grafica.Serie();
    const EjesGrafica& e = grafica.Ejes();
    EscritorJson json;
    json.AbrirObjeto().Clave("N").Numero(s.N);
    ListaNumeros(json, "X", s.X);
    ListaNumeros(json, "Y", s.Y);
    json.Clave("Xlow").Numero(e.Xlow).Clave("Xhigh").Numero(e.Xhigh);
    json.Clave("Ylow").Numero(e.Ylow).Clave("Yhigh").Numero(e.Yhigh);
    json.Clave("mX").Numero(e.mX).Clave("mY").Numero(e.mY).Clave("tabla").AbrirLista();
    for (const FilaTablaGrafica& fila : TablaSerie(s, e, grafica.tipoGrafica())) {
        json.AbrirLista().Numero(fila.y).Numero(fila.x).CerrarLista();
    }
    json.CerrarLista().CerrarObjeto();
    return json.Resultado();
}

// The table as the chart window saves it from its table tab.
std::string Listado(const ModeloGraficas& grafica) {
    Grilla tabla = grafica.MSFG();
    tabla.Caption = grafica.Caption();
    return ListadoGrilla(tabla, 16);
}

bool Dibujar([[maybe_unused]] ModeloGraficas& grafica, const OpcionesGraficar& o) {
    if (o.png.empty() && o.svg.empty()) {
        return true;
    }
#ifdef KELVORA_QTSURFACE
    QtSurfaceImagen imagen(kAncho, kAlto, kPixelesPorMm);
    grafica.Graficar(imagen, kAncho, kAlto);
    bool bien = true;
    for (const auto& [archivo, guardado] :
         {std::pair{o.png, &QtSurfaceImagen::GuardarPng}, {o.svg, &QtSurfaceImagen::GuardarSvg}}) {
        if (!archivo.empty() && !(imagen.*guardado)(archivo)) {
            std::cerr << "No se pudo escribir " << archivo << ".\n";
            bien = false;
        }
    }
    return bien;
#else
    std::cerr << "Esta compilación de kelvora-cli no dibuja imágenes (sin Qt).\n";
    return false;
#endif
}

// A sweep too long for the windowless pump is refused before it starts.
bool SerieAlcanzable(const ModeloEntrada& ventana, const std::string& archivo) {
    const LlamadaCalculo llamada = PrepararLlamada(ventana);
    const double TI = std::get<double>(llamada.Argumento("TemperaturaInterior"));
    const double TA = std::get<double>(llamada.Argumento("TemperaturaAmbiente"));
    if (TI - TA < kPuntosMaximos) {
        return true;
    }
    std::cerr << archivo << ": la gráfica iría de TA a TI en más de " << kPuntosMaximos
              << " puntos.\n";
    return false;
}

int Graficar(ArchivoAbierto& abierto, const OpcionesGraficar& o) {
    ModeloGraficas grafica(abierto.contexto.Unidades, abierto.prompter, abierto.bomba,
                           abierto.tubos);
    grafica.setTipoGrafica(o.tipo, abierto.ventana, 1);
    if (!SerieAlcanzable(abierto.ventana, o.archivo)) {
        return kSalidaDetenido;
    }
    if (!grafica.CalcularSerie()) {
        std::cerr << o.archivo << ": la serie de la gráfica se detuvo.\n";
        return kSalidaDetenido;
    }
    if (grafica.Serie().Vacia()) {
        std::cerr << o.archivo << ": los productos en frío no tienen gráfica.\n";
        return kSalidaDetenido;
    }
    std::cout << (o.json ? Json(grafica) + '\n' : Listado(grafica)) << std::flush;
    return Dibujar(grafica, o) ? kSalidaBien : kSalidaDetenido;
}

}  // namespace

int ComandoGraficar(const Argumentos& argumentos) {
    const std::optional<OpcionesGraficar> opciones = LeerOpciones(argumentos);
    if (!opciones) {
        std::cerr << kUso << '\n';
        return kSalidaUso;
    }
    return ConArchivo(opciones->archivo, opciones->sinBD, false,
                      [&](ArchivoAbierto& abierto) { return Graficar(abierto, *opciones); });
}

}  // namespace kelvora::cli
