#include "cli/comandos.h"

#include "cli/aire.h"
#include "cli/calcular.h"
#include "cli/comparar.h"
#include "cli/convertir.h"
#include "cli/economia.h"
#include "cli/graficar.h"
#include "cli/imprimir.h"
#include "cli/materiales.h"
#include "cli/verificar.h"

#include <CLI/CLI.hpp>
#include <iostream>
#include <memory>

namespace kelvora::cli {

namespace {

constexpr const char* kPrograma = "kelvora-cli";

std::string Version() {
    return "Kelvora " + std::to_string(KELVORA_VERSION_MAJOR) + '.' +
           std::to_string(KELVORA_VERSION_MINOR);
}

std::shared_ptr<CLI::Formatter> FormatoEspanol() {
    auto formato = std::make_shared<CLI::Formatter>();
    for (const auto& [ingles, espanol] : {std::pair{"Usage", "Uso"},
                                          {"OPTIONS", "OPCIONES"},
                                          {"SUBCOMMAND", "COMANDO"},
                                          {"SUBCOMMANDS", "COMANDO"},
                                          {"Positionals", "Argumentos"},
                                          {"REQUIRED", "(obligatorio)"},
                                          {"TEXT", "TEXTO"},
                                          {"Needs", "Necesita"},
                                          {"Excludes", "Excluye"}}) {
        formato->label(ingles, espanol);
    }
    formato->column_width(30);
    return formato;
}

// The option or argument an error of the parser names: its message begins with it.
std::string Nombrado(const std::string& mensaje, const std::string& fin) {
    const size_t pos = mensaje.find(fin);
    return pos == std::string::npos ? mensaje : mensaje.substr(0, pos);
}

std::string MensajeError(const CLI::ParseError& error) {
    const std::string mensaje = error.what();
    if (dynamic_cast<const CLI::RequiredError*>(&error) != nullptr) {
        return "Falta " + Nombrado(mensaje, " is required") + '.';
    }
    if (dynamic_cast<const CLI::ArgumentMismatch*>(&error) != nullptr) {
        return "Falta el valor de " + Nombrado(mensaje, ":") + '.';
    }
    if (dynamic_cast<const CLI::ExcludesError*>(&error) != nullptr) {
        const std::string primera = Nombrado(mensaje, " excludes ");
        return primera + " no va con " + mensaje.substr(primera.size() + 10) + '.';
    }
    if (dynamic_cast<const CLI::ValidationError*>(&error) != nullptr ||
        dynamic_cast<const CLI::ConversionError*>(&error) != nullptr) {
        return "Valor no válido para " + Nombrado(mensaje, ":") + '.';
    }
    return mensaje;
}

// The command the arguments chose, or the program itself.
const CLI::App& Elegido(const CLI::App& programa) {
    const std::vector<CLI::App*> elegidos = programa.get_subcommands();
    return elegidos.empty() ? programa : *elegidos.front();
}

int ErrorUso(const CLI::App& programa, const std::string& mensaje) {
    const CLI::App& elegido = Elegido(programa);
    const std::string nombre =
            &elegido == &programa ? kPrograma : std::string(kPrograma) + ' ' + elegido.get_name();
    std::cerr << mensaje << '\n'
              << FormatoEspanol()->make_usage(&elegido, nombre) << "Más información con «" << nombre
              << " --help».\n";
    return kSalidaUso;
}

// Words the parser did not take: an unknown option, an unknown command or one argument too many.
int Sobrantes(const CLI::App& programa) {
    const CLI::App& elegido = Elegido(programa);
    const std::string primero = elegido.remaining().front();
    if (primero.starts_with("-") && primero != "-") {
        return ErrorUso(programa, "Opción desconocida: " + primero);
    }
    return ErrorUso(
            programa,
            (&elegido == &programa ? "Comando desconocido: " : "Argumento de más: ") + primero);
}

// The help of the command chosen, or of the program with a word on the commands' own.
std::string Ayuda(const CLI::App& programa) {
    if (&Elegido(programa) != &programa) {
        return programa.help();
    }
    return programa.help() + "\nLas opciones de cada comando, con «kelvora-cli COMANDO --help».\n";
}

using Ejecuciones = std::vector<std::pair<const CLI::App*, Ejecucion>>;

Ejecuciones Preparar(CLI::App& programa) {
    programa.formatter(FormatoEspanol());
    programa.allow_extras();
    programa.set_help_flag("-h,--help", "Muestra esta ayuda y termina.")->group("Opciones");
    programa.set_version_flag("--version", Version(), "Muestra la versión y termina.")
            ->group("Opciones");
    programa.option_defaults()
            ->group("Opciones")
            ->multi_option_policy(CLI::MultiOptionPolicy::TakeLast);
    Ejecuciones ejecuciones;
    for (const Comando& comando : Comandos()) {
        CLI::App* subcomando = programa.add_subcommand(comando.nombre, comando.descripcion);
        subcomando->group("Comandos");
        subcomando->allow_extras();
        subcomando->set_help_flag("-h,--help", "Muestra esta ayuda y termina.");
        ejecuciones.emplace_back(subcomando, comando.declarar(*subcomando));
        for (CLI::Option* argumento : subcomando->get_options(
                     [](const CLI::Option* opcion) { return opcion->get_positional(); })) {
            argumento->type_name("");
        }
    }
    return ejecuciones;
}

}  // namespace

const std::vector<Comando>& Comandos() {
    static const std::vector<Comando> comandos = {
            {"convertir", "Convierte un valor de una unidad a otra.", DeclararConvertir},
            {"unidades", "Lista las familias de unidades, o las unidades de una familia.",
             DeclararUnidades},
            {"materiales", "Lista los materiales de la base de datos.", DeclararMateriales},
            {"tubo", "Muestra los diámetros de un tubo de la base de datos.", DeclararTubo},
            {"calcular", "Calcula proyectos .adk como el botón «Calcular».", DeclararCalcular},
            {"economia", "Hace el análisis económico de un proyecto en caliente.",
             DeclararEconomia},
            {"graficar", "Calcula la gráfica de un proyecto en caliente; la dibuja en PNG o SVG.",
             DeclararGraficar},
            {"imprimir",
             "Escribe en PDF el documento impreso de un proyecto: resultados o gráfica.",
             DeclararImprimir},
            {"verificar",
             "Comprueba cada posición de un proyecto con correlaciones de película modernas.",
             DeclararVerificar},
            {"comparar", "Calcula cada producto de la familia de un proyecto en caliente.",
             DeclararComparar},
            {"aire", "Calcula las propiedades del aire húmedo.", DeclararAire},
    };
    return comandos;
}

int Despachar(const std::vector<std::string>& argumentos) {
    CLI::App programa("Kelvora: cálculo de aislamiento térmico sin ventanas.", kPrograma);
    const Ejecuciones ejecuciones = Preparar(programa);
    if (argumentos.empty()) {
        std::cerr << Ayuda(programa);
        return kSalidaUso;
    }
    try {
        programa.parse(std::vector<std::string>(argumentos.rbegin(), argumentos.rend()));
    } catch (const CLI::CallForHelp&) {
        std::cout << Ayuda(programa);
        return kSalidaBien;
    } catch (const CLI::CallForVersion& version) {
        std::cout << version.what() << '\n';
        return kSalidaBien;
    } catch (const CLI::ParseError& error) {
        return ErrorUso(programa, MensajeError(error));
    }
    if (!Elegido(programa).remaining().empty()) {
        return Sobrantes(programa);
    }
    for (const auto& [subcomando, ejecucion] : ejecuciones) {
        if (subcomando == &Elegido(programa)) {
            return ejecucion();
        }
    }
    std::cerr << Ayuda(programa);
    return kSalidaUso;
}

}  // namespace kelvora::cli
