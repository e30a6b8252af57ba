#pragma once

#include "core/verificacion/capaaislante.h"

#include <optional>
#include <string>
#include <vector>

namespace kelvora {

class ModeloResultados;
class classUnidades;

/// One position as the program solved it: its exact thickness, and the surface at its practical
/// thickness.
struct PracticoPrograma {
    std::string posicion;
    Posicion geometria = Posicion::Vertical;
    double exacto = 0;
    double E = 0;
    double TS = 0;
    /// Qt as the program shows it: BTU/pie² h flat, BTU/pie h on a pipe.
    double Qt = 0;
};

/// What the verification takes from a result: the insulated system (without its position) and
/// the program's practical results, in °F, plg and mi/h.
struct DatosVerificacion {
    /// The product code of the calculation.
    int producto = 0;
    SistemaAislado sistema;
    /// The required surface temperature: the typed one when hot, dew point + 1 when cold.
    double requerida = 0;
    bool frio = false;
    std::vector<PracticoPrograma> practicos;
};

/// The data of a results window's last calculation; refused when the window holds none.
DatosVerificacion DatosDeResultados(const ModeloResultados& ventana, const classUnidades& unidades);

/// One position checked by the modern method.
struct PosicionVerificada {
    PracticoPrograma programa;
    /// The program's thickness, by the modern method.
    EstadoSuperficie moderno;
    /// Its total flow as the program shows it: per pie² h or per foot, a gain when cold.
    double QtModerno = 0;
    /// What the modern method needs to reach the requirement; none past kEspesorMaximo.
    std::optional<double> espesorNecesario;
    /// Whether the practical thickness meets the requirement, by each method.
    bool cumplePrograma = false;
    bool cumple = false;
};

struct Verificacion {
    DatosVerificacion datos;
    std::vector<PosicionVerificada> posiciones;
};

/// Checks each position with characteristic length L in m; refuses bad input with a message.
Verificacion Verificar(const DatosVerificacion& datos, double L);

}  // namespace kelvora
