#include "core/airehumedo/aire.h"
#include "core/airehumedo/psicrometria.h"
#include "core/units/unidades.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kelvora {
namespace {

const classUnidades kUnidades;

DatosAire Datos(double seco, CampoAire humedad, double valor,
                CampoAire presion = CampoAire::Presion, double valorPresion = 14.696) {
    const bool temperatura = humedad != CampoAire::Humedad;
    return {{seco, "°F"},
            humedad,
            {valor, temperatura ? "°F" : "%"},
            presion,
            {valorPresion, presion == CampoAire::Presion ? "psi" : "pie"}};
}

EstadoAire Resolver(const DatosAire& datos) {
    const CalculoAire calculo = CalcularAire(datos, kUnidades);
    EXPECT_TRUE(calculo.estado.has_value()) << calculo.mensaje;
    return calculo.estado.value_or(EstadoAire{});
}

double En(const EstadoAire& estado, CampoAire campo, const char* unidad) {
    return ValorAire(estado, campo, unidad, kUnidades);
}

// ASHRAE Handbook—Fundamentals 2017, ch. 1, Table 3 (saturation pressure, psia) and Table 2
// (saturated air at 14.696 psia: Ws in lb/lb, hs in BTU/lb from dry air at 0 °F). The
// saturation formulas agree with Table 3 within the handbook's stated 300 ppm. Table 2 is
// computed for real gases; the perfect-gas relations used here stay within the 0.7 % the
// handbook gives for them (Kuehn et al. 1998), hs within 0.5 %.
TEST(AireHumedo, SaturacionContraTablasPublicadas) {
    struct Caso {
        double t;
        double pws;
        double Ws;
        double hs;
    };
    // clang-format off
    const Caso casos[] = {
        { -4, 0.014974, 0.0006373, -0.286},
        { 23, 0.058268, 0.0024863,  8.186},
        { 41, 0.12656,  0.005425,  15.699},
        { 77, 0.45973,  0.020173,  40.576},
        {122, 1.79140,  0.086863, 126.066},
    };
    // clang-format on
    for (const Caso& c : casos) {
        const double pws = PresionSaturacion(kUnidades.Convert(c.t, "°F", "°C"));
        EXPECT_NEAR(kUnidades.Convert(pws, "kPa", "psi"), c.pws, 3e-4 * c.pws) << c.t;
        const EstadoAire e = Resolver(Datos(c.t, CampoAire::Humedad, 100));
        EXPECT_NEAR(En(e, CampoAire::Razon, "lb/lb"), c.Ws, 7e-3 * c.Ws) << c.t;
        EXPECT_NEAR(En(e, CampoAire::Entalpia, "BTU/lb"), c.hs, 0.005 + 5e-3 * std::abs(c.hs))
                << c.t;
        EXPECT_NEAR(En(e, CampoAire::Rocio, "°F"), c.t, 0.01) << c.t;
        EXPECT_NEAR(En(e, CampoAire::BulboHumedo, "°F"), c.t, 0.01) << c.t;
    }
}

// Same chapter, Table 1 (standard atmosphere, psia against feet). The table differs from its
// own eq. (3) by up to 0.003 psia.
TEST(AireHumedo, AtmosferaEstandarContraTabla) {
    const std::pair<double, double> casos[] = {
            {-1000, 15.236}, {0, 14.696}, {1000, 14.175}, {3000, 13.173}, {10000, 10.108}};
    for (const auto& [altitud, presion] : casos) {
        const EstadoAire e =
                Resolver(Datos(70, CampoAire::Humedad, 50, CampoAire::Altitud, altitud));
        EXPECT_NEAR(En(e, CampoAire::Presion, "psi"), presion, 0.005) << altitud;
    }
}

// Published points of a state: the handbook's Example 1 (100 °F dry bulb, 65 °F wet bulb,
// 14.696 psia: W 0.00523, dew point 40 °F, 13 %, h 29.80 BTU/lb, its figures rounded as
// printed), and 80 °F with 50 % on the handbook's chart, dew point 59.7 °F.
TEST(AireHumedo, PuntosPublicados) {
    const EstadoAire ejemplo = Resolver(Datos(100, CampoAire::BulboHumedo, 65));
    EXPECT_NEAR(En(ejemplo, CampoAire::Razon, "lb/lb"), 0.00523, 1e-4);
    EXPECT_NEAR(En(ejemplo, CampoAire::Rocio, "°F"), 40, 0.5);
    EXPECT_NEAR(En(ejemplo, CampoAire::Humedad, "%"), 13, 0.5);
    EXPECT_NEAR(En(ejemplo, CampoAire::Entalpia, "BTU/lb"), 29.80, 0.1);
    EXPECT_NEAR(En(ejemplo, CampoAire::Razon, "g/kg"),
                1000 * En(ejemplo, CampoAire::Razon, "kg/kg"), 1e-9);

    const EstadoAire carta = Resolver(Datos(80, CampoAire::Humedad, 50));
    EXPECT_NEAR(En(carta, CampoAire::Rocio, "°F"), 59.7, 0.1);
    EXPECT_NEAR(En(carta, CampoAire::Rocio, "°C"), (59.7 - 32) / 1.8, 0.06);
}

// Any one of the three moisture values gives back the other two, over the tool's range.
TEST(AireHumedo, LasTresEntradasDanElMismoEstado) {
    const std::pair<double, double> casos[] = {{-20, 60}, {10, 90}, {32, 40},  {50, 5},
                                               {75, 55},  {95, 30}, {120, 20}, {120, 99}};
    for (const auto& [seco, humedad] : casos) {
        const EstadoAire e = Resolver(Datos(seco, CampoAire::Humedad, humedad));
        const double bulbo = En(e, CampoAire::BulboHumedo, "°F");
        const double rocio = En(e, CampoAire::Rocio, "°F");
        EXPECT_LE(rocio, bulbo);
        EXPECT_LE(bulbo, seco);
        const EstadoAire porBulbo = Resolver(Datos(seco, CampoAire::BulboHumedo, bulbo));
        const EstadoAire porRocio = Resolver(Datos(seco, CampoAire::Rocio, rocio));
        EXPECT_NEAR(porBulbo.humedad, humedad, 1e-6) << seco;
        EXPECT_NEAR(En(porRocio, CampoAire::BulboHumedo, "°F"), bulbo, 1e-6) << seco;
    }
}

TEST(AireHumedo, DatosFueraDeRangoNombranSuCaja) {
    struct Caso {
        DatosAire datos;
        CampoAire campo;
        const char* mensaje;
    };
    const CampoAire HR = CampoAire::Humedad;
    // clang-format off
    const Caso casos[] = {
        {Datos(80, HR, 120),  HR, "La Humedad Relativa debe ser mayor que 0 % y no mayor que 100 %."},
        {Datos(80, HR, -5),   HR, "La Humedad Relativa debe ser mayor que 0 % y no mayor que 100 %."},
        {Datos(80, HR, 0),    HR, "La Humedad Relativa debe ser mayor que 0 % y no mayor que 100 %."},
        {Datos(80, CampoAire::Rocio, 81), CampoAire::Rocio,
         "La Temperatura Punto de Rocío no puede ser mayor que la Temperatura Bulbo Seco."},
        {Datos(80, CampoAire::BulboHumedo, 80.5), CampoAire::BulboHumedo,
         "La Temperatura Bulbo Húmedo no puede ser mayor que la Temperatura Bulbo Seco."},
        {Datos(120, CampoAire::BulboHumedo, 40), CampoAire::BulboHumedo,
         "La Temperatura Bulbo Húmedo es demasiado baja para esa Temperatura Bulbo Seco: ni el "
         "aire seco la alcanza."},
        {Datos(-101, HR, 50), CampoAire::Seco,
         "La Temperatura Bulbo Seco no puede ser menor que -100.0 °F."},
        {Datos(-90, CampoAire::Rocio, -120), CampoAire::Rocio,
         "La Temperatura Punto de Rocío no puede ser menor que -100.0 °F."},
        {Datos(-90, HR, 1),   HR, "Con esa Humedad Relativa el punto de rocío quedaría por debajo "
                                  "de -100.0 °F."},
        {Datos(250, HR, 50),  CampoAire::Seco, "La Temperatura Bulbo Seco debe ser menor que la "
                                               "de ebullición del agua a esa presión, 211.95 °F."},
        {Datos(70, HR, 50, CampoAire::Altitud, 33000), CampoAire::Altitud,
         "La Altitud debe estar entre -1640.42 y 32808.4 pie."},
        {Datos(70, HR, 50, CampoAire::Presion, 0), CampoAire::Presion,
         "La Presión Barométrica debe estar entre 3.83 y 15.59 psi."},
        {Datos(70, HR, 50, CampoAire::Presion, -3), CampoAire::Presion,
         "La Presión Barométrica debe estar entre 3.83 y 15.59 psi."},
    };
    // clang-format on
    for (const Caso& c : casos) {
        const CalculoAire calculo = CalcularAire(c.datos, kUnidades);
        EXPECT_FALSE(calculo.estado.has_value()) << c.mensaje;
        EXPECT_EQ(calculo.campo, c.campo) << c.mensaje;
        EXPECT_EQ(calculo.mensaje, c.mensaje);
    }
}

// Whatever the boxes hold, the result is a message or numbers, never NaN.
TEST(AireHumedo, ValoresExtremosNoDanNoNumeros) {
    const double extremos[] = {-1e308, -1e6, -459.67, 0, 1e-300, 1e6, 1e308};
    const CampoAire campos[] = {CampoAire::Humedad, CampoAire::BulboHumedo, CampoAire::Rocio};
    for (const double x : extremos) {
        for (const CampoAire campo : campos) {
            const DatosAire casos[] = {Datos(x, campo, 50), Datos(70, campo, x),
                                       Datos(70, campo, 50, CampoAire::Presion, x),
                                       Datos(70, campo, 50, CampoAire::Altitud, x)};
            for (const DatosAire& datos : casos) {
                const CalculoAire calculo = CalcularAire(datos, kUnidades);
                if (!calculo.estado) {
                    EXPECT_FALSE(calculo.mensaje.empty());
                    continue;
                }
                for (int i = 0; i <= static_cast<int>(CampoAire::Entalpia); ++i) {
                    const auto c = static_cast<CampoAire>(i);
                    EXPECT_TRUE(std::isfinite(En(*calculo.estado, c, UnidadInicialAire(c))));
                }
            }
        }
    }
}

}  // namespace
}  // namespace kelvora
