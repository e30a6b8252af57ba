#pragma once

#include <string>

class QPageSize;

namespace kelvora {

class QtSurfacePaginas;
struct Tamano;

/// The standard paper of a page size in millimetres (letter and legal within a point), in
/// portrait; landscape is the page's orientation.
QPageSize PapelDe(const Tamano& tamano);

/// Writes the pages as a PDF file titled `titulo`, made by the program. The file is replaced
/// only when all of it was written; error 75 with a clear message otherwise.
void EscribirPdf(const QtSurfacePaginas& paginas, const std::string& archivo,
                 const std::string& titulo);

}  // namespace kelvora
