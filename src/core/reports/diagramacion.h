#pragma once

#include "core/app/contexto.h"
#include "core/platform/surface.h"
#include "core/reports/grilla.h"
#include "core/reports/paginaimpresion.h"

#include <optional>
#include <string>

namespace kelvora {

/// The picture of a chart page: a picture the surface knows by name, and the width in its
/// pixels of the part at its left of which the page leaves out a third.
struct ImagenGrafica {
    std::string imagen;
    double anchoIzquierdo = 0;
};

/// What a print or preview run lays out: a report grid, whose Caption is the title line, or,
/// with a picture, a chart page titled with the grid's Caption.
struct DocumentoImpresion {
    Grilla grilla;
    std::optional<ImagenGrafica> grafica;
};

enum class Destino { VistaPreliminar, Impresora };

/// The points where the printed layout differs from the preview's.
struct ModoDiagramacion {
    Destino destino = Destino::VistaPreliminar;
    /// Print: added to CurrentY after each row.
    double correccion = 0;
    /// Print: the pages of the count run, for the number drawn at once on each page.
    int totalPaginas = 0;
};

/// Lays a document out from page 1 on `superficie`, which it prepares (page size, report font)
/// and moves to each further page with NewPage. Returns the number of pages. Error 5 when the
/// settings leave no room for a line or a heading can fit on no page.
int Diagramar(Surface& superficie, const DocumentoImpresion& documento,
              const ConfiguracionPagina& pagina, const ModoDiagramacion& modo);

/// Draws a long text from the current position, each of its lines cut (never wrapped) at the
/// right margin; the position ends at the start of its last line.
void ImprimirCeldaLarga(Surface& superficie, const EntornoImpresion& entorno,
                        const std::string& texto);

/// The report's title: its caption up to the blank before "[", the whole caption without one.
std::string TituloInforme(const std::string& caption);

}  // namespace kelvora
