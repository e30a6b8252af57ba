#pragma once

#include "cli/comandos.h"

#include <functional>
#include <string>

namespace kelvora {
struct ContextoAplicacion;
class EventPump;
class FuenteTubos;
class ModeloEntrada;
class ModeloResultados;
class Prompter;
}  // namespace kelvora

namespace kelvora::cli {

/// calcular ARCHIVO.adk... [--json | --csv] [--sin-bd]: opens each data file as the program does
/// and presses "C&alcular"; prints the results listing, one JSON object or one CSV row per file.
Ejecucion DeclararCalcular(CLI::App& comando);

/// What a data file opened as `calcular` opens it offers to another command.
struct ArchivoAbierto {
    ContextoAplicacion& contexto;
    Prompter& prompter;
    EventPump& bomba;
    FuenteTubos& tubos;
    ModeloEntrada& ventana;
    /// The results window after "C&alcular"; nullptr when it was not pressed.
    const ModeloResultados* resultados;
};

/// Opens a data file in its entry window as `calcular` does, with the database or without it,
/// presses "C&alcular" when `calcular` is set, and hands what it opened to `usar`, whose exit
/// code it returns; kSalidaDetenido, after the messages, when no window or no result stands.
int ConArchivo(const std::string& archivo, bool sinBD, bool calcular,
               const std::function<int(ArchivoAbierto&)>& usar);

}  // namespace kelvora::cli
