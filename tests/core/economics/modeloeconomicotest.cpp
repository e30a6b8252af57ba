#include "core/app/contexto.h"
#include "core/economics/modeloeconomico.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <functional>

namespace kelvora {
namespace {

using prueba::BombaContada;
using prueba::LocaleTemporal;
using prueba::PrompterGuion;
using prueba::RelojFijo;

constexpr int kOtro = 7;

struct Ventana {
    explicit Ventana(TipoEconomico tipo) : modelo(tipo, contexto, prompter, bomba, reloj) {}

    ContextoAplicacion contexto;
    PrompterGuion prompter;
    BombaContada bomba;
    RelojFijo reloj{{2026, 3, 5}};
    ModeloEconomico modelo;
};

bool Planas(const ModeloEconomico& m) {
    return m.Ventana().tag == std::string("3");
}

// Flat: losses 200/20, 150/15, 100/10 and areas of 1 pie²; pipes: 50/5 and 30/3, 1 pie each.
// Hours 100, a typed fuel of 1000 BTU, price 0.5, efficiency 100: the saving of each
// orientation is (QSD − QSA) · 100 / 1000 · 0.5.
void Llenar(ModeloEconomico& m) {
    if (Planas(m)) {
        m.setVariables({1, {200, 150, 100}, {20, 15, 10}, {}});
    } else {
        m.setVariables({8, {50, 30}, {5, 3}, {}});
    }
    for (const CajaEconomica& caja : m.Ventana().dimensiones) {
        m.SetText(caja.indice, "1");
    }
    m.SetHoras("100");
    m.SeleccionarCombustible(kOtro);
    m.SetText(m.Ventana().nombreCombustible.indice, "Bagazo");
    m.SetText(m.Ventana().poder.indice, "1000");
    m.SetText(m.Ventana().valor.indice, "0.5");
    m.txtValor_GotFocus(0);
}

std::vector<std::string> Resultados(const ModeloEconomico& m) {
    std::vector<std::string> textos;
    for (const CajaEconomica& caja : m.Ventana().resultados) {
        textos.push_back(m.txtValor(caja.indice).Text);
    }
    return textos;
}

TEST(ModeloEconomico, EstadoInicialPorVentana) {
    struct Caso {
        TipoEconomico tipo;
        int entradaUnidad;
        const char* unidad;
        const char* horas;
        int nombre;
        int poder;
    };
    // clang-format off
    const Caso casos[] = {
        {TipoEconomico::SuperficiesPlanas,      3, "pie²", "3480", 6, 8},
        {TipoEconomico::SuperficiesCilindricas, 4, "pie",  "5256", 5, 7},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Ventana v(c.tipo);
        const ModeloEconomico& m = v.modelo;
        for (const CajaEconomica& caja : m.Ventana().dimensiones) {
            EXPECT_EQ(m.cboUnidad(caja.indice).ListIndex, c.entradaUnidad);
            EXPECT_EQ(m.cboUnidad(caja.indice).Tag, c.unidad);
        }
        EXPECT_EQ(m.cboHorasTrabajadas().Text, c.horas);
        EXPECT_EQ(m.cboUnidad(m.Ventana().valor.indice).Text, "Pesos");
        EXPECT_EQ(m.cboUnidad(m.Ventana().valor.indice).ToolTipText, "Unidades de Longitud");
        EXPECT_EQ(m.cboCombustibleUtilizado().Text, "Carbón");
        EXPECT_EQ(m.txtValor(c.nombre).Text, "Carbón");
        EXPECT_EQ(m.txtValor(c.poder).Text, "26455");
        EXPECT_FALSE(m.txtValor(c.nombre).Enabled);
        EXPECT_FALSE(m.txtValor(c.poder).Enabled);
        EXPECT_EQ(m.lblEtiqueta(m.Ventana().valor.indice).Caption,
                  "Valor del co&mbustible por kg:");
        EXPECT_EQ(m.lblEtiqueta(c.poder).Caption, "&Poder Calorífico (BTU/kg):");
        EXPECT_FALSE(m.cmdAceptarEnabled());
        std::vector<std::string> faltantes = {"Eficiencia del Equipo (%)"};
        for (const CajaEconomica& caja : m.Ventana().dimensiones) {
            faltantes.emplace_back(caja.toolTip);
        }
        faltantes.emplace_back("Valor del Combustible utilizado");
        EXPECT_EQ(m.DatosFaltantes(), faltantes);
        EXPECT_FALSE(m.fraResultadosEnabled());
        EXPECT_EQ(m.Tag(), "0");
        // Loading selects the first fuel, and its click shows it.
        EXPECT_EQ(m.lblEstado(), "Combustible utilizado: Carbón");
    }
}

struct CasoComprobacion {
    TipoEconomico tipo;
    std::function<void(ModeloEconomico&)> cambio;
    const char* mensaje;
    const char* foco;
};

TEST(ModeloEconomico, ComprobacionesDeCalcular) {
    const auto P = TipoEconomico::SuperficiesPlanas;
    const auto C = TipoEconomico::SuperficiesCilindricas;
    // clang-format off
    const CasoComprobacion casos[] = {
        {P, [](auto& m) { m.SetText(1, "abc"); },          "Por favor ingrese el Area superficie plana horizontal cara hacia arriba.", "txtValor_1"},
        {P, [](auto& m) { m.SetText(2, "0"); },            "El Area superficie plana vertical debe ser mayor que cero.",               "txtValor_2"},
        {P, [](auto& m) { m.SeleccionarUnidad(3, -1); },   "Por favor seleccione la unidad para el Area superficie plana horizontal cara hacia abajo.", "cboUnidad_3"},
        {P, [](auto& m) { m.SetHoras("8761"); },           "El Número de horas trabajadas por el equipo en el año debe estar en el rango [1, 8760].", "cboHorasTrabajadas"},
        {P, [](auto& m) { m.SetHoras("0"); },              "El Número de horas trabajadas por el equipo en el año debe estar en el rango [1, 8760].", "cboHorasTrabajadas"},
        {P, [](auto& m) { m.SeleccionarCombustible(-1); }, "Por favor seleccione el combustible utilizado.",  "cboCombustibleUtilizado"},
        {P, [](auto& m) { m.SetText(6, "  "); },           "Por favor ingrese el Nombre del combustible utilizado.", "txtValor_6"},
        {P, [](auto& m) { m.SetText(7, "0"); },            "El Valor del Combustible utilizado debe ser mayor que cero.", "txtValor_7"},
        {P, [](auto& m) { m.SetText(0, "100.5"); },        "La Eficiencia del Equipo debe estar en el rango [1, 100].", "txtValor_0"},
        {P, [](auto& m) { m.SetText(0, "0"); },            "Error inesperado: División por cero", "cmdAceptar"},
        {P, [](auto& m) { m.SetText(8, "0"); },            "Error inesperado: División por cero", "cmdAceptar"},
        {C, [](auto& m) { m.SetText(1, ""); },             "Por favor ingrese la Longitud de la tubería vertical.", "txtValor_1"},
        {C, [](auto& m) { m.SetText(2, "0"); },            "La Longitud de la tubería horizontal debe ser mayor que cero.", "txtValor_2"},
        {C, [](auto& m) { m.SeleccionarUnidad(1, -1); },   "Por favor seleccione la unidad para la Longitud de la tubería vertical.", "cboUnidad_1"},
        {C, [](auto& m) { m.SetHoras(""); },               "El Número de horas trabajadas por el equipo en el año debe estar en el rango [1, 8760].", "cboHorasTrabajadas"},
        {C, [](auto& m) { m.SetText(5, ""); },             "Por favor ingrese el Nombre del combustible utilizado.", "txtValor_5"},
        {C, [](auto& m) { m.SetText(6, "-1"); },           "El Valor del Combustible utilizado debe ser mayor que cero.", "txtValor_6"},
        {C, [](auto& m) { m.SetText(0, "-3"); },           "La Eficiencia del Equipo debe estar en el rango [1, 100].", "txtValor_0"},
    };
    // clang-format on
    for (const CasoComprobacion& c : casos) {
        Ventana v(c.tipo);
        Llenar(v.modelo);
        c.cambio(v.modelo);
        v.modelo.cmdAceptar_Click();
        ASSERT_EQ(v.prompter.mensajes.size(), 1U) << c.mensaje;
        EXPECT_EQ(v.prompter.mensajes[0].texto, c.mensaje);
        EXPECT_EQ(v.prompter.mensajes[0].icono, Icono::Exclamacion);
        EXPECT_EQ(v.prompter.mensajes[0].titulo, "Kelvora");
        EXPECT_EQ(v.modelo.Foco(), c.foco) << c.mensaje;
        EXPECT_EQ(v.modelo.txtValor(v.modelo.Ventana().resultados[0].indice).Text, "");
    }
}

TEST(ModeloEconomico, LimitesQuePasan) {
    const std::function<void(ModeloEconomico&)> cambios[] = {
            [](auto& m) { m.SetHoras("8760"); },
            [](auto& m) { m.SetHoras("1"); },
            [](auto& m) { m.SetText(0, "100"); },
            [](auto& m) { m.SetText(0, "0.5"); },
    };
    for (const auto& cambio : cambios) {
        Ventana v(TipoEconomico::SuperficiesPlanas);
        Llenar(v.modelo);
        cambio(v.modelo);
        v.modelo.cmdAceptar_Click();
        EXPECT_TRUE(v.prompter.mensajes.empty());
        EXPECT_EQ(v.modelo.Tag(), "3");
    }
}

// Savings by hand (see Llenar): flat 180, 135, 90 · 0.05 = 9, 6.75, 4.5, total 20.25; pipes
// 45, 27 · 0.05 = 2.25, 1.35, total 3.6. The costs: flat (100 + 150 + 200) · 0.05 = 22.5 bare,
// (10 + 15 + 20) · 0.05 = 2.25 insulated; pipes (30 + 50) · 0.05 = 4 and (3 + 5) · 0.05 = 0.4.
TEST(ModeloEconomico, ResultadosConSimboloYCuatroCifras) {
    struct Caso {
        TipoEconomico tipo;
        bool coma;
        int moneda;
        std::vector<std::string> textos;
        double costoSD;
        double costoSA;
    };
    const auto P = TipoEconomico::SuperficiesPlanas;
    const auto C = TipoEconomico::SuperficiesCilindricas;
    // clang-format off
    const Caso casos[] = {
        {P, false, 0, {"$0,009.0",   "$0,006.75",   "$0,004.5",   "$0,020.25"},   22.5, 2.25},
        {P, true,  0, {"$0.009,0",   "$0.006,75",   "$0.004,5",   "$0.020,25"},   22.5, 2.25},
        {P, false, 1, {"US$0,009.0", "US$0,006.75", "US$0,004.5", "US$0,020.25"}, 22.5, 2.25},
        {C, false, 2, {"€0,002.25",  "€0,001.35",   "€0,003.6"},                  4,    0.4},
        {C, true,  2, {"€0.002,25",  "€0.001,35",   "€0.003,6"},                  4,    0.4},
    };
    // clang-format on
    for (const Caso& c : casos) {
        LocaleTemporal locale(c.coma ? LocaleChars::Espanol() : LocaleChars::Punto());
        Ventana v(c.tipo);
        ModeloEconomico& m = v.modelo;
        Llenar(m);
        m.SeleccionarUnidad(m.Ventana().valor.indice, c.moneda);
        ASSERT_TRUE(m.cmdAceptarEnabled());
        m.cmdAceptar_Click();
        EXPECT_TRUE(v.prompter.mensajes.empty());
        EXPECT_EQ(Resultados(m), c.textos);
        EXPECT_NEAR(m.CostoTotalSD(), c.costoSD, 1e-12);
        EXPECT_NEAR(m.CostoTotalSA(), c.costoSA, 1e-12);
        EXPECT_EQ(m.Moneda(), m.cboUnidad(m.Ventana().valor.indice).Text);
        EXPECT_EQ(m.Eficiencia(), 100.0F);
        EXPECT_EQ(m.FechaCalculo(), (Fecha{2026, 3, 5}));
        EXPECT_EQ(m.Tag(), m.Ventana().tag);
        EXPECT_TRUE(m.fraResultadosEnabled());
    }
}

TEST(ModeloEconomico, CambioDeEntradaBorraElResultado) {
    const std::function<void(ModeloEconomico&)> cambios[] = {
            [](auto& m) { m.SetText(2, "2"); },
            [](auto& m) { m.SetHoras("200"); },
            [](auto& m) { m.SetText(6, "Leña"); },
            [](auto& m) { m.SeleccionarCombustible(1); },
    };
    for (const auto& cambio : cambios) {
        Ventana v(TipoEconomico::SuperficiesPlanas);
        Llenar(v.modelo);
        v.modelo.cmdAceptar_Click();
        ASSERT_EQ(v.modelo.Tag(), "3");
        cambio(v.modelo);
        EXPECT_EQ(Resultados(v.modelo), std::vector<std::string>(4));
        EXPECT_FALSE(v.modelo.txtValor(9).Enabled);
        EXPECT_FALSE(v.modelo.lblEtiqueta(12).Enabled);
        EXPECT_FALSE(v.modelo.fraResultadosEnabled());
        EXPECT_TRUE(v.modelo.cmdAceptarEnabled());
        EXPECT_EQ(v.modelo.Tag(), "0");
    }
}

// A new currency recalculates at once with the same numbers; a new area unit does too when
// the box keeps its number, and with automatic conversion the converted box wipes the result.
TEST(ModeloEconomico, CambioDeUnidadConResultado) {
    struct Caso {
        bool conversion;
        int lista;
        int entrada;
        std::vector<std::string> textos;
    };
    // clang-format off
    const Caso casos[] = {
        {false, 7, 2, {"€0,009.0", "€0,006.75", "€0,004.5", "€0,020.25"}},
        {true,  7, 1, {"US$0,009.0", "US$0,006.75", "US$0,004.5", "US$0,020.25"}},
        {false, 1, 2, {"$0,000.06", "$0,006.75", "$0,004.5", "$0,011.31"}},   // 9 / 144 = 0.0625
        {true,  1, 2, {"", "", "", ""}},
    };
    // clang-format on
    const LocaleTemporal locale(LocaleChars::Punto());
    for (const Caso& c : casos) {
        Ventana v(TipoEconomico::SuperficiesPlanas);
        v.contexto.ConversionAutomatica = c.conversion;
        Llenar(v.modelo);
        v.modelo.cmdAceptar_Click();
        const int pasos = v.bomba.llamadas;
        v.modelo.SeleccionarUnidad(c.lista, c.entrada);
        EXPECT_EQ(Resultados(v.modelo), c.textos);
        EXPECT_EQ(v.bomba.llamadas, c.textos[0].empty() ? pasos : pasos + 1);
    }
}

TEST(ModeloEconomico, CombustibleRellenaNombreYPoder) {
    struct Caso {
        int combustible;
        const char* nombre;
        const char* poder;
        bool habilitadas;
        const char* etiquetaValor;
        const char* etiquetaPoder;
    };
    // clang-format off
    const Caso casos[] = {
        {7, "",                  "",         true,  "Valor del co&mbustible por unid. de volumen ó peso:", "&Poder Calorífico (unid. de volumen ó peso):"},
        {5, "Energia eléctrica", "0.000293", false, "Valor del co&mbustible por kW h:",                    "&Poder Calorífico (BTU/kW h):"},
        {4, "Gas natural",       "1000",     false, "Valor del co&mbustible por pie³:",                    "&Poder Calorífico (BTU/pie³):"},
    };
    // clang-format on
    for (const bool coma : {false, true}) {
        LocaleTemporal locale(coma ? LocaleChars::Espanol() : LocaleChars::Punto());
        Ventana v(TipoEconomico::SuperficiesPlanas);
        for (const Caso& c : casos) {
            v.modelo.SeleccionarCombustible(c.combustible);
            EXPECT_EQ(v.modelo.txtValor(6).Text, c.nombre);
            EXPECT_EQ(v.modelo.txtValor(8).Text, c.poder);
            EXPECT_EQ(v.modelo.txtValor(8).Enabled, c.habilitadas);
            EXPECT_EQ(v.modelo.lblEtiqueta(6).Enabled, c.habilitadas);
            EXPECT_EQ(v.modelo.lblEtiqueta(7).Caption, c.etiquetaValor);
            EXPECT_EQ(v.modelo.lblEtiqueta(8).Caption, c.etiquetaPoder);
        }
    }
    Ventana v(TipoEconomico::SuperficiesCilindricas);
    v.modelo.SeleccionarCombustible(kOtro);
    EXPECT_EQ(v.modelo.Foco(), "txtValor_5");
    EXPECT_EQ(v.modelo.lblEstado(), "Ingrese el nombre del combustible utilizado");
}

TEST(ModeloEconomico, FocoMuestraAyudaYEficienciaVacia) {
    struct Caso {
        TipoEconomico tipo;
        int combustible;
        int caja;
        const char* antes;
        const char* despues;
        const char* ayuda;
    };
    const auto P = TipoEconomico::SuperficiesPlanas;
    const auto C = TipoEconomico::SuperficiesCilindricas;
    // clang-format off
    const Caso casos[] = {
        {P, 0, 0, "",   "100", "Ingrese la eficiencia del equipo"},
        {P, 0, 0, "85", "85",  "Ingrese la eficiencia del equipo"},
        {P, 0, 7, "",   "",    "Ingrese el valor del combustible utilizado por kilogramo"},
        {P, 0, 3, "",   "",    "Ingrese el área de la superficie horizontal cara hacia abajo"},
        {C, 4, 6, "",   "",    "Ingrese el valor del combustible utilizado por pie³"},
        {C, 7, 7, "",   "",    "Ingrese el Poder Calorífico del combustible utilizado por unidad de volumen/peso"},
        {C, 0, 2, "",   "",    "Ingrese la longitud de la tubería horizontal"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Ventana v(c.tipo);
        v.modelo.SeleccionarCombustible(c.combustible);
        v.modelo.SetText(c.caja, c.antes);
        v.modelo.txtValor_GotFocus(c.caja);
        EXPECT_EQ(v.modelo.txtValor(c.caja).Text, c.despues);
        EXPECT_EQ(v.modelo.lblEstado(), c.ayuda);
    }
}

TEST(ModeloEconomico, HorasMuestranCicloOAyuda) {
    Ventana v(TipoEconomico::SuperficiesCilindricas);
    v.modelo.SetHoras("7008");
    EXPECT_EQ(v.modelo.lblEstado(), "Ciclo de Operación = 70%");
    v.modelo.SetHoras("");
    EXPECT_EQ(v.modelo.lblEstado(),
              "Ingrese el número de horas trabajadas por el equipo en el año");
    v.modelo.SeleccionarHoras(0);
    EXPECT_EQ(v.modelo.lblEstado(), "Ciclo de Operación = 10%");
}

TEST(ModeloEconomico, FiltroDeTeclas) {
    struct Caso {
        int caja;
        const char* texto;
        char32_t tecla;
        char32_t pasa;
        const char* queda;
        int cursor;
        bool tabulador;
    };
    // clang-format off
    const Caso casos[] = {
        {1, "",       U'5', U'5', "",       2, false},
        {1, "",       U',', U'.', "0",      1, false},
        {1, "12",     U',', U'.', "12",     2, false},
        {1, "1.5",    U'.', 0,    "1.5",    2, false},
        {1, "12",     U'-', 0,    "12",     2, false},
        {1, "12",     U'a', 0,    "12",     2, false},
        {1, "12",     8,    8,    "12",     2, false},
        {1, "12",     13,   0,    "12",     2, true },
        {1, "",       13,   0,    "",       2, false},
        {6, "",       U'x', U'x', "",       2, false},
        {6, "Bagazo", 13,   0,    "Bagazo", 2, true },
        {6, "  ",     13,   0,    "  ",     2, false},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Ventana v(TipoEconomico::SuperficiesPlanas);
        v.modelo.SeleccionarCombustible(kOtro);
        v.modelo.SetText(c.caja, c.texto);
        const TeclaEconomica r = v.modelo.txtValor_KeyPress(c.caja, c.tecla, 2);
        EXPECT_EQ(r.tecla, c.pasa) << c.texto << " " << static_cast<int>(c.tecla);
        EXPECT_EQ(r.texto, c.queda);
        EXPECT_EQ(v.modelo.txtValor(c.caja).Text, c.queda);
        EXPECT_EQ(r.cursor, c.cursor);
        EXPECT_EQ(r.tabulador, c.tabulador);
    }
    Ventana v(TipoEconomico::SuperficiesPlanas);
    EXPECT_EQ(v.modelo.cboHorasTrabajadas_KeyPress(U'7').tecla, U'7');
    EXPECT_EQ(v.modelo.cboHorasTrabajadas_KeyPress(U'.').tecla, 0U);
    EXPECT_TRUE(v.modelo.cboHorasTrabajadas_KeyPress(13).tabulador);
}

}  // namespace
}  // namespace kelvora
