#pragma once

#include <string>

namespace kelvora {

/// The hint of box `indice` of the data entry window of that name; empty when there is none.
std::string TextoAyudaCampo(const std::string& ventana, int indice);

}  // namespace kelvora
