#pragma once

#include <string>
#include <vector>

namespace kelvora::cli {

using Argumentos = std::vector<std::string>;

/// Exit codes of the command line.
inline constexpr int kSalidaBien = 0;
inline constexpr int kSalidaDetenido = 1;
inline constexpr int kSalidaUso = 2;

/// A command of kelvora-cli: its name, a one-line usage, and what runs it.
struct Comando {
    const char* nombre;
    const char* uso;
    int (*ejecutar)(const Argumentos& argumentos);
};

const std::vector<Comando>& Comandos();

/// Runs the command named first in the arguments.
int Despachar(const Argumentos& argumentos);

}  // namespace kelvora::cli
