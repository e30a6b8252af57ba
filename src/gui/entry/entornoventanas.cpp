#include "gui/entry/entornoventanas.h"

#include "core/app/numeroventanalibre.h"
#include "core/runtime/texto.h"

namespace kelvora {

std::string CaptionNumerado(const std::string& caption, const EntornoVentanas& entorno) {
    const std::string base = Trim(caption) + " [";
    std::vector<std::string> captions =
            entorno.Captions ? entorno.Captions() : std::vector<std::string>{};
    captions.push_back(base);
    return base + std::to_string(NumeroVentanaLibre(base, captions)) + "]";
}

}  // namespace kelvora
