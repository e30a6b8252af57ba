#include "core/entry/llamadacalculo.h"

#include "core/entry/modeloentrada.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/thermal/realizarcalculossc.h"
#include "core/thermal/realizarcalculosscfrio.h"
#include "core/thermal/realizarcalculossp.h"
#include "core/thermal/realizarcalculosspfrio.h"

#include <stdexcept>

namespace kelvora {

namespace {

ValorArgumento Cero(TipoArgumento tipo) {
    switch (tipo) {
        case TipoArgumento::Entero:
        case TipoArgumento::CeroEntero:
            return int16_t{0};
        case TipoArgumento::Conocido:
        case TipoArgumento::Falso:
            return false;
        case TipoArgumento::Unidades:
            return NombresUnidades{};
        case TipoArgumento::NombreMaterial:
            return std::string();
        default:
            return 0.0;
    }
}

ValorArgumento Leer(const ModeloEntrada& ventana, const ArgumentoCalculo& argumento) {
    const int i = argumento.caja;
    switch (argumento.tipo) {
        case TipoArgumento::Convertido:
            return ventana.Unit().Convert(Val(ventana.Texto(i)), ventana.Lista(i).Text(),
                                          argumento.unidad) +
                   argumento.suma;
        case TipoArgumento::Valor:
            return Val(ventana.Texto(i));
        case TipoArgumento::Entero:
            return CInt(Val(ventana.Texto(i)));
        case TipoArgumento::Conocido:
            return Len(Trim(ventana.Texto(i))) > 0;
        case TipoArgumento::Unidades: {
            NombresUnidades unidades;
            for (const int lista : ventana.Ventana().listasUnidades) {
                unidades.push_back(ventana.Lista(lista).Text());
            }
            return unidades;
        }
        case TipoArgumento::NombreMaterial:
            return i == 1 ? ventana.NombreMaterialAislamiento() : ventana.NombreMaterialDesnuda();
        default:
            return Cero(argumento.tipo);
    }
}

// Reads the arguments of a call one after the other, in the routine's order.
class Lector {
public:
    explicit Lector(const LlamadaCalculo& llamada) : mLlamada(llamada) {}

    double Doble() { return Siguiente<double>(); }
    int16_t Entero() { return Siguiente<int16_t>(); }
    bool Booleano() { return Siguiente<bool>(); }
    std::string Texto() { return Siguiente<std::string>(); }
    NombresUnidades Unidades() { return Siguiente<NombresUnidades>(); }

private:
    template <class T>
    T Siguiente() {
        return std::get<T>(mLlamada.argumentos.at(mPosicion++).second);
    }

    const LlamadaCalculo& mLlamada;
    size_t mPosicion = 0;
};

bool CalcularSP(Lector& l, ModeloResultados& resultados) {
    ArgumentosSP a;
    a.TemperaturaInterior = l.Doble();
    a.TemperaturaSuperficieAislamiento = l.Doble();
    a.TemperaturaAmbiente = l.Doble();
    a.unidades = l.Unidades();
    a.VelocidadAire = l.Doble();
    a.EmisividadSuperficieAislamiento = l.Doble();
    a.EmisividadSuperficieDesnuda = l.Doble();
    a.CodigoMaterialSuperficieAislamiento = l.Entero();
    a.CodigoMaterialSuperficieDesnuda = l.Entero();
    a.NombreMaterialAislamiento = l.Texto();
    a.NombreMaterialDesnuda = l.Texto();
    a.modoGrafica = l.Booleano();
    a.tipoGrafica = l.Entero();
    a.espesorGrafica = l.Doble();
    a.valorGrafica = l.Doble();
    return RealizarCalculosSP(resultados, a);
}

bool CalcularSC(Lector& l, ModeloResultados& resultados, FuenteTubos& tubos) {
    ArgumentosSC a;
    a.TemperaturaInterior = l.Doble();
    a.TemperaturaSuperficieAislamiento = l.Doble();
    a.TemperaturaAmbiente = l.Doble();
    a.unidades = l.Unidades();
    a.VelocidadAire = l.Doble();
    a.DiametroTuberia = l.Doble();
    a.CodigoMaterialSuperficieAislamiento = l.Entero();
    a.EmisividadSuperficieAislamiento = l.Doble();
    a.NombreMaterialAislamiento = l.Texto();
    a.modoGrafica = l.Booleano();
    a.tipoGrafica = l.Entero();
    a.espesorGrafica = l.Doble();
    a.valorGrafica = l.Doble();
    return RealizarCalculosSC(resultados, a, tubos);
}

void LeerFrio(Lector& l, ArgumentosFrio& a) {
    a.TemperaturaInterior = l.Doble();
    a.TemperaturaSuperficie = l.Doble();
    a.TemperaturaAmbiente = l.Doble();
    a.TemperaturaBulboHumedo = l.Doble();
    a.hayTBH = l.Booleano();
    a.TemperaturaPuntoRocio = l.Doble();
    a.unidades = l.Unidades();
    a.VelocidadAire = l.Doble();
    a.HumedadRelativa = l.Doble();
    a.hayHR = l.Booleano();
    a.CoeficienteTransmisionCalor = l.Doble();
    a.CodigoMaterialSuperficieAislamiento = l.Entero();
    a.EmisividadSuperficieAislamiento = l.Doble();
    a.NombreMaterialAislamiento = l.Texto();
}

bool CalcularSPFrio(Lector& l, ModeloResultados& resultados) {
    ArgumentosSPFrio a;
    LeerFrio(l, a);
    a.CodigoMaterialSuperficieDesnuda = l.Entero();
    a.EmisividadSuperficieDesnuda = l.Doble();
    a.NombreMaterialDesnuda = l.Texto();
    return RealizarCalculosSPFrio(resultados, a);
}

bool CalcularSCFrio(Lector& l, ModeloResultados& resultados, FuenteTubos& tubos) {
    ArgumentosSCFrio a;
    LeerFrio(l, a);
    a.DiametroTuberia = l.Doble();
    return RealizarCalculosSCFrio(resultados, a, tubos);
}

}  // namespace

const ValorArgumento& LlamadaCalculo::Argumento(std::string_view nombre) const {
    for (const auto& [clave, valor] : argumentos) {
        if (clave == nombre) {
            return valor;
        }
    }
    throw std::out_of_range("argumento desconocido: " + std::string(nombre));
}

LlamadaCalculo PrepararLlamada(const ModeloEntrada& ventana) {
    LlamadaCalculo llamada;
    llamada.analisis = ventana.Ventana().analisis;
    for (const ArgumentoCalculo& argumento : ventana.Ventana().argumentos) {
        ValorArgumento valor = Cero(argumento.tipo);
        try {
            valor = Leer(ventana, argumento);
        } catch (const RuntimeError&) {
        }
        llamada.argumentos.emplace_back(argumento.nombre, std::move(valor));
    }
    return llamada;
}

bool RealizarLlamada(const LlamadaCalculo& llamada, ModeloResultados& resultados,
                     FuenteTubos& tubos) {
    Lector lector(llamada);
    switch (llamada.analisis) {
        case Analisis::SP:
            return CalcularSP(lector, resultados);
        case Analisis::SC:
            return CalcularSC(lector, resultados, tubos);
        case Analisis::SPFrio:
            return CalcularSPFrio(lector, resultados);
        case Analisis::SCFrio:
            break;
    }
    return CalcularSCFrio(lector, resultados, tubos);
}

}  // namespace kelvora
