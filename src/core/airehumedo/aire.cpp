#include "core/airehumedo/aire.h"

#include "core/airehumedo/psicrometria.h"
#include "core/runtime/formato.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/units/unidades.h"

#include <cmath>

namespace kelvora {

namespace {

/// The tool's range: temperatures from −100 °F, altitudes from −500 m to 10 km.
constexpr double kTemperaturaMinimaF = -100;
constexpr double kAltitudMinima = -500;
constexpr double kAltitudMaxima = 10000;
/// Upper end of the saturation formula over water, °C.
constexpr double kSaturacionMaxima = 200;

struct DescripcionCampo {
    CampoAire campo;
    const char* nombre;
    /// Catalogue family, or empty for a box with its own units.
    const char* familia;
    /// The unit of the calculation.
    const char* unidadSI;
    const char* inicial;
};

// clang-format off
const DescripcionCampo kCampos[] = {
    {CampoAire::Seco,        "Temperatura Bulbo Seco",     "Temperatura", "°C",    "°F"},
    {CampoAire::Humedad,     "Humedad Relativa",           "",            "%",     "%"},
    {CampoAire::BulboHumedo, "Temperatura Bulbo Húmedo",   "Temperatura", "°C",    "°F"},
    {CampoAire::Rocio,       "Temperatura Punto de Rocío", "Temperatura", "°C",    "°F"},
    {CampoAire::Altitud,     "Altitud",                    "Longitud",    "m",     "pie"},
    {CampoAire::Presion,     "Presión Barométrica",        "Presión",     "kPa",   "psi"},
    {CampoAire::Razon,       "Razón de Humedad",           "",            "kg/kg", "lb/lb"},
    {CampoAire::Entalpia,    "Entalpía",                   "",            "kJ/kg", "BTU/lb"},
};
// clang-format on

const DescripcionCampo& Descripcion(CampoAire campo) {
    return kCampos[static_cast<int>(campo)];
}

std::string TextoNumeroPunto(double valor) {
    std::string texto = Format(valor, "0.0#");
    return NormalizarDecimal(texto);
}

// Solves the state step by step; the first check that fails keeps its box and message.
class Resolucion {
public:
    Resolucion(const DatosAire& datos, const classUnidades& unidades)
        : mDatos(datos), mUnidades(unidades) {}

    CalculoAire Resolver() {
        CalculoAire calculo;
        try {
            if (Seco() && Presion() && Ebullicion() && Humedad() && Resto()) {
                calculo.estado = mEstado;
                return calculo;
            }
        } catch (const RuntimeError& error) {
            Rechazar(mCampo, error.description);
        }
        calculo.campo = mCampo;
        calculo.mensaje = mMensaje;
        return calculo;
    }

private:
    double ConvertirSI(const Magnitud& magnitud, CampoAire campo) {
        mCampo = campo;
        const double valor =
                mUnidades.Convert(magnitud.valor, magnitud.unidad, Descripcion(campo).unidadSI);
        if (!std::isfinite(valor)) {
            throw RuntimeError::DelRuntime(errores::Desbordamiento);
        }
        return valor;
    }

    bool Rechazar(CampoAire campo, std::string mensaje) {
        mCampo = campo;
        mMensaje = std::move(mensaje);
        return false;
    }

    double MinimoSI() const { return mUnidades.Convert(kTemperaturaMinimaF, "°F", "°C"); }

    std::string Minimo(const std::string& unidad) const {
        return TextoNumeroPunto(mUnidades.Convert(kTemperaturaMinimaF, "°F", unidad)) + " " +
               unidad;
    }

    bool TemperaturaEnRango(double t, CampoAire campo, const std::string& unidad) {
        if (t < MinimoSI()) {
            return Rechazar(campo, std::string("La ") + Descripcion(campo).nombre +
                                           " no puede ser menor que " + Minimo(unidad) + ".");
        }
        return true;
    }

    bool Seco() {
        mEstado.seco = ConvertirSI(mDatos.seco, CampoAire::Seco);
        return TemperaturaEnRango(mEstado.seco, CampoAire::Seco, mDatos.seco.unidad);
    }

    bool Presion() {
        const CampoAire campo = mDatos.presion;
        const double valor = ConvertirSI(mDatos.valorPresion, campo);
        if (campo == CampoAire::Altitud) {
            mEstado.altitud = valor;
            mEstado.presion = PresionEstandar(valor);
        } else {
            mEstado.presion = valor;
            mEstado.altitud = AltitudEstandar(valor);
        }
        // Written so that a pressure whose altitude is not a number fails too.
        if (!(mEstado.altitud >= kAltitudMinima && mEstado.altitud <= kAltitudMaxima)) {
            return RechazarRango(campo);
        }
        return true;
    }

    bool RechazarRango(CampoAire campo) {
        const std::string& unidad = mDatos.valorPresion.unidad;
        const bool altitud = campo == CampoAire::Altitud;
        const double desde = altitud ? kAltitudMinima : PresionEstandar(kAltitudMaxima);
        const double hasta = altitud ? kAltitudMaxima : PresionEstandar(kAltitudMinima);
        const char* unidadSI = Descripcion(campo).unidadSI;
        return Rechazar(campo,
                        std::string("La ") + Descripcion(campo).nombre + " debe estar entre " +
                                TextoNumeroPunto(mUnidades.Convert(desde, unidadSI, unidad)) +
                                " y " +
                                TextoNumeroPunto(mUnidades.Convert(hasta, unidadSI, unidad)) + " " +
                                unidad + ".");
    }

