#pragma once

namespace kelvora {

class ModeloEntrada;

/// `cmdConsultarMaterial_Click(k)`: the material query window when the database is there and
/// read, else the input box "Emisividad" until a number from 0 to 1 or nothing is given.
void ConsultarEmisividad(ModeloEntrada& ventana, int boton);

}  // namespace kelvora
