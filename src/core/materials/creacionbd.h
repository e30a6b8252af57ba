#pragma once

#include <string>

namespace kelvora {

/// Creates the materials database from the seed folder (emisividad.csv and tubos.csv). The
/// file is written under a temporary name and then renamed, so a failure leaves no file.
void CrearBaseDatos(const std::string& archivo, const std::string& carpetaSemilla);

/// Creates the database only when the file does not exist, so the user's rows are kept.
/// Returns true when it created it.
bool CrearBaseDatosSiFalta(const std::string& archivo, const std::string& carpetaSemilla);

}  // namespace kelvora
