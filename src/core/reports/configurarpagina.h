#pragma once

#include "core/app/contexto.h"

#include <string>
#include <vector>

namespace kelvora {

/// A margin box's text: the millimetres shown in centimetres, "0.0", with a point, + " cms".
std::string TextoMargen(double milimetros);

/// One line of the page setup's sample, in its units: millimetres from the sheet's centre,
/// y upward.
struct LineaMuestra {
    double x1;
    double y1;
    double x2;
    double y2;
};

/// The sheet of the sample: its outline, then lines of mock text 10 mm apart from the top
/// margin down to the bottom one, in paragraphs whose first line starts 18 mm in and whose last
/// line stops at a quarter of the width.
std::vector<LineaMuestra> DibujoMuestra(const ConfiguracionPagina& pagina);

/// The sample's tool tip at a point: "(x, y)", each "0.0#".
std::string ToolTipMuestra(double x, double y);

}  // namespace kelvora
