#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace kelvora {

/// The number of a new window's caption: the lowest positive number that no loaded window
/// whose caption begins with `base` (up to and including its first "[", case not minded) holds
/// behind that "[". `captions` are those of every loaded window, the new one's own included:
/// it ends in the bare "[" and counts as 0, which the count starts from.
int16_t NumeroVentanaLibre(std::string_view base, const std::vector<std::string>& captions);

}  // namespace kelvora
