#include "banco.h"
#include "core/entry/filtroteclas.h"
#include "core/runtime/numeros.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using prueba::Banco;
using prueba::DatosValidos;

constexpr TipoEntrada kVentanas[] = {TipoEntrada::SuperficiesPlanas,
                                     TipoEntrada::SuperficiesCilindricas, TipoEntrada::PlanasFrio,
                                     TipoEntrada::CilindricasFrio};

void EsperarEstado(const ModeloEntrada& v, const char* tag, int32_t fileState, const char* paso) {
    EXPECT_EQ(v.Tag(), tag) << v.Ventana().nombre << ": " << paso;
    EXPECT_EQ(v.FileState(), fileState) << v.Ventana().nombre << ": " << paso;
    const bool completo = std::string(tag) != "0";
    EXPECT_EQ(v.cmdAceptarEnabled(), completo) << v.Ventana().nombre << ": " << paso;
    EXPECT_EQ(v.cmdGraficarEnabled(), completo) << v.Ventana().nombre << ": " << paso;
}

// Tag and FileState through a window's life: new, complete, read, visited, saved, edited.
TEST(EstadoDatos, TagYFileStatePorVentana) {
    const char* tags[] = {"1", "5", "9", "12"};
    for (size_t k = 0; k < 4; ++k) {
        Banco b(kVentanas[k]);
        ModeloEntrada& v = *b.ventana;
        EsperarEstado(v, "0", 0, "nueva");
        b.Llenar(DatosValidos(kVentanas[k]));
        EsperarEstado(v, tags[k], 2, "completa");
        v.SetTexto(1, "");
        EsperarEstado(v, "0", 0, "caja 1 vacía");
        v.SetTexto(1, "Error");
        EsperarEstado(v, "0", 0, "caja 1 con Error");
        v.SetTexto(1, "30");
        v.ShowVariables();
        EsperarEstado(v, tags[k], 1, "leída");
        v.EstablecerFoco({TipoControl::Caja, 1});
        v.EstablecerFoco({TipoControl::Caja, 2});
        EsperarEstado(v, tags[k], 1, "visitada");
        v.SetFileState(3);
        v.Activar();
        EXPECT_EQ(v.FileState(), 2) << "activada tras guardar";
        v.SetFileState(3);
        v.Teclear(2, "1");
        EsperarEstado(v, tags[k], 2, "cambiada tras guardar");
        v.tbrProducto_ButtonMenuClick(v.Ventana().productos.back().clave);
        EXPECT_EQ(v.FileState(), 2);
        EXPECT_EQ(v.lblProducto(), v.Ventana().productos.back().texto);
        EXPECT_EQ(v.TipoAnalisis(), Val(v.Ventana().productos.back().clave));
        EXPECT_GT(b.actualizaciones, 0);
    }
}

TEST(EstadoDatos, CajasOpcionalesDelFrio) {
    for (const TipoEntrada tipo : {TipoEntrada::PlanasFrio, TipoEntrada::CilindricasFrio}) {
        Banco b(tipo);
        b.Llenar(DatosValidos(tipo));
        b.ventana->SetTexto(3, "");
        b.ventana->SetTexto(5, "");
        EXPECT_TRUE(b.ventana->cmdAceptarEnabled());
        // A lone minus in the wet bulb leaves the data complete; the validation refuses it.
        b.ventana->EstablecerFoco({TipoControl::Caja, 3});
        b.ventana->Teclear(3, "-");
        EXPECT_EQ(b.ventana->Texto(3), "-");
        EXPECT_TRUE(b.ventana->cmdAceptarEnabled());
        b.ventana->SetTexto(6, "");
        EXPECT_FALSE(b.ventana->cmdAceptarEnabled());
    }
}

// The store holds what the boxes show, in box order, in the units shown.
TEST(EstadoDatos, GuardarVariablesEnOrden) {
    struct Esperado {
        const char* nombre;
        double valor;
        const char* unidad;
    };
    Banco b(TipoEntrada::CilindricasFrio);
    // With ConversionAutomatica off a unit reaches the store with the next change of a box.
    b.ventana->SeleccionarUnidad(8, "mm");
    b.Llenar(DatosValidos(TipoEntrada::CilindricasFrio));
    b.ventana->SetTexto(5, "");
    // clang-format off
    const Esperado esperado[] = {
        {"TemperaturaInterior",                 20,  "°F"},
        {"TemperaturaAmbiente",                 90,  "°F"},
        {"TemperaturaBulboHumedo",              75,  "°F"},
        {"TemperaturaPuntoRocio",               70,  "°F"},
        {"HumedadRelativa",                     0,   "%"},
        {"CoeficienteTransmisionCalor",         0.2, "BTU plg/pie² h °F"},
        {"VelocidadAire",                       3,   "mi/h"},
        {"DiametroTuberia",                     2,   "mm"},
        {"CodigoMaterialSuperficieAislamiento", 3,   ""},
        {"EmisividadSuperficieAislamiento",     0.9, ""},
    };
    // clang-format on
    const classUnidades& unit = b.ventana->Unit();
    ASSERT_EQ(unit.Count(), 10);
    for (int16_t i = 1; i <= unit.Count(); ++i) {
        const Variable registro = unit.getVariableRec(i);
        EXPECT_EQ(registro.Name, esperado[i - 1].nombre);
        EXPECT_EQ(registro.Value, esperado[i - 1].valor) << registro.Name;
        EXPECT_EQ(registro.Unit, esperado[i - 1].unidad) << registro.Name;
    }
}

