#pragma once

namespace kelvora {

class ModeloEntrada;

/// `ValidarDatos` of a data entry window: the checks of its table in order; the first that
/// fails shows its message, puts the focus where it says and gives false. A product's service
/// limit asks, and only Cancel stops there.
bool ValidarEntrada(ModeloEntrada& ventana);

}  // namespace kelvora
