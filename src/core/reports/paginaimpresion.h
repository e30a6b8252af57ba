#pragma once

#include "core/app/contexto.h"
#include "core/platform/surface.h"

#include <array>
#include <string>

namespace kelvora {

/// Names of the letterhead pictures, as the surfaces know them.
inline constexpr char kImagenEncabezado[] = "membrete-encabezado";
inline constexpr char kImagenFondo[] = "membrete-fondo";
inline constexpr char kImagenPie[] = "membrete-pie";

/// The paper in millimetres: 216 wide, 279 high for letter (TamanoPapel 1) and 356 for legal,
/// the two swapped in landscape (Orientacion 2).
Tamano TamanoPagina(const ConfiguracionPagina& pagina);

/// The report font of the page settings.
Fuente FuenteInforme(const ConfiguracionPagina& pagina);

/// What every drawing routine of one print or preview run reads: the page settings, the paper
/// and the sizes in millimetres of the letterhead pictures on the surface in use.
struct EntornoImpresion {
    ConfiguracionPagina pagina;
    double W = 0;
    double H = 0;
    double AnchoEncabezado = 0;
    double AltoEncabezado = 0;
    double AnchoPie = 0;
    double AltoPie = 0;

    /// The paper of the settings and the pictures measured on `superficie`.
    static EntornoImpresion Para(const ConfiguracionPagina& pagina, const Surface& superficie);
    /// Where the first line of a page goes: below the top margin and the top logo.
    double YInicial() const { return pagina.MargenSuperior + AltoEncabezado + 4; }
    double AnchoUtil() const { return W - pagina.MargenDerecho - pagina.MargenIzquierdo; }
};

/// Draws the letterhead of a page: top logo, page background, foot logo, the four maker's lines
/// and the rule above them. The current position is kept; the font ends as the report's.
void DibujarMembrete(Surface& superficie, const EntornoImpresion& entorno, double x0, double y0,
                     double w, double h);

/// Draws "Página n de total" at the right end of the page foot; font and position are kept.
void ImprimirNumeroPagina(Surface& superficie, const EntornoImpresion& entorno,
                          const std::string& texto);

/// "Página " + n + " de " + total.
std::string TextoNumeroPagina(int pagina, int total);

}  // namespace kelvora
