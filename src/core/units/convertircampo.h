#pragma once

#include "core/platform/prompter.h"

#include <string>

namespace kelvora {

/// The text a box takes when the number in another box changes unit: empty for a source
/// that is not numeric, "Error" after a critical box when there is no conversion, else the
/// value as "0.0#", or as "Scientific" when that would read 0, with the decimal point.
std::string ConvertirCampo(const std::string& origen, const std::string& desde,
                           const std::string& hasta, Prompter& prompter);

}  // namespace kelvora
