#pragma once

#include <functional>
#include <string>
#include <vector>

namespace CLI {
class App;
}  // namespace CLI

namespace kelvora::cli {

/// Exit codes of the command line.
inline constexpr int kSalidaBien = 0;
inline constexpr int kSalidaDetenido = 1;
inline constexpr int kSalidaUso = 2;

/// What runs a command once its arguments are read; gives the exit code.
using Ejecucion = std::function<int()>;

/// A command of kelvora-cli: its name, its line in `kelvora-cli --help`, and the function that
/// declares its arguments and options on its subcommand and gives back what runs it.
struct Comando {
    const char* nombre;
    const char* descripcion;
    Ejecucion (*declarar)(CLI::App& comando);
};

const std::vector<Comando>& Comandos();

/// Reads the arguments (the program's name left out) and runs the command they name; help,
/// version and usage errors are answered here, in Spanish. Gives the exit code.
int Despachar(const std::vector<std::string>& argumentos);

}  // namespace kelvora::cli