    // Water boils where its saturation pressure reaches the barometric one; no pressure of the
    // tool's range lets it stay liquid past 200 °C, where the saturation formula ends.
    bool Ebullicion() {
        if (mEstado.seco < kSaturacionMaxima && PresionSaturacion(mEstado.seco) < mEstado.presion) {
            return true;
        }
        const double ebullicion = PuntoRocio(mEstado.presion, MinimoSI(), kSaturacionMaxima);
        const std::string& unidad = mDatos.seco.unidad;
        return Rechazar(CampoAire::Seco,
                        "La Temperatura Bulbo Seco debe ser menor que la de ebullición del agua "
                        "a esa presión, " +
                                TextoNumeroPunto(mUnidades.Convert(ebullicion, "°C", unidad)) +
                                " " + unidad + ".");
    }

    bool Humedad() {
        const CampoAire campo = mDatos.humedad;
        if (campo == CampoAire::Humedad) {
            return HumedadRelativa();
        }
        const double t = ConvertirSI(mDatos.valorHumedad, campo);
        if (!TemperaturaEnRango(t, campo, mDatos.valorHumedad.unidad)) {
            return false;
        }
        if (t > mEstado.seco) {
            return Rechazar(campo, std::string("La ") + Descripcion(campo).nombre +
                                           " no puede ser mayor que la Temperatura Bulbo Seco.");
        }
        if (campo == CampoAire::Rocio) {
            mPresionVapor = PresionSaturacion(t);
            return true;
        }
        const double razon = RazonBulboHumedo(mEstado.seco, t, mEstado.presion);
        if (razon < 0) {
            return Rechazar(campo,
                            "La Temperatura Bulbo Húmedo es demasiado baja para esa Temperatura "
                            "Bulbo Seco: ni el aire seco la alcanza.");
        }
        mPresionVapor = PresionVapor(razon, mEstado.presion);
        return true;
    }

    bool HumedadRelativa() {
        const double humedad = mDatos.valorHumedad.valor;
        if (!(humedad > 0 && humedad <= 100)) {
            return Rechazar(CampoAire::Humedad,
                            "La Humedad Relativa debe ser mayor que 0 % y no mayor que 100 %.");
        }
        mPresionVapor = humedad / 100 * PresionSaturacion(mEstado.seco);
        return true;
    }

    bool Resto() {
        const CampoAire campo = mDatos.humedad;
        if (PresionSaturacion(MinimoSI()) > mPresionVapor) {
            return Rechazar(campo, std::string("Con esa ") + Descripcion(campo).nombre +
                                           " el punto de rocío quedaría por debajo de " +
                                           Minimo(mDatos.seco.unidad) + ".");
        }
        mEstado.rocio = campo == CampoAire::Rocio
                                ? ConvertirSI(mDatos.valorHumedad, campo)
                                : PuntoRocio(mPresionVapor, MinimoSI(), mEstado.seco);
        mEstado.razon = RazonHumedad(mPresionVapor, mEstado.presion);
        mEstado.humedad = mPresionVapor / PresionSaturacion(mEstado.seco) * 100;
        mEstado.bulboHumedo =
                campo == CampoAire::BulboHumedo
                        ? ConvertirSI(mDatos.valorHumedad, campo)
                        : BulboHumedo(mEstado.seco, mEstado.razon, mEstado.presion, mEstado.rocio);
        return true;
    }

    const DatosAire& mDatos;
    const classUnidades& mUnidades;
    EstadoAire mEstado;
    double mPresionVapor = 0;
    CampoAire mCampo = CampoAire::Seco;
    std::string mMensaje;
};

// A mass ratio "a/b" of the catalogue's weights, from kg per kg.
double RazonEn(double razon, const std::string& unidad, const classUnidades& unidades) {
    const size_t barra = unidad.find('/');
    if (barra == std::string::npos) {
        return razon;
    }
    return razon * unidades.Convert(1, "kg", unidad.substr(0, barra)) /
           unidades.Convert(1, "kg", unidad.substr(barra + 1));
}

}  // namespace

const char* NombreCampoAire(CampoAire campo) {
    return Descripcion(campo).nombre;
}

std::vector<std::string> UnidadesCampoAire(CampoAire campo, const classUnidades& unidades) {
    switch (campo) {
        case CampoAire::Humedad:
            return {"%"};
        case CampoAire::Razon:
            return {"lb/lb", "kg/kg", "g/kg"};
        case CampoAire::Entalpia:
            return {"BTU/lb", "kJ/kg"};
        default:
            return unidades.getUnits(Descripcion(campo).familia);
    }
}

const char* UnidadInicialAire(CampoAire campo) {
    return Descripcion(campo).inicial;
}

CalculoAire CalcularAire(const DatosAire& datos, const classUnidades& unidades) {
    return Resolucion(datos, unidades).Resolver();
}

double ValorAire(const EstadoAire& estado, CampoAire campo, const std::string& unidad,
                 const classUnidades& unidades) {
    const auto desdeSI = [&](double valor) {
        return unidades.Convert(valor, Descripcion(campo).unidadSI, unidad);
    };
    switch (campo) {
        case CampoAire::Seco:
            return desdeSI(estado.seco);
        case CampoAire::BulboHumedo:
            return desdeSI(estado.bulboHumedo);
        case CampoAire::Rocio:
            return desdeSI(estado.rocio);
        case CampoAire::Humedad:
            return estado.humedad;
        case CampoAire::Altitud:
            return desdeSI(estado.altitud);
        case CampoAire::Presion:
            return desdeSI(estado.presion);
        case CampoAire::Razon:
            return RazonEn(estado.razon, unidad, unidades);
        case CampoAire::Entalpia:
            break;
    }
    if (IgualTexto(unidad, "BTU/lb")) {
        return EntalpiaIP(unidades.Convert(estado.seco, "°C", "°F"), estado.razon);
    }
    return EntalpiaSI(estado.seco, estado.razon);
}

}  // namespace kelvora
