#pragma once

#include "core/runtime/fecha.h"

#include <string>
#include <string_view>

namespace kelvora {

/// The runtime's Format of a number: patterns written US-style ("0.0#", "0,000.0#", "##0"),
/// the named formats ("Scientific", "General Number", "Fixed", "Standard", "Percent"),
/// output with the locale's separators, rounding half away from zero on 15 digits.
std::string Format(double valor, std::string_view patron);

/// The runtime's Format of a date: "dd/mm/yyyy" (locale date separator), "Long Date",
/// "Short Date", and the d/m/y tokens.
std::string Format(const Fecha& fecha, std::string_view patron);

}  // namespace kelvora
