#pragma once

#include "core/app/contexto.h"
#include "core/platform/prompter.h"

#include <string>

namespace kelvora {

/// Help topic of the failed-connection box.
inline constexpr int kAyudaErrorConexion = 120;

/// The text of the box shown when the database cannot be opened at start-up.
std::string MensajeErrorConexion(const std::string& archivoBD, const std::string& descripcion);

/// Opens a test connection with the context's connection string and sets BDDisponible.
/// On failure asks whether to go on; returns false when the user chose to leave.
bool ProbarBaseDatos(ContextoAplicacion& contexto, Prompter& prompter);

}  // namespace kelvora
