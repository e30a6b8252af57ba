#pragma once

#include "core/app/contexto.h"
#include "core/platform/surface.h"
#include "core/reports/diagramacion.h"

#include <string>

namespace kelvora {

/// The line correction of a printer: (FuenteTamano / 10) × the difference of the height of
/// "A" in Courier New 10 between the preview and the printer, / 100. Both surfaces end with the
/// printer's font.
double CorreccionRenglon(Surface& impresora, Surface& vista, const ConfiguracionPagina& pagina);

/// Lays a document out on the preview's pages; returns the page count.
int VistaPreliminar(Surface& paginas, const DocumentoImpresion& documento,
                    const ConfiguracionPagina& pagina);

/// Prints a document: the pages are counted on `vista` as the preview lays them out, then each
/// copy is drawn on `impresora`, numbered from 1 "de" that count, with EndDoc after each copy.
/// Returns the count.
int ImprimirDocumento(Surface& impresora, Surface& vista, const DocumentoImpresion& documento,
                      const ConfiguracionPagina& pagina, int copias);

/// "Vista Preliminar - [" + caption + "]".
std::string TituloVistaPreliminar(const std::string& caption);

/// The message of a preview that failed: "Error inesperado: " + description, a line end and
/// "No se puede mostrar la Vista Preliminar.".
std::string MensajeErrorVista(const std::string& descripcion);

/// The message of a print that failed.
std::string MensajeErrorImpresion(const std::string& descripcion);

}  // namespace kelvora
