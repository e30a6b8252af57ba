#include "banco.h"
#include "core/entry/llamadacalculo.h"

#include <gtest/gtest.h>

#include <cmath>

namespace kelvora {
namespace {

using prueba::Banco;
using prueba::BombaContada;
using prueba::PrompterGuion;

struct Dato {
    int caja;
    const char* texto;
    const char* unidad;
};

void Poner(Banco& b, const std::vector<Dato>& datos) {
    for (const Dato& d : datos) {
        b.ventana->SetTexto(d.caja, d.texto);
        if (d.unidad != nullptr) {
            b.ventana->SeleccionarUnidad(d.caja, d.unidad);
        }
    }
}

struct Esperado {
    const char* nombre;
    ValorArgumento valor;
};

void Comparar(const LlamadaCalculo& llamada, const std::vector<Esperado>& esperados) {
    for (const Esperado& e : esperados) {
        const ValorArgumento& valor = llamada.Argumento(e.nombre);
        ASSERT_EQ(valor.index(), e.valor.index()) << e.nombre;
        if (const double* d = std::get_if<double>(&e.valor)) {
            EXPECT_NEAR(std::get<double>(valor), *d, 1e-9 * std::max(1.0, std::fabs(*d)))
                    << e.nombre;
        } else {
            EXPECT_EQ(valor, e.valor) << e.nombre;
        }
    }
}

// Expected values: the conversion formulas by hand (°C -> °F: x·9/5 + 32; km/h -> mi/h:
// x·0.62137; m/s -> mi/h: x·0.00062137·3600; mm -> plg: x/25.4; K -> °F: x·9/5 - 459.67).
TEST(LlamadaCalculo, ConversionesPorVentana) {
    const NombresUnidades tresC = {"°C", "°C", "°C"};
    // clang-format off
    {
        Banco b(TipoEntrada::SuperficiesPlanas);
        Poner(b, {{1, "100", "°C"}, {2, "50", "°C"}, {3, "20", "°C"}, {4, "36", "km/h"},
                  {5, "3", nullptr}, {7, "7", nullptr}});
        const LlamadaCalculo l = PrepararLlamada(*b.ventana);
        EXPECT_EQ(l.analisis, Analisis::SP);
        Comparar(l, {{"TemperaturaInterior",                 212.0},
                     {"TemperaturaSuperficieAislamiento",    122.0},
                     {"TemperaturaAmbiente",                 68.0},
                     {"unidades",                            tresC},
                     {"VelocidadAire",                       36 * 0.62137},
                     {"EmisividadSuperficieAislamiento",     0.9},
                     {"EmisividadSuperficieDesnuda",         0.8},
                     {"CodigoMaterialSuperficieAislamiento", int16_t{3}},
                     {"CodigoMaterialSuperficieDesnuda",     int16_t{7}},
                     {"NombreMaterialAislamiento",           std::string("PINTURA NEGRA")},
                     {"NombreMaterialDesnuda",               std::string("ACERO OXIDADO")},
                     {"modoGrafica",                         false},
                     {"tipoGrafica",                         int16_t{0}}});
    }
    {
        Banco b(TipoEntrada::SuperficiesCilindricas);
        Poner(b, {{1, "100", "°C"}, {2, "50", "°C"}, {3, "20", "°C"}, {5, "50", "mm"},
                  {6, "12", nullptr}});
        const LlamadaCalculo l = PrepararLlamada(*b.ventana);
        EXPECT_EQ(l.analisis, Analisis::SC);
        Comparar(l, {{"unidades",                            tresC},
                     {"DiametroTuberia",                     50 / 25.4},
                     {"CodigoMaterialSuperficieAislamiento", int16_t{12}},
                     {"EmisividadSuperficieAislamiento",     0.1}});
    }
    for (const TipoEntrada tipo : {TipoEntrada::PlanasFrio, TipoEntrada::CilindricasFrio}) {
        Banco b(tipo);
        Poner(b, {{1, "-10", "°C"}, {2, "86", "°F"}, {3, "", "K"}, {4, "20", "°C"},
                  {5, "50", nullptr}, {6, "0.2", nullptr}, {7, "1", "m/s"}});
        const LlamadaCalculo l = PrepararLlamada(*b.ventana);
        Comparar(l, {{"TemperaturaInterior",         14.0},
                     {"TemperaturaSuperficie",       69.0},
                     {"TemperaturaAmbiente",         86.0},
                     {"TemperaturaBulboHumedo",      -459.67},
                     {"hayTBH",                      false},
                     {"TemperaturaPuntoRocio",       68.0},
                     {"unidades",                    NombresUnidades{"°C", "°C", "°F", "K", "°C"}},
                     {"VelocidadAire",               0.00062137 * 3600},
                     {"HumedadRelativa",             50.0},
                     {"hayHR",                       true},
                     {"CoeficienteTransmisionCalor", 0.2}});
    }
    // clang-format on
    // The cold pipe takes its diameter as typed, whatever the unit.
    Banco b(TipoEntrada::CilindricasFrio);
    Poner(b, {{8, "500", "mm"}, {9, "3", nullptr}});
    Comparar(PrepararLlamada(*b.ventana), {{"DiametroTuberia", 500.0},
                                           {"CodigoMaterialSuperficieAislamiento", int16_t{3}},
                                           {"EmisividadSuperficieAislamiento", 0.9}});
}

class TubosMemoria : public FuenteTubos {
public:
    std::optional<FilaTubos> BuscarTubo(double nominal) override {
        if (nominal != 2) {
            return std::nullopt;
        }
        return FilaTubos{2, 2.375, 2.067, 4.5, 5.563, 6.625, 7.625, 8.625, 9.625, 10.75};
    }
};

class DestinoPrueba : public DestinoResultados {
public:
    explicit DestinoPrueba(Prompter& prompter) : mPrompter(prompter) {}

