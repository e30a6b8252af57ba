#pragma once

#include <filesystem>

namespace kelvora {

/// Flushes a file, or a folder's entries, from the system's buffers to the disk; false when it
/// could not.
bool SincronizarConDisco(const std::filesystem::path& ruta);

}  // namespace kelvora
