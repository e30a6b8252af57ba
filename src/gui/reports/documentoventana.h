#pragma once

#include "core/reports/diagramacion.h"

#include <QImage>

#include <optional>

class QWidget;

namespace kelvora {

/// What a window prints: its document and, for a chart page, the chart's picture, which the
/// page surfaces know as `DocumentoImpresion::grafica->imagen`, `anchoMm` wide.
struct DocumentoVentana {
    DocumentoImpresion documento;
    QImage grafica;
    double anchoGraficaMm = 0;
};

/// The document of a window by its kind (its Tag), read from a table with one row per group of
/// kinds; nothing for a kind without a row or a window that has nothing to print yet.
std::optional<DocumentoVentana> DocumentoDeVentana(QWidget& ventana);

}  // namespace kelvora
