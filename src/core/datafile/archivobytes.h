#pragma once

#include <functional>
#include <string>
#include <string_view>

namespace kelvora {

/// The whole content of a file; `nombre` is a UTF-8 path. Error 53 when it does not exist, 75
/// when it cannot be read.
std::string LeerBytesArchivo(const std::string& nombre);

/// Puts a new file in place of `nombre`: `escribir` fills a temporary file beside it, which then
/// replaces it in one step, so a failure leaves the old file as it was and no partial file.
/// Error 76 when the folder does not exist, 75 when the file cannot be written or replaced,
/// and whatever `escribir` raises.
void ReemplazarArchivo(const std::string& nombre,
                       const std::function<void(const std::string& temporal)>& escribir);

/// ReemplazarArchivo with the given bytes as the content.
void EscribirBytesArchivo(const std::string& nombre, std::string_view bytes);

}  // namespace kelvora
