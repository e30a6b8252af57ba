#pragma once

#include <array>
#include <string>

namespace kelvora {

/// The maker's lines of the splash and the about window.
inline constexpr std::array<const char*, 4> kLineasFabricante = {
        "Fornalis S.A.",
        "Av. de la Industria 2450, Parque Industrial Norte",
        "Tel. 900 100 200 - Fax 900 100 201",
        "www.fornalis.example",
};

/// The maker's lines as one text, one line each.
std::string TextoFabricante();

/// The rights line of the about window.
inline constexpr const char* kLineaDerechos = "© Fornalis S.A. Todos los derechos reservados.";

struct VersionPrograma {
    int mayor = 0;
    int menor = 0;
    int revision = 0;
};

/// The version this program was built as.
VersionPrograma VersionActual();

/// "Versión 1.0 para Windows", the splash's line.
std::string TextoVersion(const VersionPrograma& version);

/// "Versión 1.0 para Windows (Rev. 0)", the about window's line.
std::string TextoVersionRevision(const VersionPrograma& version);

}  // namespace kelvora