TEST(EstadoDatos, CambioDeUnidad) {
    struct Caso {
        bool automatica;
        const char* texto;
        const char* unidad;
        const char* resultado;
    };
    // clang-format off
    const Caso casos[] = {
        {true,  "212", "°C",  "100.0"},
        {true,  "100", "K",   "310.93"},
        {true,  "",    "°C",  ""},
        {false, "212", "°C",  "212"},
        {false, "",    "°C",  ""},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(TipoEntrada::SuperficiesPlanas);
        b.contexto.ConversionAutomatica = c.automatica;
        b.ventana->SetTexto(1, c.texto);
        b.ventana->SeleccionarUnidad(1, c.unidad);
        EXPECT_EQ(b.ventana->Texto(1), c.resultado) << c.texto << " -> " << c.unidad;
        EXPECT_EQ(b.ventana->Lista(1).Tag, c.unidad);
    }
    // Two conversions in a row start from the unit in force, not from the first one.
    Banco b(TipoEntrada::SuperficiesCilindricas);
    b.contexto.ConversionAutomatica = true;
    b.ventana->SetTexto(5, "2");
    b.ventana->SeleccionarUnidad(5, "mm");
    b.ventana->SeleccionarUnidad(5, "cm");
    EXPECT_EQ(b.ventana->Texto(5), "5.08");
}

// Enter moves on through the tab order; the code boxes skip their query button.
TEST(Foco, EnterTabulacionYAyuda) {
    struct Caso {
        TipoEntrada tipo;
        int caja;
        const char* texto;
        Control destino;
        const char* ayuda;
    };
    const Control lista1{TipoControl::Lista, 1};
    // clang-format off
    const Caso casos[] = {
        {TipoEntrada::SuperficiesPlanas,      1, "350", lista1,                    ""},
        {TipoEntrada::SuperficiesPlanas,      5, "3",   {TipoControl::Caja, 6},    ""},
        {TipoEntrada::SuperficiesPlanas,      7, "7",   {TipoControl::Caja, 8},    ""},
        {TipoEntrada::SuperficiesPlanas,      8, "",    {TipoControl::Caja, 8},    ""},
        {TipoEntrada::SuperficiesCilindricas, 6, "3",   {TipoControl::Caja, 7},    ""},
        {TipoEntrada::SuperficiesCilindricas, 5, "2",   {TipoControl::Lista, 5},   ""},
        {TipoEntrada::PlanasFrio,             5, "50",  {TipoControl::Caja, 6},
         "Ingrese el coeficiente de calor (k) para el material que vaya a utilizar como aislante"},
        {TipoEntrada::PlanasFrio,             10, "7",  {TipoControl::Caja, 11},   ""},
        {TipoEntrada::CilindricasFrio,        9, "3",   {TipoControl::Caja, 10},   ""},
        {TipoEntrada::CilindricasFrio,        7, "3",   {TipoControl::Lista, 7},   ""},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(c.tipo);
        b.ventana->EstablecerFoco({TipoControl::Caja, c.caja});
        b.ventana->Teclear(c.caja, c.texto);
        b.ventana->txtValor_KeyPress(c.caja, kTeclaEnter);
        EXPECT_EQ(b.ventana->ControlActivo(), c.destino) << b.ventana->Ventana().nombre << c.caja;
        EXPECT_EQ(b.ventana->lblEstado(), c.ayuda) << b.ventana->Ventana().nombre << c.caja;
    }
    Banco b(TipoEntrada::SuperficiesCilindricas);
    b.ventana->EstablecerFoco({TipoControl::Caja, 2});
    EXPECT_EQ(b.ventana->lblEstado(),
              "Ingrese la temperatura que se requiere en la superficie del aislamiento, es "
              "recomendable para equipos que trabajen en caliente, hasta 140 °F");
    b.ventana->cboUnidad_KeyPress(2, kTeclaEnter);
    EXPECT_EQ(b.ventana->ControlActivo(), (Control{TipoControl::Lista, 2}));
    // TAB passes over the disabled "C&alcular" and "&Graficar".
    b.ventana->EstablecerFoco({TipoControl::Caja, 7});
    b.ventana->EnviarTab();
    EXPECT_EQ(b.ventana->ControlActivo(), (Control{TipoControl::Cancelar}));
    b.ventana->EnviarTab();
    EXPECT_EQ(b.ventana->ControlActivo(), (Control{TipoControl::Caja, 1}));
}

}  // namespace
}  // namespace kelvora
