#include "core/app/acercade.h"

namespace kelvora {

VersionPrograma VersionActual() {
    return {KELVORA_VERSION_MAJOR, KELVORA_VERSION_MINOR, KELVORA_VERSION_REVISION};
}

std::string TextoFabricante() {
    std::string texto;
    for (const char* linea : kLineasFabricante) {
        texto += (texto.empty() ? "" : "\n") + std::string(linea);
    }
    return texto;
}

std::string TextoVersion(const VersionPrograma& version) {
    return "Versión " + std::to_string(version.mayor) + "." + std::to_string(version.menor) +
           " para Windows";
}

std::string TextoVersionRevision(const VersionPrograma& version) {
    return TextoVersion(version) + " (Rev. " + std::to_string(version.revision) + ")";
}

}  // namespace kelvora
