#pragma once

#include "core/economics/ventanaeconomica.h"
#include "core/thermal/valorespublicos.h"

#include <cstdint>
#include <optional>
#include <vector>

namespace kelvora {

class ModeloResultados;

/// What a hot results window hands to its economic window (`setVariables`): the losses per
/// orientation and the further values that the economic report prints.
struct ValoresAnalisis {
    int32_t TipoAnalisis = 0;
    /// Bare (QSD) and insulated (QSA) loss per orientation, BTU/pie² h or BTU/pie h.
    std::vector<double> QSD;
    std::vector<double> QSA;
    ValoresPublicos informe;
};

/// The economic window of a results window; none for the cold ones.
std::optional<TipoEconomico> AnalisisEconomicoDe(const ModeloResultados& resultados);

/// Reads the values of `cmdAnalisisEconomico` from the grid and the public values of a hot
/// results window after a calculation.
ValoresAnalisis ValoresParaAnalisis(const ModeloResultados& resultados);

}  // namespace kelvora