    ModeloResultados& NuevaVentanaResultados(TipoResultados tipo) override {
        ventana = std::make_unique<ModeloResultados>(tipo, mUnidades, mPrompter, mBomba);
        return *ventana;
    }
    void DescargarVentanaResultados(ModeloResultados&) override { ++descargas; }
    FuenteTubos& Tubos() override { return mTubos; }

    std::unique_ptr<ModeloResultados> ventana;
    int descargas = 0;

private:
    Prompter& mPrompter;
    classUnidades mUnidades;
    BombaContada mBomba;
    TubosMemoria mTubos;
};

// The arguments reach the routine in their places: the grid shows them back.
TEST(cmdAceptar, LaRutinaRecibeLosArgumentos) {
    struct Caso {
        TipoEntrada tipo;
        std::vector<Dato> cambios;
        bool bien;
        std::vector<std::pair<int, const char*>> celdas;
    };
    const Caso casos[] = {
            {TipoEntrada::SuperficiesPlanas,
             {{1, "200", "°C"}, {2, "50", "°C"}, {3, "25", "°C"}, {4, "10", "km/h"}},
             true,
             {{3, "200.0"}, {5, "25.0"}, {6, "6.21"}, {7, "3"}, {8, "0.9"}, {9, "0.8"}}},
            {TipoEntrada::SuperficiesCilindricas,
             {{5, "2", "plg"}},
             true,
             {{6, "5.0"}, {7, "2.0"}, {8, "3"}, {9, "0.9"}}},
            {TipoEntrada::SuperficiesCilindricas, {{5, "50", "mm"}}, false, {}},
            {TipoEntrada::PlanasFrio, {}, true, {{3, "20.0"}, {5, "90.0"}, {8, "0.9"}, {9, "0.8"}}},
            {TipoEntrada::CilindricasFrio, {{8, "2", "mm"}}, true, {{7, "2.0"}, {8, "3"}}},
    };
    for (const Caso& c : casos) {
        Banco b(c.tipo);
        b.Llenar(prueba::DatosValidos(c.tipo));
        Poner(b, c.cambios);
        DestinoPrueba destino(b.prompter);
        const std::string donde = b.ventana->Ventana().nombre;
        EXPECT_EQ(b.ventana->cmdAceptar_Click(destino), c.bien) << donde;
        EXPECT_EQ(b.ventana->ControlActivo(), (Control{TipoControl::Aceptar}));
        EXPECT_EQ(b.bomba.llamadas, 1);
        ASSERT_NE(destino.ventana, nullptr) << donde;
        EXPECT_EQ(destino.ventana->TipoAnalisis(), b.ventana->TipoAnalisis());
        EXPECT_EQ(destino.descargas, c.bien ? 0 : 1) << donde;
        for (const auto& [fila, texto] : c.celdas) {
            EXPECT_EQ(destino.ventana->MSFG().TextMatrix(fila, 1), texto) << donde << fila;
        }
    }
}

TEST(cmdAceptar, SinValidacionNoHayVentana) {
    Banco b(TipoEntrada::SuperficiesPlanas);
    b.Llenar(prueba::DatosValidos(TipoEntrada::SuperficiesPlanas));
    b.ventana->SetTexto(3, "500");
    DestinoPrueba destino(b.prompter);
    EXPECT_FALSE(b.ventana->cmdAceptar_Click(destino));
    EXPECT_EQ(destino.ventana, nullptr);
    EXPECT_EQ(b.ventana->ControlActivo(), (Control{TipoControl::Caja, 3}));
}

}  // namespace
}  // namespace kelvora
