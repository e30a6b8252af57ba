#include "core/runtime/runtimeerror.h"
#include "core/thermal/biseccion.h"
#include "core/thermal/pelicula.h"
#include "core/thermal/productos.h"
#include "core/thermal/redondeo.h"
#include "core/thermal/secciones.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>

namespace kelvora {
namespace {

using prueba::BombaContada;

TEST(Productos, NombresLimitesYConductividad) {
    struct Caso {
        int codigo;
        const char* nombre;
        const char* conAnalisis;
        double limite;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {1,  "Velmar de 80 kg/m³",     "Velmar de 80 kg/m³ (Superficies Planas - Calor)",       1400},
        {4,  "Dorlin",                 "Dorlin (Superficies Planas - Calor)",                    650},
        {9,  "Dorlin",                 "Dorlin (Superficies Cilíndricas - Calor)",               650},
        {12, "Orbelas",                "Orbelas (Superficies Cilíndricas - Calor)",              850},
        {13, "Tavelas de Poliuretano", "Tavelas de Poliuretano (Superficies Planas - Frío)",     850},
        {14, "Orbelas de Poliuretano", "Orbelas de Poliuretano (Superficies Cilíndricas - Frío)", 850},
        {0,  "",                       "",                                                         0},
        {15, "",                       "",                                                         0},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        EXPECT_EQ(NombreProducto(caso.codigo, false), caso.nombre) << caso.codigo;
        EXPECT_EQ(NombreProducto(caso.codigo, true), caso.conAnalisis) << caso.codigo;
        EXPECT_EQ(TemperaturaMaximaProducto(caso.codigo), caso.limite) << caso.codigo;
    }
    // k = a · exp(b · Tm) with the row's coefficients; 0 for an unknown code.
    EXPECT_EQ(ConductividadTermica(1, 0), 0.217);
    EXPECT_DOUBLE_EQ(ConductividadTermica(12, 100), 0.2219 * std::exp(0.18));
    EXPECT_DOUBLE_EQ(ConductividadTermica(8, 500), 0.234 * std::exp(0.75));
    EXPECT_EQ(ConductividadTermica(15, 300), 0);
}

// Reference values: referencia.py, the formulas evaluated in double precision; a hand check
// of the first gives 0.1566 · (8.596⁴ − 5.396⁴) = 722.26.
TEST(Pelicula, FormulasEnPuntosConocidos) {
    const Pelicula caliente(80, FactorViento(5), Sentido::Calor);
    const Pelicula quieta(80, FactorViento(0), Sentido::Calor);
    const Pelicula fria(90, FactorViento(0), Sentido::Frio);
    struct Caso {
        const char* nombre;
        double valor;
        double esperado;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {"FactorViento(5)",           FactorViento(5),                   2.717731915297249},
        {"Qrad caliente",             caliente.Qrad(400, 0.9),           722.2584348617933},
        {"Qconv0 cara arriba",        caliente.Qconv0(400, kCaraArriba), 426.76783728283294},
        {"Qconv vertical con viento", caliente.Qconv(400, kVertical),    910.0003126082084},
        {"Qrad frio",                 fria.Qrad(40, 0.9),                45.3201972063552},
        {"Qconv0 frio cara abajo",    fria.Qconv0(40, kCaraAbajo),       21.47814074043786},
        {"C tuberia vertical",        CoeficienteTuberia(kTuberiaVertical, 5.375), 0.8822491810111925},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        EXPECT_NEAR(caso.valor, caso.esperado, caso.esperado * 1e-14) << caso.nombre;
    }
    EXPECT_EQ(FactorViento(0), 1);
    EXPECT_EQ(quieta.Qconv(300, kVertical), quieta.Qconv0(300, kVertical));
}

TEST(Pelicula, ErroresDeLaAritmetica) {
    const Pelicula caliente(80, 1, Sentido::Calor);
    const Pelicula fria(90, 1, Sentido::Frio);
    struct Caso {
        const char* nombre;
        std::function<double()> evaluar;
        int numero;
    };
    const std::vector<Caso> casos = {
            {"superficie bajo el ambiente", [&] { return caliente.Qconv0(70, kCaraArriba); }, 5},
            {"superficie fria sobre el ambiente", [&] { return fria.Qconv(95, kVertical); }, 5},
            {"viento negativo", [] { return FactorViento(-1); }, 5},
            {"diametro 0", [] { return CoeficienteTuberia(kTuberiaHorizontal, 0); }, 11},
            {"radiacion desbordada", [&] { return caliente.Qrad(1E80, 0.9); }, 6},
    };
    for (const Caso& caso : casos) {
        try {
            caso.evaluar();
            ADD_FAILURE() << caso.nombre;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number, caso.numero) << caso.nombre;
        }
    }
}

TEST(Redondeo, EspesoresPracticos) {
    struct Caso {
        double ideal;
        double caliente;
        double tuberia;
        double frio;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {2.25,   2.5, 2.5, 2.5},
        {2.75,   3,   3,   3  },
        {2.2499, 2,   2,   2.5},
        {0.2,    0,   1,   0.5},
        {0.6,    0.5, 1,   1  },
        {1.0,    1,   1,   1.5},
        {1.3,    1.5, 1.5, 1.5},
        {1.6,    1.5, 1.5, 2  },
    };
    // clang-format on
    for (const Caso& caso : casos) {
        EXPECT_EQ(RedondeoPractico(caso.ideal), caso.caliente) << caso.ideal;
        EXPECT_EQ(RedondeoPracticoTuberia(caso.ideal), caso.tuberia) << caso.ideal;
        EXPECT_EQ(RedondeoPracticoFrio(caso.ideal), caso.frio) << caso.ideal;
    }
}

// Row of nominal 4: Una 6.625, UnaMedia 7.625, Dos 8.625, DosMedia 9.625, Tres 10.75,
// TresMedia 11.75, Cuatro 12.75.
TEST(Secciones, CercanaYSiguiente) {
    const FilaTubos fila{4, 4.5, 4.026, 6.625, 7.625, 8.625, 9.625, 10.75, 11.75, 12.75};
    struct Caso {
        double Dreq;
        double cercana;
        double siguiente;
    };
    // clang-format off
    const std::vector<Caso> casos = {
        {6.0,   1,   1  },
        {6.625, 1,   1.5},
        {9.125, 2,   2.5},
        {9.2,   2.5, 2.5},
        {8.625, 2,   2.5},
        {10.75, 3,   0  },
        {13,    4,   0  },
    };
    // clang-format on
    for (const Caso& caso : casos) {
        EXPECT_EQ(SeccionMasCercana(fila, caso.Dreq).espesor, caso.cercana) << caso.Dreq;
        const auto siguiente = SeccionSiguiente(fila, caso.Dreq);
        EXPECT_EQ(siguiente ? siguiente->espesor : 0, caso.siguiente) << caso.Dreq;
    }
}

TEST(Biseccion, RadioYSuperficie) {
    BombaContada bomba;
    const double r2 = BiseccionRadio(2, 1.75, bomba);
    EXPECT_NEAR(std::log(r2 / 1.75) * r2, 2, 0.001);
    EXPECT_EQ(BiseccionRadioFrio(2, 1.75), r2);
    EXPECT_EQ(BiseccionRadio(0, 1.75, bomba), 1.75);
    EXPECT_EQ(BiseccionRadioFrio(0, 1.75), 1.75);
    // No root below r1: the hot form gives up near r1, the cold one raises.
    EXPECT_NEAR(BiseccionRadio(-1, 1.75, bomba), 1.75, 1e-9);
    EXPECT_THROW(BiseccionRadioFrio(-1, 1.75), RuntimeError);

    // A target beyond the flux at TS + TS closes the bracket without convergence.
    const Pelicula pelicula(80, 1, Sentido::Calor);
    bomba.llamadas = 0;
    const Biseccion inalcanzable = BiseccionSuperficie(1E6, kCaraArriba, pelicula, 0.9, 100, bomba);
    EXPECT_FALSE(inalcanzable.convergio);
    EXPECT_GT(bomba.llamadas, 30);
    const Biseccion alcanzable =
            BiseccionSuperficie(pelicula.Qrad(150, 0.9) + pelicula.Qconv(150, kCaraArriba),
                                kCaraArriba, pelicula, 0.9, 100, bomba);
    EXPECT_TRUE(alcanzable.convergio);
    EXPECT_NEAR(alcanzable.valor, 150, 0.01);
}

}  // namespace
}  // namespace kelvora
