#include "cli/verificar.h"

#include "cli/calcular.h"
#include "cli/json.h"
#include "core/app/contexto.h"
#include "core/datafile/listadogrilla.h"
#include "core/datafile/ventanaarchivo.h"
#include "core/thermal/modeloresultados.h"
#include "core/thermal/productos.h"
#include "core/verificacion/informeverificacion.h"
#include "core/verificacion/modeloverificacion.h"

#include <CLI/CLI.hpp>
#include <filesystem>
#include <iostream>
#include <memory>

namespace kelvora::cli {

namespace {

struct OpcionesVerificar {
    std::string archivo;
    std::string longitud = "1";
    bool json = false;
    bool sinBD = false;
};

Json Opcional(const std::optional<double>& valor) {
    return valor ? Json(*valor) : Json(nullptr);
}

Json ComoJson(const OpcionesVerificar& opciones, const Verificacion& v) {
    const DatosVerificacion& d = v.datos;
    Json json = {{"archivo", opciones.archivo},
                 {"ok", true},
                 {"producto", NombreProducto(d.producto, true)},
                 {"frio", d.frio},
                 {"TS_exigida_F", d.requerida},
                 {"longitud_m", d.sistema.aire.L},
                 {"unidad_Qt", d.sistema.D > 0 ? "BTU/pie h" : "BTU/pie² h"},
                 {"posiciones", Json::array()}};
    for (const PosicionVerificada& p : v.posiciones) {
        json["posiciones"].push_back({{"posicion", p.programa.posicion},
                                      {"E_practico_plg", p.programa.E},
                                      {"programa",
                                       {{"TS_F", p.programa.TS},
                                        {"Qt", p.programa.Qt},
                                        {"E_exacto_plg", p.programa.exacto},
                                        {"cumple", p.cumplePrograma}}},
                                      {"moderno",
                                       {{"TS_F", p.moderno.TS},
                                        {"Qt", p.QtModerno},
                                        {"E_necesario_plg", Opcional(p.espesorNecesario)},
                                        {"cumple", p.cumple}}}});
    }
    return json;
}

int VerificarArchivo(ArchivoAbierto& abierto, const OpcionesVerificar& opciones) {
    const std::string origen =
            "[" + std::filesystem::path(opciones.archivo).filename().string() + "]";
    try {
        ModeloVerificacion modelo(DatosDeResultados(*abierto.resultados, abierto.contexto.Unidades),
                                  origen, abierto.prompter);
        if (!modelo.Calcular(opciones.longitud)) {
            return kSalidaDetenido;
        }
        std::cout << (opciones.json ? TextoJson(ComoJson(opciones, *modelo.Resultado())) + '\n'
                                    : ListadoGrilla(modelo.Informe(), NumeroTag(kTagVerificacion)));
    } catch (const RuntimeError& error) {
        std::cerr << error.description << '\n';
        return kSalidaDetenido;
    }
    return kSalidaBien;
}

}  // namespace

Ejecucion DeclararVerificar(CLI::App& comando) {
    auto opciones = std::make_shared<OpcionesVerificar>();
    comando.add_option("ARCHIVO", opciones->archivo,
                       "Proyecto .adk; «-» lo lee de la entrada estándar.")
            ->required();
    comando.add_option("--longitud", opciones->longitud,
                       "Longitud característica en m: altura de paredes y tramos verticales, "
                       "lado de superficies horizontales (1 si se omite).")
            ->type_name("L");
    comando.add_flag("--json", opciones->json,
                     "Un objeto JSON en una línea: cada posición por el programa y por el "
                     "método moderno.");
    comando.add_flag("--sin-bd", opciones->sinBD, "Calcula sin la base de datos de materiales.");
    return [opciones] {
        return ConArchivo(opciones->archivo, opciones->sinBD, true, [&](ArchivoAbierto& abierto) {
            return VerificarArchivo(abierto, *opciones);
        });
    };
}

}  // namespace kelvora::cli
