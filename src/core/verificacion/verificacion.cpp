#include "core/verificacion/verificacion.h"

#include "core/thermal/modeloresultados.h"
#include "core/thermal/productos.h"
#include "core/units/unidades.h"
#include "core/verificacion/errorverificacion.h"

#include <algorithm>
#include <cmath>
#include <initializer_list>

namespace kelvora {

namespace {

constexpr int kOffsetTI = 1;
constexpr int kOffsetTS = 2;
constexpr int kOffsetTA = 3;
constexpr int kOffsetV = 4;
constexpr int kOffsetEsPlana = 6;
constexpr int kOffsetEsTuberia = 7;
constexpr int kOffsetK = 9;
constexpr int kOffsetE = 11;
constexpr int kOffsetQt = 14;

double Ranura(const ModeloResultados& ventana, int bloque, int offset) {
    return ventana.Resultado(bloque * kFilasPorBloque + offset);
}

std::vector<Posicion> Geometrias(bool tuberia) {
    if (tuberia) {
        return {Posicion::TuberiaVertical, Posicion::TuberiaHorizontal};
    }
    return {Posicion::CaraArriba, Posicion::Vertical, Posicion::CaraAbajo};
}

void Exigir(bool valido, const std::string& mensaje) {
    if (!valido) {
        throw ErrorVerificacion(mensaje);
    }
}

bool Finitos(std::initializer_list<double> valores) {
    return std::all_of(valores.begin(), valores.end(), [](double v) { return std::isfinite(v); });
}

bool HayTuberia(const DatosVerificacion& datos) {
    return std::any_of(datos.practicos.begin(), datos.practicos.end(),
                       [](const PracticoPrograma& p) { return EsTuberia(p.geometria); });
}

// NaN fails every comparison, so each test is written to hold only for good values.
void ValidarDatos(const DatosVerificacion& datos, double L) {
    const SistemaAislado& s = datos.sistema;
    Exigir(Finitos({s.TI, s.aire.TA, s.aire.V, s.D, s.k.a, s.k.b, datos.requerida}),
           "Los datos del resultado no son números válidos.");
    Exigir(s.Es >= 0 && s.Es <= 1, "La emisividad de la superficie del aislamiento (" +
                                           TextoNumero(s.Es, "0.0##") +
                                           ") debe estar entre 0 y 1.");
    Exigir(s.aire.V >= 0, "La velocidad del aire no puede ser negativa.");
    Exigir(L > 0 && std::isfinite(L), "La longitud característica debe ser mayor que 0 m.");
    Exigir(s.D > 0 || !HayTuberia(datos), "El diámetro de la tubería debe ser mayor que 0.");
    Exigir(s.k.a > 0, "La conductividad térmica del aislamiento debe ser mayor que 0.");
    Exigir(s.TI != s.aire.TA,
           "La temperatura interior es igual a la del aire: no hay flujo de calor que verificar.");
    Exigir(datos.frio == (s.TI < s.aire.TA),
           datos.frio ? "Una superficie fría debe estar por debajo de la temperatura del aire."
                      : "Una superficie caliente debe estar por encima de la temperatura del "
                        "aire.");
}

bool Cumple(bool frio, double TS, double requerida) {
    return frio ? TS >= requerida : TS <= requerida;
}

}  // namespace

DatosVerificacion DatosDeResultados(const ModeloResultados& ventana,
                                    const classUnidades& unidades) {
    const Producto* producto = BuscarProducto(ventana.TipoAnalisis());
    if (producto == nullptr || ventana.MSFG().Rows() == 0) {
        throw ErrorVerificacion("La ventana no tiene un resultado que verificar.");
    }
    const bool tuberia =
            producto->analisis == Analisis::SC || producto->analisis == Analisis::SCFrio;
    DatosVerificacion datos;
    datos.producto = ventana.TipoAnalisis();
    datos.frio = producto->analisis == Analisis::SPFrio || producto->analisis == Analisis::SCFrio;
    const ValoresPublicos& valores = ventana.Valores();
    datos.requerida = unidades.Convert(valores.Numero("TS"), valores.Texto("unitTS"), "°F");
    SistemaAislado& s = datos.sistema;
    s.TI = Ranura(ventana, 0, kOffsetTI);
    s.aire.TA = Ranura(ventana, 0, kOffsetTA);
    s.aire.V = Ranura(ventana, 0, kOffsetV);
    s.Es = Ranura(ventana, 0, tuberia ? kOffsetEsTuberia : kOffsetEsPlana);
    s.D = tuberia ? valores.Numero("DM") : 0;
    // The cold analyses take the k the user typed; the hot ones the product's law.
    s.k = datos.frio ? LeyConductividad{Ranura(ventana, 0, kOffsetK), 0}
                     : ConductividadProducto(ventana.TipoAnalisis());
    const std::vector<Posicion> geometrias = Geometrias(tuberia);
    for (size_t p = 0; p < geometrias.size(); ++p) {
        const int ideal = static_cast<int>(2 * p);
        const int practico = ideal + 1;
        datos.practicos.push_back(
                {ventana.Ventana().posiciones[p], geometrias[p], Ranura(ventana, ideal, kOffsetE),
                 Ranura(ventana, practico, kOffsetE), Ranura(ventana, practico, kOffsetTS),
                 Ranura(ventana, practico, kOffsetQt)});
    }
    return datos;
}

Verificacion Verificar(const DatosVerificacion& datos, double L) {
    Verificacion verificacion{datos, {}};
    SistemaAislado s = datos.sistema;
    s.aire.L = L;
    ValidarDatos(datos, L);
    for (const PracticoPrograma& programa : datos.practicos) {
        s.posicion = programa.geometria;
        PosicionVerificada p;
        p.programa = programa;
        p.moderno = SuperficieConEspesor(s, programa.E);
        // A cold surface's flow is shown as the heat it gains.
        const double Qt = FlujoMostrado(s, programa.E, p.moderno);
        p.QtModerno = datos.frio ? -Qt : Qt;
        p.espesorNecesario = EspesorNecesario(s, datos.requerida);
        p.cumplePrograma = Cumple(datos.frio, programa.TS, datos.requerida);
        p.cumple = Cumple(datos.frio, p.moderno.TS, datos.requerida);
        verificacion.posiciones.push_back(p);
    }
    verificacion.datos.sistema.aire.L = L;
    return verificacion;
}

}  // namespace kelvora
