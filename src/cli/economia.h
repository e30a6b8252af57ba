#pragma once

#include "cli/comandos.h"
#include "core/platform/clock.h"

#include <map>
#include <memory>
#include <string>

namespace kelvora {
class ModeloEconomico;
}  // namespace kelvora

namespace kelvora::cli {

/// economia ARCHIVO.adk [--areas A,B,C | --longitudes A,B] [--unidad U] [--horas H]
/// [--combustible NOMBRE] [--nombre N] [--poder P] [--valor V] [--moneda M] [--eficiencia E]
/// [--json] [--sin-bd]: calculates the file as `calcular` does, hands its results to the
/// economic window, fills it, presses "C&alcular" and prints the result boxes and the costs.
Ejecucion DeclararEconomia(CLI::App& comando);

/// Today's date from the system clock.
class RelojSistema : public Clock {
public:
    Fecha Hoy() override;
};

/// The economic window's boxes as options, by name ("--areas" to "--eficiencia"), as given.
using ValoresEconomicos = std::map<std::string, std::string>;
/// Declares those options on a command; each one given goes into `valores`.
void DeclararOpcionesEconomicas(CLI::App& comando,
                                const std::shared_ptr<ValoresEconomicos>& valores);
/// Fills an economic window from them box after box, as a user would; false after a message on
/// standard error when an option does not fit the window.
bool LlenarEconomia(ModeloEconomico& modelo, const ValoresEconomicos& valores);

}  // namespace kelvora::cli
