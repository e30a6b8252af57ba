#include "core/materials/tubos.h"
#include "core/runtime/runtimeerror.h"
#include "core/thermal/realizarcalculossc.h"
#include "core/thermal/realizarcalculossp.h"
#include "core/thermal/realizarcalculosspfrio.h"
#include "core/units/unidades.h"
#include "core/verificacion/aire.h"
#include "core/verificacion/correlaciones.h"
#include "core/verificacion/errorverificacion.h"
#include "core/verificacion/informeverificacion.h"
#include "core/verificacion/modeloverificacion.h"
#include "core/verificacion/verificacion.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <optional>

namespace kelvora {
namespace {

double Relativa(double valor, double esperado) {
    return std::fabs(valor / esperado - 1);
}

// Published points, Incropera et al., Fundamentals of Heat and Mass Transfer, 6th ed.: the
// properties and results its examples print (three significant figures), hence 1 %.
TEST(Correlaciones, PuntosPublicados) {
    const PropiedadesAire aire367 = AireEnPelicula(367 * 1.8 - 459.67);
    struct Caso {
        const char* fuente;
        double valor;
        double esperado;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {"ej. 9.3, nu a 367 K",             aire367.nu,                                22.8e-6},
        {"ej. 9.3, k a 367 K",              aire367.k,                                 0.0313},
        {"ej. 9.3, alfa a 367 K",           aire367.alfa,                              32.8e-6},
        {"ej. 9.3, Pr a 367 K",             aire367.Pr,                                0.697},
        {"ej. 9.2, placa vertical",         NusseltPlacaVertical(1.813e9, 0.690),      147},
        {"ej. 9.3, cilindro horizontal",    NusseltCilindroHorizontal(5.073e6, 0.697), 23.3},
        {"ej. 9.4, cara superior caliente", NusseltPlacaHorizontalInestable(1.380e8),  5.47 * 0.375 / 0.0265},
        {"ej. 9.4, cara inferior caliente", NusseltPlacaHorizontalEstable(1.380e8),    2.07 * 0.375 / 0.0265},
        {"ej. 7.4, Churchill-Bernstein",    NusseltCilindroForzado(6071, 0.70),        40.6},
        // Hand calculation: (0.037 · 10⁶^0.8 − 871) · 0.7^(1/3).
        {"placa forzada turbulenta",        NusseltPlacaForzada(1e6, 0.7),             1299.5},
        // Laminar and mixed forms meet at the transition Reynolds number.
        {"placa forzada en la transicion",  NusseltPlacaForzada(5e5 + 1, 0.7),         NusseltPlacaForzada(5e5, 0.7)},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        EXPECT_LT(Relativa(caso.valor, caso.esperado), 0.01) << caso.fuente << ": " << caso.valor;
    }
}

SistemaAislado Sistema(Posicion posicion, double TI, double TA, double V, double D = 0) {
    SistemaAislado s;
    s.posicion = posicion;
    s.TI = TI;
    s.Es = 0.9;
    s.D = D;
    s.k = ConductividadProducto(1);
    s.aire = {TA, V, 1};
    return s;
}

// A cold face up holds its chilled air (stable) and a cold face down lets it fall away
// (unstable): the face up has the weaker film, runs colder and needs more insulation. Hot
// surfaces are the other way round.
TEST(Orientacion, CaraArribaYCaraAbajoSegunElSentidoDelCalor) {
    struct Caso {
        double TI;
        double requerida;
        bool caraArribaNecesitaMas;
    };
    const std::vector<Caso> casos = {{40, 71, true}, {400, 120, false}};
    for (const Caso& caso : casos) {
        const SistemaAislado arriba = Sistema(Posicion::CaraArriba, caso.TI, 80, 0);
        const SistemaAislado abajo = Sistema(Posicion::CaraAbajo, caso.TI, 80, 0);
        const double Qarriba =
                std::fabs(FlujoModerno(Posicion::CaraArriba, 60, 0, 0, arriba.aire).Qc);
        const double Qabajo = std::fabs(FlujoModerno(Posicion::CaraAbajo, 60, 0, 0, abajo.aire).Qc);
        const double Earriba = *EspesorNecesario(arriba, caso.requerida);
        const double Eabajo = *EspesorNecesario(abajo, caso.requerida);
        EXPECT_EQ(Earriba > Eabajo, caso.caraArribaNecesitaMas) << caso.TI;
        EXPECT_LT(Qarriba, Qabajo) << "superficie a 60 °F bajo aire a 80 °F";
    }
}

// The thickness found puts the outer face on the requirement, for every surface, hot and cold,
// with and without wind; a bare surface that already meets it needs none.
TEST(EspesorNecesario, AlcanzaLaTemperaturaExigida) {
    struct Caso {
        Posicion posicion;
        double TI;
        double V;
        double requerida;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {Posicion::CaraArriba,        600,  0, 140},
        {Posicion::Vertical,          600, 10, 100},
        {Posicion::CaraAbajo,          40,  0,  71},
        {Posicion::TuberiaVertical,   350,  5, 110},
        {Posicion::TuberiaHorizontal,  35,  0,  66},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        const SistemaAislado s = Sistema(caso.posicion, caso.TI, 80, caso.V, 2.375);
        const std::optional<double> E = EspesorNecesario(s, caso.requerida);
        ASSERT_TRUE(E && *E > 0 && *E < kEspesorMaximo) << caso.TI;
        EXPECT_NEAR(SuperficieConEspesor(s, *E).TS, caso.requerida, 1e-3) << caso.TI;
        EXPECT_EQ(EspesorNecesario(s, caso.TI), 0.0) << caso.TI;
    }
    // Just short of the air temperature a pipe needs more than the search goes to.
    EXPECT_EQ(EspesorNecesario(Sistema(Posicion::TuberiaHorizontal, 35, 80, 0, 2.375), 79.999),
              std::nullopt);
}

class TubosDos : public FuenteTubos {
public:
    std::optional<FilaTubos> BuscarTubo(double nominal) override {
        if (nominal != 2) {
            return std::nullopt;
        }
        return FilaTubos{2, 2.375, 2.067, 4.500, 5.563, 6.625, 7.625, 8.625, 9.625, 10.750};
    }
};

struct Ventana {
    Ventana(TipoResultados tipo, int32_t producto) : ventana(tipo, unidades, prompter, bomba) {
        ventana.SetTipoAnalisis(producto);
    }

