#pragma once

#include <string_view>

namespace kelvora {

/// True when the SQL text holds a comment ("--" or "/*") outside its quoted texts and names.
bool TieneComentario(std::string_view sql);

}  // namespace kelvora
