#pragma once

#include <cstdint>
#include <string>

namespace kelvora {

/// One cell of a text listing in a fixed-pitch font: line breaks become blanks and the text
/// is trimmed; with `cortar` it is cut to n characters, n being `ancho` (in widths of the
/// letter "A") rounded to a whole number. A shorter text gets its fill by `alineacion`: 0 all
/// on the left, 1 half of it (rounded) on each side, 2 or negative all on the right; whatever
/// is still missing goes on the right. On any error, the trimmed input.
std::string AlinearTexto(const std::string& texto, float ancho, int32_t alineacion, bool cortar);

}  // namespace kelvora
