#pragma once

#include "core/materials/tubos.h"
#include "core/thermal/modeloresultados.h"
#include "core/thermal/productos.h"

#include <cstdint>
#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kelvora {

class ModeloEntrada;

using ValorArgumento = std::variant<double, int16_t, bool, std::string, NombresUnidades>;

/// The call that "C&alcular" makes: the routine of an analysis and its arguments in order.
struct LlamadaCalculo {
    Analisis analisis = Analisis::SP;
    std::vector<std::pair<std::string, ValorArgumento>> argumentos;

    /// The argument of that name; error when there is none.
    const ValorArgumento& Argumento(std::string_view nombre) const;
};

/// Where "C&alcular" puts its results: a new results window, captioned, numbered and shown.
class DestinoResultados {
public:
    virtual ~DestinoResultados() = default;

    virtual ModeloResultados& NuevaVentanaResultados(TipoResultados tipo) = 0;
    /// Unloads a results window whose calculation failed.
    virtual void DescargarVentanaResultados(ModeloResultados& ventana) = 0;
    virtual FuenteTubos& Tubos() = 0;
};

/// The arguments read from the window's boxes and lists, converted to the internal units. An
/// argument that cannot be read keeps its zero, and the next one is read.
LlamadaCalculo PrepararLlamada(const ModeloEntrada& ventana);

/// Runs the routine of the call on a results window.
bool RealizarLlamada(const LlamadaCalculo& llamada, ModeloResultados& resultados,
                     FuenteTubos& tubos);

}  // namespace kelvora
