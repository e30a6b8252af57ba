#include "banco.h"

#include <gtest/gtest.h>

#include <optional>

namespace kelvora {
namespace {

using prueba::Banco;

TEST(Material, BusquedaAlTeclearElCodigo) {
    Banco b(TipoEntrada::SuperficiesPlanas);
    ModeloEntrada& v = *b.ventana;
    v.EstablecerFoco({TipoControl::Caja, 5});
    v.Teclear(5, "1");
    EXPECT_EQ(v.Texto(6), "");
    EXPECT_EQ(v.lblEstado(), "Material Superficie Aislamiento: No existe un material con código 1");
    v.Teclear(5, "2");
    EXPECT_EQ(b.materiales.consultas, (std::vector<int32_t>{1, 12}));
    EXPECT_EQ(v.Texto(6), "0.1");
    EXPECT_EQ(v.NombreMaterialAislamiento(), "ALUMINIO PULIDO");
    EXPECT_EQ(v.lblEstado(), "Material Superficie Aislamiento: ALUMINIO PULIDO");
    EXPECT_EQ(v.Caja(5).ToolTipText,
              "Nombre Material de la Superficie Exterior del Aislamiento: ALUMINIO PULIDO");
    v.Teclear(5, "\b\b");
    EXPECT_EQ(v.Texto(6), "");
    EXPECT_EQ(v.NombreMaterialAislamiento(), "");
    EXPECT_EQ(v.Caja(5).ToolTipText, "Código Material de la Superficie Exterior del Aislamiento");
    EXPECT_EQ(v.lblEstado(),
              "Ingrese el código del material que se utilizará para cubrir exteriormente el "
              "aislamiento.");
    // The bare surface has its own name, words and emissivity box.
    v.Teclear(7, "7");
    EXPECT_EQ(v.Texto(8), "0.8");
    EXPECT_EQ(v.NombreMaterialDesnuda(), "ACERO OXIDADO");
    EXPECT_EQ(v.Caja(7).ToolTipText, "Nombre Material de la Superficie Desnuda: ACERO OXIDADO");
}

// The lookup depends on the database alone; LeerEmisividadBD only empties for a code 0.
TEST(Material, OpcionYBaseDeDatos) {
    struct Caso {
        bool conBD;
        bool leerBD;
        const char* tecleado;
        const char* emisividad;
        size_t consultas;
    };
    // clang-format off
    const Caso casos[] = {
        {true,  true,  "3", "0.9",  1},
        {true,  false, "3", "0.9",  1},
        {false, true,  "3", "0.5",  0},
        {false, false, "3", "0.5",  0},
        {true,  true,  ".", "",     0},   // "0": the typed emissivity goes
        {true,  false, ".", "0.5",  0},
        {false, true,  "0", "",     0},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(TipoEntrada::SuperficiesCilindricas, c.conBD);
        b.contexto.LeerEmisividadBD = c.leerBD;
        b.ventana->SetTexto(7, "0.5");
        b.ventana->Teclear(6, c.tecleado);
        EXPECT_EQ(b.ventana->Texto(7), c.emisividad) << c.conBD << c.leerBD << c.tecleado;
        EXPECT_EQ(b.materiales.consultas.size(), c.consultas);
    }
}

TEST(Material, ActivacionBotonesYRelectura) {
    struct Caso {
        bool existe;
        bool leerBD;
        const char* caption;
        const char* toolTip;
    };
    // clang-format off
    const Caso casos[] = {
        {true,  true,  "C&onsultar", "Consultar Emisividad"},
        {true,  false, "&Leer",      "Leer Emisividad"},
        {false, true,  "&Leer",      "Leer Emisividad"},
        {false, false, "&Leer",      "Leer Emisividad"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(TipoEntrada::PlanasFrio);
        b.materiales.existe = c.existe;
        b.contexto.LeerEmisividadBD = c.leerBD;
        b.ventana->Activar();
        EXPECT_EQ(b.contexto.BDDisponible, c.existe);
        for (int k = 1; k <= 2; ++k) {
            EXPECT_EQ(b.ventana->cmdConsultarMaterial(k).Caption, c.caption);
            EXPECT_EQ(b.ventana->cmdConsultarMaterial(k).ToolTipText, c.toolTip);
        }
    }
    // A material changed elsewhere is read again when its box is active.
    Banco b(TipoEntrada::PlanasFrio);
    b.ventana->EstablecerFoco({TipoControl::Caja, 10});
    b.ventana->Teclear(10, "7");
    b.ventana->EstablecerFoco({TipoControl::Caja, 11});
    b.materiales.filas[7].first = "0.65";
    b.ventana->Activar();
    EXPECT_EQ(b.ventana->Texto(11), "0.65");
    b.materiales.filas[7].first = "0.3";
    b.ventana->EstablecerFoco({TipoControl::Caja, 1});
    b.ventana->Activar();
    EXPECT_EQ(b.ventana->Texto(11), "0.65");
}

TEST(Emisividad, DialogoHastaUnValorValido) {
    using Respuestas = std::vector<std::optional<std::string>>;
    const char* kNumerico = "Por favor ingrese un valor numérico.";
    const char* kRango = "El valor de la Emisividad debe estar entre 0 y 1.";
    struct Caso {
        Respuestas respuestas;
        std::vector<const char*> mensajes;
        const char* codigo;
        const char* emisividad;
    };
    const Caso casos[] = {
            {{"abc", "1.5", "-0.1", "0.85"}, {kNumerico, kRango, kRango}, "0", "0.85"},
            {{"0"}, {}, "0", "0.0"},
            {{"1"}, {}, "0", "1.0"},
            {{" 0.12345 "}, {}, "0", "0.123"},
            {{"0,5"}, {}, "0", "0.0"},
            {{"1.5", std::nullopt}, {kRango}, "3", "0.9"},
            {{"   "}, {}, "3", "0.9"},
    };
    for (const Caso& c : casos) {
        Banco b(TipoEntrada::SuperficiesPlanas, false);
        b.ventana->SetTexto(5, "3");
        b.ventana->SetTexto(6, "0.9");
        b.prompter.entradas.assign(c.respuestas.begin(), c.respuestas.end());
        b.ventana->cmdConsultarMaterial_Click(1);
        ASSERT_EQ(b.prompter.mensajes.size(), c.mensajes.size());
        for (size_t i = 0; i < c.mensajes.size(); ++i) {
            EXPECT_EQ(b.prompter.mensajes[i].texto, c.mensajes[i]);
            EXPECT_EQ(b.prompter.mensajes[i].titulo, "Emisividad");
            EXPECT_EQ(b.prompter.mensajes[i].icono, Icono::Exclamacion);
        }
        EXPECT_EQ(b.prompter.preguntas.size(), c.respuestas.size());
        EXPECT_EQ(b.ventana->Texto(5), c.codigo);
        EXPECT_EQ(b.ventana->Texto(6), c.emisividad);
    }
}

TEST(Emisividad, PreguntaPorVentanaYConsultaConBaseDeDatos) {
    struct Caso {
        TipoEntrada tipo;
        int boton;
        const char* pregunta;
    };
    // clang-format off
    const Caso casos[] = {
        {TipoEntrada::SuperficiesPlanas,      1, "Ingrese el valor de la Emisividad de la Superficie Exterior de Aislamiento:"},
        {TipoEntrada::SuperficiesPlanas,      2, "Ingrese el valor de la Emisividad de la  Superficie Desnuda:"},
        {TipoEntrada::SuperficiesCilindricas, 1, "Ingrese el valor de la Emisividad de la Superficie Exterior de Aislamiento:"},
        {TipoEntrada::PlanasFrio,             2, "Ingrese el valor de la Emisividad de la  Superficie Desnuda:"},
        {TipoEntrada::CilindricasFrio,        1, "Ingrese el valor de la Emisividad de la Superficie Exterior de Aislamiento:"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(c.tipo);
        b.contexto.LeerEmisividadBD = false;
        b.prompter.entradas = {"0.7"};
        b.ventana->cmdConsultarMaterial_Click(c.boton);
        ASSERT_EQ(b.prompter.preguntas.size(), 1u);
        EXPECT_EQ(b.prompter.preguntas[0].mensaje, c.pregunta);
        EXPECT_EQ(b.prompter.preguntas[0].titulo, "Emisividad");
        const BotonMaterial& boton = b.ventana->Ventana().materiales[c.boton - 1];
        EXPECT_EQ(b.ventana->Texto(boton.cajaCodigo), "0");
        EXPECT_EQ(b.ventana->Texto(boton.cajaEmisividad), "0.7");

        Banco conBD(c.tipo);
        conBD.ventana->cmdConsultarMaterial_Click(c.boton);
        EXPECT_TRUE(conBD.prompter.preguntas.empty());
        EXPECT_EQ(conBD.consultasVentana, std::vector<int>{boton.cajaCodigo});
    }
}

struct Almacenado {
    const char* nombre;
    double valor;
    const char* unidad;
};

void Cargar(ModeloEntrada& v, const std::vector<Almacenado>& variables) {
    v.Unit().ResetVariables();
    for (const Almacenado& a : variables) {
        v.Unit().AddVariable(a.nombre, a.valor, a.unidad);
    }
    v.ShowVariables();
}

const std::vector<Almacenado> kPlanas = {
        {"TemperaturaInterior", 350.456, "°C"},
        {"TemperaturaSuperficieAislamiento", 50, "°C"},
        {"TemperaturaAmbiente", 25, "°C"},
        {"VelocidadAire", 5.5, "km/h"},
        {"CodigoMaterialSuperficieAislamiento", 3, ""},
        {"EmisividadSuperficieAislamiento", 0.12345, ""},
        {"CodigoMaterialSuperficieDesnuda", 0, ""},
        {"EmisividadSuperficieDesnuda", 0.6, ""},
};

TEST(ShowVariables, EmisividadAntesQueElCodigo) {
    struct Caso {
        bool conBD;
        bool leerBD;
        const char* emisividad;
        const char* desnuda;
        const char* tag;
    };
    // clang-format off
    const Caso casos[] = {
        {true,  true,  "0.9",   "",    "0"},   // the database's value; code 0 empties
        {true,  false, "0.9",   "0.6", "1"},
        {false, true,  "0.123", "",    "0"},
        {false, false, "0.123", "0.6", "1"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(TipoEntrada::SuperficiesPlanas, c.conBD);
        b.contexto.LeerEmisividadBD = c.leerBD;
        Cargar(*b.ventana, kPlanas);
        const ModeloEntrada& v = *b.ventana;
        EXPECT_EQ(v.Texto(1), "350.46");
        EXPECT_EQ(v.Lista(1).Text(), "°C");
        EXPECT_EQ(v.Lista(1).Tag, "°C");
        EXPECT_EQ(v.Texto(4), "5.5");
        EXPECT_EQ(v.Lista(4).Text(), "km/h");
        EXPECT_EQ(v.Texto(5), "3");
        EXPECT_EQ(v.Texto(6), c.emisividad) << c.conBD << c.leerBD;
        EXPECT_EQ(v.Texto(7), "0");
        EXPECT_EQ(v.Texto(8), c.desnuda) << c.conBD << c.leerBD;
        EXPECT_EQ(v.Tag(), c.tag);
        EXPECT_EQ(v.FileState(), 1);
        EXPECT_EQ(v.lblEstado(), "");
    }
}

TEST(ShowVariables, FrioConValoresDesconocidos) {
    struct Caso {
        double bulboHumedo;
        double humedad;
        const char* caja3;
        const char* caja5;
    };
    // clang-format off
    const Caso casos[] = {
        {0,    0,  "",     ""},
        {75,   50, "75.0", "50.0"},
        {-2.5, 0,  "-2.5", ""},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(TipoEntrada::CilindricasFrio);
        Cargar(*b.ventana, {{"TemperaturaInterior", 20, "°F"},
                            {"TemperaturaAmbiente", 30, "°C"},
                            {"TemperaturaBulboHumedo", c.bulboHumedo, "°C"},
                            {"TemperaturaPuntoRocio", 20, "°C"},
                            {"HumedadRelativa", c.humedad, "%"},
                            {"CoeficienteTransmisionCalor", 0.145, "BTU plg/pie² h °F"},
                            {"VelocidadAire", 0, "m/s"},
                            {"DiametroTuberia", 50, "mm"},
                            {"CodigoMaterialSuperficieAislamiento", 3, ""},
                            {"EmisividadSuperficieAislamiento", 0.9, ""}});
        const ModeloEntrada& v = *b.ventana;
        EXPECT_EQ(v.Texto(3), c.caja3);
        EXPECT_EQ(v.Texto(5), c.caja5);
        EXPECT_EQ(v.Texto(6), "0.15");
        EXPECT_EQ(v.Texto(7), "0.0");
        EXPECT_EQ(v.Lista(7).Text(), "m/s");
        EXPECT_EQ(v.Texto(8), "50.0");
        EXPECT_EQ(v.Lista(8).Text(), "mm");
        EXPECT_EQ(v.Tag(), "12");
        EXPECT_EQ(v.FileState(), 1);
    }
}

}  // namespace
}  // namespace kelvora
