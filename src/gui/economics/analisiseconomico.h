#pragma once

namespace kelvora {

class frmResultados;
struct EntornoVentanas;

/// "Análisis Económico" of a hot results window that holds a result: the button opens, in the
/// frame, a new economic window of its analysis with the losses read from its grid, captioned
/// with the product's name. A cold results window has no such button.
void ConectarAnalisisEconomico(frmResultados& resultados, const EntornoVentanas& entorno);

}  // namespace kelvora
