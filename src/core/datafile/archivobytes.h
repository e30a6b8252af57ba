#pragma once

#include <cstdint>
#include <functional>
#include <string>
#include <string_view>

namespace kelvora {

/// Far more than any data file of the program; a larger file is refused unread.
inline constexpr std::uintmax_t kTamanoMaximoLectura = 16 * 1024 * 1024;

/// The whole content of a file; `nombre` is a UTF-8 path. Error 53 when it does not exist, 75
/// when it cannot be read, is not a regular file or is larger than kTamanoMaximoLectura.
std::string LeerBytesArchivo(const std::string& nombre);

/// Puts a new file in place of `nombre`: `escribir` fills a temporary file beside it, which is
/// flushed to disk and then replaces it in one step, so a failure leaves the old file as it
/// was and no partial file. A symbolic link is written through to its target, and the file
/// keeps its permissions. Error 76 when the folder does not exist, 75 when the file is
/// read-only or cannot be written or replaced, and whatever `escribir` raises.
void ReemplazarArchivo(const std::string& nombre,
                       const std::function<void(const std::string& temporal)>& escribir);

/// ReemplazarArchivo with the given bytes as the content.
void EscribirBytesArchivo(const std::string& nombre, std::string_view bytes);

}  // namespace kelvora
