#include "cli/comparar.h"

#include "cli/calcular.h"
#include "cli/economia.h"
#include "cli/json.h"
#include "core/comparacion/grillacomparacion.h"
#include "core/datafile/listadogrilla.h"
#include "core/datafile/ventanaarchivo.h"
#include "core/economics/modeloeconomico.h"
#include "core/entry/modeloentrada.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>
#include <numeric>

namespace kelvora::cli {

namespace {

struct OpcionesComparar {
    std::string archivo;
    std::shared_ptr<ValoresEconomicos> economia = std::make_shared<ValoresEconomicos>();
    bool json = false;
    bool sinBD = false;
};

const char* NombreEstado(EstadoProducto estado) {
    switch (estado) {
        case EstadoProducto::Calculado:
            return "calculado";
        case EstadoProducto::FueraDeServicio:
            return "fuera de servicio";
        case EstadoProducto::Fallido:
            break;
    }
    return "fallido";
}

Json ProductoJson(const ProductoComparado& producto) {
    Json json = {{"codigo", producto.codigo},   {"nombre", producto.nombre},
                 {"limite_F", producto.limite}, {"estado", NombreEstado(producto.estado)},
                 {"mensaje", producto.mensaje}, {"posiciones", Json::array()}};
    for (const PosicionComparada& p : producto.posiciones) {
        json["posiciones"].push_back({{"k", p.k},
                                      {"E_ideal", p.ideal},
                                      {"E_practico", p.practico},
                                      {"Qt", p.perdida},
                                      {"Ef", p.eficiencia}});
    }
    if (producto.ahorro) {
        const std::vector<double>& combustible = producto.ahorro->combustible;
        json["combustible"] = std::accumulate(combustible.begin(), combustible.end(), 0.0);
        json["ahorro"] = producto.ahorro->total;
    }
    return json;
}

Json ComoJson(const OpcionesComparar& opciones, const Comparacion& comparacion) {
    Json json = {{"archivo", opciones.archivo},
                 {"ok", true},
                 {"analisis", comparacion.analisis == Analisis::SP ? "SP" : "SC"},
                 {"unidad_Qt", comparacion.analisis == Analisis::SP ? "BTU/pie² h" : "BTU/pie h"},
                 {"todosFueraDeServicio", comparacion.TodosFueraDeServicio()},
                 {"productos", Json::array()}};
    for (const ProductoComparado& producto : comparacion.productos) {
        json["productos"].push_back(ProductoJson(producto));
    }
    return json;
}

// The economic window of the analysis filled from the options and checked as "C&alcular"
// checks it; nullptr after a message when the options do not pass.
std::unique_ptr<ModeloEconomico> Economia(ArchivoAbierto& abierto, const OpcionesComparar& o,
                                          Clock& reloj, int& salida) {
    const TipoEconomico tipo = abierto.ventana.Ventana().analisis == Analisis::SP
                                       ? TipoEconomico::SuperficiesPlanas
                                       : TipoEconomico::SuperficiesCilindricas;
    auto economia = std::make_unique<ModeloEconomico>(tipo, abierto.contexto, abierto.prompter,
                                                      abierto.bomba, reloj);
    salida = kSalidaUso;
    if (!LlenarEconomia(*economia, *o.economia)) {
        return nullptr;
    }
    salida = kSalidaDetenido;
    for (const std::string& faltante : economia->DatosFaltantes()) {
        std::cerr << o.archivo << ": falta en el análisis económico: " << faltante << ".\n";
    }
    if (!economia->DatosFaltantes().empty() || !economia->Comprobar()) {
        return nullptr;
    }
    return economia;
}

int Comparar(ArchivoAbierto& abierto, const OpcionesComparar& opciones) {
    if (!PuedeCompararse(abierto.ventana.Ventana().analisis)) {
        std::cerr << opciones.archivo
                  << ": la comparación de productos es solo de los análisis en caliente.\n";
        return kSalidaDetenido;
    }
    RelojSistema reloj;
    std::unique_ptr<ModeloEconomico> economia;
    if (!opciones.economia->empty()) {
        int salida = kSalidaBien;
        economia = Economia(abierto, opciones, reloj, salida);
        if (economia == nullptr) {
            return salida;
        }
    }
    const Comparacion comparacion =
            CompararProductos(abierto.ventana, abierto.tubos, abierto.bomba, economia.get());
    if (opciones.json) {
        std::cout << TextoJson(ComoJson(opciones, comparacion)) << '\n';
    } else {
        std::cout << ListadoGrilla(GrillaComparacion(comparacion, abierto.ventana, economia.get()),
                                   NumeroTag(kTagComparacion));
    }
    return comparacion.TodosFueraDeServicio() ? kSalidaDetenido : kSalidaBien;
}

}  // namespace

Ejecucion DeclararComparar(CLI::App& comando) {
    auto opciones = std::make_shared<OpcionesComparar>();
    comando.add_option("ARCHIVO", opciones->archivo,
                       "Proyecto .adk en caliente; «-» lo lee de la entrada estándar.")
            ->required();
    DeclararOpcionesEconomicas(comando, opciones->economia);
    comando.add_flag("--json", opciones->json, "Un objeto JSON en una línea: cada producto.");
    comando.add_flag("--sin-bd", opciones->sinBD, "Calcula sin la base de datos de materiales.");
    return [opciones] {
        return ConArchivo(opciones->archivo, opciones->sinBD, false,
                          [&](ArchivoAbierto& abierto) { return Comparar(abierto, *opciones); });
    };
}

}  // namespace kelvora::cli
