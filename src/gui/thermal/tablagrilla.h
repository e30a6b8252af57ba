#pragma once

#include "core/app/colores.h"
#include "core/reports/grilla.h"

#include <Qt>

#include <vector>

class QTableWidget;

namespace kelvora {

/// A cell's alignment as Qt has it, centred vertically.
Qt::Alignment AlineacionDe(Alineacion alineacion);

/// Shows a grid in a table widget: the texts, bold, alignment, the colours of the application's
/// table, each merged row's equal neighbouring cells as one span, and row heights as multiples
/// of the normal one.
void MostrarGrilla(QTableWidget& tabla, const Grilla& grilla, const TablaColores& colores);

/// Shares the width of the table's viewport among its columns in these proportions.
void AjustarColumnas(QTableWidget& tabla, const std::vector<double>& proporciones);

}  // namespace kelvora
