#pragma once

#include <string>
#include <string_view>

namespace kelvora {

/// Windows-1252 bytes to UTF-8; the five unassigned bytes map to the C1 controls.
std::string DesdeWindows1252(std::string_view bytes);
/// UTF-8 to Windows-1252 bytes; a character outside the code page becomes '?'.
std::string AWindows1252(std::string_view texto);

}  // namespace kelvora
