#pragma once

#include "core/platform/surface.h"

#include <functional>
#include <string>

namespace kelvora {

/// Informe: a printed report as a PDF file, its pages measured with the fonts of the program's
/// print; the report layout sets their size.
enum class FormatoDibujo { Png, Svg, Pdf, Informe };

/// The file a drawing goes into, and the size of its pages in millimetres. PNG and SVG take the
/// first page at `pixelesPorMm`; PDF takes every page, drawn at that resolution.
struct PedidoDibujo {
    FormatoDibujo formato = FormatoDibujo::Png;
    std::string archivo;
    double anchoMm = 210;
    double altoMm = 297;
    double pixelesPorMm = 5;
};

/// A drawing on its way into a file: draw on the surface, then save.
class ArchivoDibujo {
public:
    virtual ~ArchivoDibujo() = default;

    /// The pages, with the font metrics of the file's drawing.
    virtual Surface& Superficie() = 0;
    /// Writes the file; an existing one is replaced only once the whole file was written.
    virtual bool Guardar() = 0;
    /// The document title of a PDF file.
    virtual void PonerTitulo(const std::string& /*titulo*/) {}
    /// A picture for the surface's PaintPicture, named `nombre`, of anchoMm × altoMm, drawn by
    /// `dibujar` on a surface of that size; for the reports' chart page.
    virtual void AgregarDibujo(const std::string& /*nombre*/, double /*anchoMm*/, double /*altoMm*/,
                               const std::function<void(Surface&)>& /*dibujar*/) {}
};

/// The drawing library beside the executables, loaded only when a file is drawn, gives its
/// drawings through the one C function of this name and type.
inline constexpr const char* kBibliotecaDibujo = "libkelvora-dibujo.so";
inline constexpr const char* kFuncionArchivoDibujo = "kelvora_archivo_dibujo";
using FuncionArchivoDibujo = ArchivoDibujo* (*)(const PedidoDibujo& pedido);

}  // namespace kelvora
