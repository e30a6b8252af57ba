#pragma once

#include <nlohmann/json.hpp>
#include <string>

namespace kelvora::cli {

/// A JSON value whose members keep the order in which they were added.
using Json = nlohmann::ordered_json;

/// The value on one line: text as UTF-8, a byte that is not UTF-8 replaced, a number that is not
/// finite as null, a whole number of a float with ".0".
std::string TextoJson(const Json& valor);

}  // namespace kelvora::cli