    classUnidades unidades;
    prueba::PrompterGuion prompter;
    prueba::BombaContada bomba;
    ModeloResultados ventana;
};

// The verification reads the practical blocks, the required temperature back in °F from its
// display unit, the pipe's real diameter and the k the cold analyses type.
TEST(DatosDeResultados, LeeLosBloquesPracticosDeCadaVentana) {
    Ventana plana(TipoResultados::SuperficiesPlanas, 1);
    ArgumentosSP sp;
    sp.TemperaturaInterior = 600;
    sp.TemperaturaSuperficieAislamiento = 140;
    sp.TemperaturaAmbiente = 80;
    sp.unidades = {"°F", "°C", "°F"};
    sp.EmisividadSuperficieAislamiento = 0.9;
    sp.EmisividadSuperficieDesnuda = 0.8;
    ASSERT_TRUE(RealizarCalculosSP(plana.ventana, sp));
    const DatosVerificacion datos = DatosDeResultados(plana.ventana, plana.unidades);
    EXPECT_NEAR(datos.requerida, 140, 1e-9);
    ASSERT_EQ(datos.practicos.size(), 3u);
    EXPECT_EQ(datos.practicos[2].posicion, "SUPERFICIE PLANA HORIZONTAL CARA HACIA ABAJO");
    EXPECT_EQ(datos.practicos[2].E, 1.5);
    EXPECT_NEAR(datos.practicos[1].TS, 149.750976562, 1e-6);
    EXPECT_NEAR(datos.practicos[0].Qt, 134.404343817, 1e-6);

    Ventana tubo(TipoResultados::SuperficiesCilindricas, 9);
    ArgumentosSC sc;
    sc.TemperaturaInterior = 350;
    sc.TemperaturaSuperficieAislamiento = 110;
    sc.TemperaturaAmbiente = 80;
    sc.unidades = {"°F", "°F", "°F"};
    sc.DiametroTuberia = 2;
    sc.EmisividadSuperficieAislamiento = 0.9;
    TubosDos tubos;
    ASSERT_TRUE(RealizarCalculosSC(tubo.ventana, sc, tubos));
    const Verificacion v = Verificar(DatosDeResultados(tubo.ventana, tubo.unidades), 1);
    EXPECT_EQ(v.datos.sistema.D, 2.375);
    ASSERT_EQ(v.posiciones.size(), 2u);
    for (const PosicionVerificada& p : v.posiciones) {
        EXPECT_GT(p.moderno.TS, 80);
        EXPECT_LT(p.moderno.TS, 350);
        EXPECT_EQ(p.cumple, p.moderno.TS <= 110);
        EXPECT_EQ(p.cumple, *p.espesorNecesario <= p.programa.E);
    }

    Ventana fria(TipoResultados::SuperficiesPlanasFrio, 13);
    ArgumentosSPFrio spf;
    spf.TemperaturaInterior = 40;
    spf.TemperaturaSuperficie = 71;
    spf.TemperaturaAmbiente = 80;
    spf.unidades = {"°F", "°F", "°F", "°F", "°F"};
    spf.CoeficienteTransmisionCalor = 0.16;
    spf.EmisividadSuperficieAislamiento = 0.9;
    spf.EmisividadSuperficieDesnuda = 0.9;
    ASSERT_TRUE(RealizarCalculosSPFrio(fria.ventana, spf));
    const DatosVerificacion datosFrio = DatosDeResultados(fria.ventana, fria.unidades);
    EXPECT_TRUE(datosFrio.frio);
    EXPECT_EQ(datosFrio.sistema.k.a, 0.16);
    EXPECT_EQ(datosFrio.sistema.k.b, 0);
}

// Each refusal is a message in the program's words, never a NaN or a silent zero.
TEST(Verificar, DatosInvalidosDanUnMensaje) {
    DatosVerificacion base;
    base.sistema = Sistema(Posicion::Vertical, 600, 80, 0);
    base.requerida = 140;
    base.practicos = {{"SUPERFICIE PLANA VERTICAL", Posicion::Vertical, 1.8, 2, 150, 130}};
    struct Caso {
        const char* mensaje;
        std::function<void(DatosVerificacion&, double&)> cambio;
    };
    const double nan = std::nan("");
    // clang-format off
    const std::vector<Caso> casos = {
        {"La temperatura de película del aire (1850.0 °F) queda fuera de la tabla de propiedades del aire, de −100 °F a 1500 °F.",
         [](DatosVerificacion& d, double&) { d.sistema.TI = 3200; d.sistema.aire.TA = 1400; d.requerida = 1500; }},
        {"La temperatura de película del aire (-155.0 °F) queda fuera de la tabla de propiedades del aire, de −100 °F a 1500 °F.",
         [](DatosVerificacion& d, double&) { d.sistema.aire.TA = -200; d.sistema.TI = -20; d.frio = false; d.requerida = -30; }},
        {"La temperatura interior es igual a la del aire: no hay flujo de calor que verificar.",
         [](DatosVerificacion& d, double&) { d.sistema.TI = 80; d.frio = true; d.requerida = 71; }},
        {"La temperatura exigida de la superficie (80.0 °F) no queda por debajo de la del aire (80.0 °F): ningún espesor la alcanza.",
         [](DatosVerificacion& d, double&) { d.sistema.TI = 40; d.frio = true; d.requerida = 80; }},
        {"La temperatura exigida de la superficie (70.0 °F) no queda por encima de la del aire (80.0 °F): ningún espesor la alcanza.",
         [](DatosVerificacion& d, double&) { d.requerida = 70; }},
        {"Una superficie fría debe estar por debajo de la temperatura del aire.",
         [](DatosVerificacion& d, double&) { d.frio = true; }},
        {"La emisividad de la superficie del aislamiento (1.2) debe estar entre 0 y 1.",
         [](DatosVerificacion& d, double&) { d.sistema.Es = 1.2; }},
        {"La longitud característica debe ser mayor que 0 m.",
         [](DatosVerificacion&, double& L) { L = 0; }},
        {"El diámetro de la tubería debe ser mayor que 0.",
         [](DatosVerificacion& d, double&) { d.practicos[0].geometria = Posicion::TuberiaVertical; }},
        {"Los datos del resultado no son números válidos.",
         [nan](DatosVerificacion& d, double&) { d.sistema.TI = nan; }},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        DatosVerificacion datos = base;
        double L = 1;
        caso.cambio(datos, L);
        try {
            Verificar(datos, L);
            ADD_FAILURE() << "sin mensaje: " << caso.mensaje;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number, kErrorVerificacion);
            EXPECT_EQ(error.description, caso.mensaje);
        }
    }
    Ventana vacia(TipoResultados::SuperficiesPlanas, 1);
    EXPECT_THROW(DatosDeResultados(vacia.ventana, vacia.unidades), RuntimeError);
}

// The verdict after each position says in words whether the practical thickness still meets
// the requirement, and by which method; flows carry the unit of their geometry.
TEST(InformeVerificacion, DictamenDeCadaPosicion) {
    Verificacion v;
    v.datos.producto = 14;
    v.datos.frio = true;
    v.datos.requerida = 71;
    v.datos.sistema = Sistema(Posicion::TuberiaVertical, 40, 80, 0, 2.375);
    struct Caso {
        bool cumplePrograma;
        bool cumple;
        const char* dictamen;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {true,  true,  "Cumple: la superficie queda en 72.0 °F, sin bajar de los 71.0 °F exigidos (punto de rocío + 1 °F)."},
        {true,  false, "NO CUMPLE con el método moderno: la superficie baja a 70.5 °F, por debajo de los 71.0 °F exigidos (punto de rocío + 1 °F); hacen falta 2.1 plg."},
        {false, false, "No cumple con ninguno de los dos métodos: la superficie queda en 70.8 °F según el programa y en 70.5 °F según el método moderno, por debajo de los 71.0 °F exigidos (punto de rocío + 1 °F); hacen falta 2.1 plg."},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        PosicionVerificada p;
        p.programa = {"TUBERIA VERTICAL", Posicion::TuberiaVertical, 1.8, 2, 70.8, -9};
        p.moderno.TS = caso.cumple ? 72 : 70.5;
        p.espesorNecesario = 2.1;
        p.cumplePrograma = caso.cumplePrograma;
        p.cumple = caso.cumple;
        v.posiciones = {p};
        const Grilla informe = InformeVerificacion(v);
        const int ultima = informe.Rows() - 1;
        EXPECT_TRUE(informe.MergeRow(ultima));
        EXPECT_EQ(informe.TextMatrix(ultima, 0), caso.dictamen);
        EXPECT_EQ(informe.TextMatrix(ultima - 2, 0), "Ganancia de Calor Total");
        EXPECT_EQ(informe.TextMatrix(ultima - 2, 1), "BTU/pie h");
    }
}

// The window takes a length with a point or a comma; anything else is refused with a message
// and the report of the last verification stays.
TEST(ModeloVerificacion, LongitudEscrita) {
    DatosVerificacion datos;
    datos.producto = 1;
    datos.sistema = Sistema(Posicion::Vertical, 600, 80, 0);
    datos.requerida = 140;
    datos.practicos = {{"SUPERFICIE PLANA VERTICAL", Posicion::Vertical, 1.8, 2, 150, 130}};
    prueba::PrompterGuion prompter;
    ModeloVerificacion modelo(datos, "Resultados - Planas [velmar80.adk]", prompter);
    EXPECT_EQ(modelo.Caption(), "Verificación - Velmar de 80 kg/m³ [velmar80.adk]");
    ASSERT_TRUE(modelo.Calcular("0,5"));
    EXPECT_EQ(modelo.Resultado()->datos.sistema.aire.L, 0.5);
    const int filas = modelo.Informe().Rows();
    for (const char* texto : {"", "x", "0", "-1", "1e999", "2 m"}) {
        EXPECT_FALSE(modelo.Calcular(texto)) << texto;
    }
    ASSERT_EQ(prompter.mensajes.size(), 6u);
    EXPECT_EQ(prompter.mensajes[0].texto,
              "La longitud característica debe ser un número mayor que 0, en metros.");
    EXPECT_EQ(modelo.Informe().Rows(), filas);
    EXPECT_EQ(modelo.Resultado()->datos.sistema.aire.L, 0.5);
}

}  // namespace
}  // namespace kelvora
