#pragma once

#include <optional>
#include <string>
#include <vector>

namespace kelvora {

class classUnidades;

/// The quantities of the moist-air tool, one box each.
enum class CampoAire { Seco, Humedad, BulboHumedo, Rocio, Altitud, Presion, Razon, Entalpia };

/// The box's name as the messages say it ("Temperatura Bulbo Seco").
const char* NombreCampoAire(CampoAire campo);
/// The units a box offers, in catalogue order; "%" alone for the relative humidity.
std::vector<std::string> UnidadesCampoAire(CampoAire campo, const classUnidades& unidades);
/// The unit a box starts with: the program's own inch-pound units.
const char* UnidadInicialAire(CampoAire campo);

/// A number in a unit, as the user gives it.
struct Magnitud {
    double valor = 0;
    std::string unidad;
};

/// The dry bulb, one of relative humidity, wet bulb or dew point, and the altitude or the
/// barometric pressure.
struct DatosAire {
    Magnitud seco;
    CampoAire humedad = CampoAire::Humedad;
    Magnitud valorHumedad;
    CampoAire presion = CampoAire::Altitud;
    Magnitud valorPresion;
};

/// Everything known of the air, in °C, %, kg/kg, kPa and m.
struct EstadoAire {
    double seco = 0;
    double bulboHumedo = 0;
    double rocio = 0;
    double humedad = 0;
    double razon = 0;
    double presion = 0;
    double altitud = 0;
};

/// The state, or the box at fault and the message that says why.
struct CalculoAire {
    std::optional<EstadoAire> estado;
    CampoAire campo = CampoAire::Seco;
    std::string mensaje;
};

/// Converts the data through the unit catalogue, checks them and solves the rest.
CalculoAire CalcularAire(const DatosAire& datos, const classUnidades& unidades);

/// One quantity of the state in a unit its box offers. Enthalpy in "BTU/lb" counts from dry
/// air at 0 °F and in "kJ/kg" from 0 °C, as the handbook's two tables do.
double ValorAire(const EstadoAire& estado, CampoAire campo, const std::string& unidad,
                 const classUnidades& unidades);

}  // namespace kelvora
