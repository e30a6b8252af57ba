#include "core/economics/ahorro.h"
#include "core/economics/combustibles.h"
#include "core/runtime/runtimeerror.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

TEST(CicloOperacion, ValoresExactosAntesQueIntervalos) {
    struct Caso {
        int32_t horas;
        const char* texto;
    };
    // clang-format off
    const Caso casos[] = {
        {0,     "Ciclo de Operación < 10%"},
        {875,   "Ciclo de Operación < 10%"},
        {876,   "Ciclo de Operación = 10%"},
        {877,   "Ciclo de Operación entre 10% y 20%"},
        {2628,  "Ciclo de Operación = 30%"},
        {3479,  "Ciclo de Operación entre 30% y 40%"},
        {3480,  "Ciclo de Operación = 40%"},
        {4380,  "Ciclo de Operación entre 40% y 50%"},   // half a year is not in the list
        {5256,  "Ciclo de Operación = 50%"},
        {7884,  "Ciclo de Operación = 80%"},
        {8000,  "Ciclo de Operación entre 80% y 100%"},
        {8759,  "Ciclo de Operación entre 80% y 100%"},
        {8760,  "Ciclo de Operación = 100%"},
        {8761,  "Ciclo de Operación > 100%"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        EXPECT_EQ(CicloOperacion(c.horas), c.texto) << c.horas;
    }
    const std::vector<std::string> horas = {"876",  "1752", "2628", "3480", "5256",
                                            "6132", "7008", "7884", "8760"};
    EXPECT_EQ(HorasTrabajadas(), horas);
}

DatosAhorro Planas(float eficiencia, double poder) {
    return {{200, 150, 100}, {20, 15, 10}, {10, 20, 30}, 1000, 2, poder, eficiencia, {1, 0, 2}};
}

// Hand calculation at 100 %, poder 1000, valor 2, 1000 h:
//   arriba   (200 − 20) · 10 · 1000 / 1000 = 1800 units, 3600 money
//   vertical (150 − 15) · 20 · 1000 / 1000 = 2700 units, 5400 money
//   abajo    (100 − 10) · 30 · 1000 / 1000 = 2700 units, 5400 money; total 14400
//   without insulation (100 · 30 + 20 · 150 + 10 · 200) · 2 · 1000 / 1000 = 16000
//   with insulation    (10 · 30 + 20 · 15 + 10 · 20) · 2 · 1000 / 1000 = 1600
// At 80 % every figure is divided by the 32-bit 0.8, 0.800000011920929, not by 0.8.
TEST(CalcularMontos, PlanasContraCalculoAMano) {
    struct Caso {
        float eficiencia;
        double divisor;
    };
    const Caso casos[] = {{100.0F, 1.0}, {80.0F, 0.800000011920929}};
    for (const Caso& c : casos) {
        const Ahorro a = CalcularMontos(Planas(c.eficiencia, 1000));
        const double tolerancia = 1e-9;
        EXPECT_NEAR(a.combustible[0], 1800 / c.divisor, tolerancia);
        EXPECT_NEAR(a.combustible[1], 2700 / c.divisor, tolerancia);
        EXPECT_NEAR(a.combustible[2], 2700 / c.divisor, tolerancia);
        EXPECT_NEAR(a.ahorro[0], 3600 / c.divisor, tolerancia);
        EXPECT_NEAR(a.total, 14400 / c.divisor, tolerancia);
        EXPECT_NEAR(a.CostoTotalSD, 16000 / c.divisor, tolerancia);
        EXPECT_NEAR(a.CostoTotalSA, 1600 / c.divisor, tolerancia);
    }
    // 1800 / 0.8 would be 2250 exactly; the Single fraction keeps it 3.4E-5 below.
    EXPECT_LT(CalcularMontos(Planas(80.0F, 1000)).combustible[0], 2250 - 1e-5);
}

// Hand calculation: (50 − 5) · 100 · 8760 / 1 = 39420000 units at 100 % and poder 1: the fuel
// is the saved BTU; (30 − 3) · 40 · 8760 = 9460800 for the horizontal run.
TEST(CalcularMontos, TuberiasConPoderUnitario) {
    const DatosAhorro datos{{50, 30}, {5, 3}, {100, 40}, 8760, 0.5, 1, 100.0F, {1, 0}};
    const Ahorro a = CalcularMontos(datos);
    EXPECT_DOUBLE_EQ(a.combustible[0], 39420000);
    EXPECT_DOUBLE_EQ(a.combustible[1], 9460800);
    EXPECT_DOUBLE_EQ(a.total, (39420000 + 9460800) * 0.5);
    EXPECT_DOUBLE_EQ(a.CostoTotalSD, (30 * 40 + 100 * 50) * 0.5 * 8760);
    EXPECT_DOUBLE_EQ(a.CostoTotalSA, (3 * 40 + 100 * 5) * 0.5 * 8760);
}

TEST(CalcularMontos, CeroEnDivisorEsError) {
    struct Caso {
        float eficiencia;
        double poder;
    };
    const Caso casos[] = {{100.0F, 0}, {0.0F, 1000}};
    for (const Caso& c : casos) {
        try {
            CalcularMontos(Planas(c.eficiencia, c.poder));
            ADD_FAILURE() << "sin error";
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number, errores::DivisionPorCero);
        }
    }
}

}  // namespace
}  // namespace kelvora
