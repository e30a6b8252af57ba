#include "cli/graficar.h"

#include "cli/calcular.h"
#include "cli/dibujo.h"
#include "cli/json.h"
#include "core/app/contexto.h"
#include "core/charts/modelograficas.h"
#include "core/datafile/listadogrilla.h"
#include "core/entry/llamadacalculo.h"
#include "core/entry/modeloentrada.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <optional>

namespace kelvora::cli {

namespace {

// The picture: 240 × 150 mm at 5 pixels per mm, 1200 × 750 pixels.
constexpr double kAncho = 240;
constexpr double kAlto = 150;
constexpr double kPixelesPorMm = 5;

// The windowless pump gives up after 10,000,000 passes; a series costs a few hundred a point.
constexpr int32_t kPuntosMaximos = 20000;

struct OpcionesGraficar {
    std::string archivo;
    std::string tipo;
    bool json = false;
    bool sinBD = false;
    std::string png;
    std::string svg;

    int16_t TipoGrafica() const {
        return static_cast<int16_t>(tipo == "1" ? kGraficaTemperatura : kGraficaCalor);
    }
};

std::string ComoJson(const ModeloGraficas& grafica) {
    const SerieGrafica& s = grafica.Serie();
    const EjesGrafica& e = grafica.Ejes();
    Json json = {{"N", s.N},         {"X", s.X},
                 {"Y", s.Y},         {"Xlow", e.Xlow},
                 {"Xhigh", e.Xhigh}, {"Ylow", e.Ylow},
                 {"Yhigh", e.Yhigh}, {"mX", e.mX},
                 {"mY", e.mY},       {"tabla", Json::array()}};
    for (const FilaTablaGrafica& fila : TablaSerie(s, e, grafica.tipoGrafica())) {
        json["tabla"].push_back({fila.y, fila.x});
    }
    return TextoJson(json);
}

// The table as the chart window saves it from its table tab.
std::string Listado(const ModeloGraficas& grafica) {
    Grilla tabla = grafica.MSFG();
    tabla.Caption = grafica.Caption();
    return ListadoGrilla(tabla, 16);
}

bool Dibujar(ModeloGraficas& grafica, const OpcionesGraficar& o) {
    bool bien = true;
    for (const auto& [archivo, formato] :
         {std::pair{o.png, FormatoDibujo::Png}, {o.svg, FormatoDibujo::Svg}}) {
        if (!archivo.empty()) {
            const PedidoDibujo pedido{formato, archivo, kAncho, kAlto, kPixelesPorMm};
            bien = DibujarArchivo(pedido,
                                  [&](Surface& superficie) {
                                      grafica.Graficar(superficie, kAncho, kAlto);
                                  }) &&
                   bien;
        }
    }
    return bien;
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
    grafica.setTipoGrafica(o.TipoGrafica(), abierto.ventana, 1);
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
    std::cout << (o.json ? ComoJson(grafica) + '\n' : Listado(grafica)) << std::flush;
    return Dibujar(grafica, o) ? kSalidaBien : kSalidaDetenido;
}

}  // namespace

Ejecucion DeclararGraficar(CLI::App& comando) {
    auto opciones = std::make_shared<OpcionesGraficar>();
    comando.add_option("ARCHIVO", opciones->archivo,
                       "Proyecto .adk en caliente; «-» lo lee de la entrada estándar.")
            ->required();
    comando.add_option("--tipo", opciones->tipo,
                       "1: temperatura de superficie; 2: pérdida de calor; contra el espesor.")
            ->required()
            ->check(CLI::IsMember({"1", "2"}));
    comando.add_flag("--json", opciones->json, "La serie y los ejes en un objeto JSON.");
    comando.add_option("--png", opciones->png, "Dibuja la gráfica en este archivo PNG.")
            ->type_name("ARCHIVO");
    comando.add_option("--svg", opciones->svg, "Dibuja la gráfica en este archivo SVG.")
            ->type_name("ARCHIVO");
    comando.add_flag("--sin-bd", opciones->sinBD, "Calcula sin la base de datos de materiales.");
    return [opciones] {
        return ConArchivo(opciones->archivo, opciones->sinBD, false,
                          [&](ArchivoAbierto& abierto) { return Graficar(abierto, *opciones); });
    };
}

}  // namespace kelvora::cli
