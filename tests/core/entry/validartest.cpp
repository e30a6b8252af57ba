#include "banco.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using prueba::Banco;
using prueba::DatosValidos;

constexpr TipoEntrada H = TipoEntrada::SuperficiesPlanas;
constexpr TipoEntrada P = TipoEntrada::SuperficiesCilindricas;
constexpr TipoEntrada F = TipoEntrada::PlanasFrio;
constexpr TipoEntrada T = TipoEntrada::CilindricasFrio;
constexpr TipoControl C = TipoControl::Caja;
constexpr TipoControl L = TipoControl::Lista;

// Valid data with one box changed, or one list emptied (texto nullptr), then ValidarDatos.
TEST(ValidarDatos, MensajeYFocoPorVentana) {
    struct Caso {
        TipoEntrada tipo;
        int caja;
        const char* texto;
        const char* unidad;
        const char* mensaje;
        Control foco;
    };
    // clang-format off
    const Caso casos[] = {
        {H, 1, "",     nullptr, "Por favor ingrese la Temperatura Interior.",                       {C, 1}},
        {H, 2, "-",    nullptr, "Por favor ingrese la Temperatura de la Superficie del Aislamiento.", {C, 2}},
        {H, 4, "",     nullptr, "Por favor ingrese la Velocidad del Aire.",                         {C, 4}},
        {H, 1, "0",    "K",     "La Temperatura Interior no es válida.",                            {C, 1}},
        {H, 3, "-5",   "K",     "La Temperatura Ambiente no es válida.",                            {C, 3}},
        {H, 2, "",     "",      "Por favor ingrese la Temperatura de la Superficie del Aislamiento.", {C, 2}},
        {H, 3, "80",   "",      "Por favor seleccione la unidad para la Temperatura Ambiente.",     {L, 3}},
        {H, 2, "351",  nullptr, "La Temperatura de la Superficie del Aislamiento debe ser menor que la Temperatura Interior.", {C, 2}},
        {H, 3, "121",  nullptr, "La Temperatura Ambiente debe ser menor que la Temperatura Superficial.", {C, 3}},
        {H, 2, "26",   "°C",    "La Temperatura Ambiente debe ser menor que la Temperatura Superficial.", {C, 3}},
        {P, 5, "",     nullptr, "Por favor ingrese el Diametro de la tubería a aislar.",             {C, 5}},
        {P, 5, "0",    nullptr, "El Diametro de la tubería a aislar no es válido.",                 {C, 5}},
        {P, 5, "2",    "",      "Por favor seleccione la unidad para el Diametro de la tubería a aislar.", {L, 5}},
        {P, 4, "5",    "",      "Por favor seleccione la unidad para la Velocidad del Aire.",       {L, 4}},
        {P, 1, "0",    "K",     "La Temperatura Interior no es válida.",                            {C, 1}},
        {P, 3, "121",  nullptr, "La Temperatura Ambiente debe ser menor que la Temperatura Superficial.", {C, 3}},
        {F, 1, "",     nullptr, "Por favor ingrese la Temperatura Interior.",                       {C, 1}},
        {F, 3, "-",    nullptr, "Por favor ingrese la Temperatura Bulbo Húmedo.",                   {C, 3}},
        {F, 3, "",     "K",     "La Temperatura Bulbo Húmedo no es válida.",                        {C, 3}},
        {F, 6, "",     nullptr, "Por favor ingrese el Coeficiente de Transmisión de Calor.",        {C, 6}},
        {F, 7, "",     nullptr, "Por favor ingrese la Velocidad del Aire.",                         {C, 7}},
        {F, 7, "3",    "",      "Por favor seleccione la unidad para la Velocidad del Aire.",       {L, 7}},
        {F, 4, "70",   "",      "Por favor seleccione la unidad para la Temperatura Punto de Rocío.", {L, 4}},
        {F, 1, "91",   nullptr, "La Temperatura Ambiente (Temperatura del Bulbo Seco) debe ser mayor que la Temperatura Interior.", {C, 2}},
        {F, 4, "91",   nullptr, "La Temperatura del Punto de Rocío debe ser menor que la Temperatura Ambiente.", {C, 4}},
        {F, 5, "-1",   nullptr, "La Humedad Relativa debe ser mayor que cero.",                     {C, 5}},
        {F, 6, "0",    nullptr, "El Coeficiente de Transmisión de Calor debe ser mayor que cero.",  {C, 6}},
        {F, 6, "-0.1", nullptr, "El Coeficiente de Transmisión de Calor debe ser mayor que cero.",  {C, 6}},
        {T, 8, "",     nullptr, "Por favor ingrese el Diámetro de la tubería a aislar.",            {C, 8}},
        {T, 8, "2",    "",      "Por favor seleccione la unidad para el Diámetro de la tubería a aislar.", {L, 8}},
        {T, 2, "90",   "",      "Por favor seleccione la unidad para la Temperatura Bulbo Seco (Temperatura Ambiente).", {L, 2}},
        {T, 4, "33",   "°C",    "La Temperatura del Punto de Rocío debe ser menor que la Temperatura Ambiente.", {C, 4}},
        {T, 5, "-5",   nullptr, "La Humedad Relativa debe ser mayor que cero.",                     {C, 5}},
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(c.tipo);
        b.Llenar(DatosValidos(c.tipo));
        b.ventana->SetTexto(c.caja, c.texto);
        if (c.unidad != nullptr) {
            if (std::string(c.unidad).empty()) {
                b.ventana->SeleccionarUnidad(c.caja, -1);
            } else {
                b.ventana->SeleccionarUnidad(c.caja, c.unidad);
            }
        }
        const std::string donde = std::string(b.ventana->Ventana().nombre) + " " + c.mensaje;
        EXPECT_FALSE(b.ventana->ValidarDatos()) << donde;
        ASSERT_EQ(b.prompter.mensajes.size(), 1u) << donde;
        EXPECT_EQ(b.prompter.mensajes[0].texto, c.mensaje);
        EXPECT_EQ(b.prompter.mensajes[0].icono, Icono::Exclamacion);
        EXPECT_EQ(b.prompter.mensajes[0].botones, Botones::Aceptar);
        EXPECT_EQ(b.prompter.mensajes[0].titulo, "Kelvora");
        EXPECT_EQ(b.ventana->ControlActivo(), c.foco) << donde;
    }
}

// Equal values pass the comparisons, empty optional boxes pass, and no upper bounds exist.
TEST(ValidarDatos, CasosQuePasan) {
    struct Caso {
        TipoEntrada tipo;
        int caja;
        const char* texto;
        const char* unidad;
    };
    // clang-format off
    const Caso casos[] = {
        {H, 2, "350",  nullptr},   // TS = TI
        {H, 3, "120",  nullptr},   // TA = TS
        {H, 4, "0",    nullptr},   // still air
        {H, 2, "48.8", "°C"},      // 48.8 °C = 119.84 °F, above TA
        {P, 5, "50",   "mm"},      // the diameter is not checked against Tubos here
        {F, 1, "90",   nullptr},   // TI = TA
        {F, 4, "90",   nullptr},   // dew point = TA
        {F, 5, "0",    nullptr},
        {F, 5, "",     nullptr},
        {F, 5, "150",  nullptr},
        {F, 3, "",     nullptr},
        {F, 3, "95",   nullptr},   // the wet bulb is compared with nothing
        {T, 8, "500",  "mm"},
        {T, 4, "-40",  "°C"},      // -40 °C = -40 °F
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(c.tipo);
        b.Llenar(DatosValidos(c.tipo));
        b.ventana->SetTexto(c.caja, c.texto);
        if (c.unidad != nullptr) {
            b.ventana->SeleccionarUnidad(c.caja, c.unidad);
        }
        EXPECT_TRUE(b.ventana->ValidarDatos()) << b.ventana->Ventana().nombre << " " << c.caja;
        EXPECT_TRUE(b.prompter.mensajes.empty())
                << (b.prompter.mensajes.empty() ? "" : b.prompter.mensajes[0].texto);
    }
}

TEST(ValidarDatos, LimiteDeServicio) {
    struct Caso {
        TipoEntrada tipo;
        int32_t producto;
        const char* interior;
        const char* unidad;
        Respuesta respuesta;
        const char* mensaje;
        bool valido;
    };
    const char* kDorlin = "El Producto 'Dorlin' de FORNALIS sólo puede utilizarse hasta 650 °F.";
    const char* kLorvan = "El Producto 'Lorvan' de FORNALIS sólo puede utilizarse hasta 850 °F.";
    const char* kOrbelas =
            "El Producto 'Orbelas de Poliuretano' de FORNALIS sólo puede utilizarse hasta 850 °F.";
    // clang-format off
    const Caso casos[] = {
        {H, 4,  "651",  "°F", Respuesta::Cancelar, kDorlin,  false},
        {H, 4,  "651",  "°F", Respuesta::Aceptar,  kDorlin,  true},
        {H, 4,  "650",  "°F", Respuesta::Cancelar, nullptr,  true},   // at the limit
        {H, 7,  "455",  "°C", Respuesta::Cancelar, kLorvan,  false},  // 851 °F
        {P, 9,  "651",  "°F", Respuesta::Cancelar, kDorlin,  false},
        {T, 14, "900",  "°F", Respuesta::Aceptar,  kOrbelas, false},  // OK, then TI above TA
    };
    // clang-format on
    for (const Caso& c : casos) {
        Banco b(c.tipo);
        b.ventana->SetTipoAnalisis(c.producto);
        b.Llenar(DatosValidos(c.tipo));
        b.ventana->SetTexto(1, c.interior);
        b.ventana->SeleccionarUnidad(1, c.unidad);
        b.prompter.respuestas = {c.respuesta};
        EXPECT_EQ(b.ventana->ValidarDatos(), c.valido) << c.interior;
        if (c.mensaje == nullptr) {
            EXPECT_TRUE(b.prompter.mensajes.empty());
            continue;
        }
        ASSERT_FALSE(b.prompter.mensajes.empty());
        EXPECT_EQ(b.prompter.mensajes[0].texto, c.mensaje);
        EXPECT_EQ(b.prompter.mensajes[0].botones, Botones::AceptarCancelar);
        EXPECT_EQ(b.prompter.mensajes[0].icono, Icono::Exclamacion);
        if (c.respuesta == Respuesta::Cancelar) {
            EXPECT_EQ(b.ventana->ControlActivo(), (Control{C, 1}));
        }
    }
}

}  // namespace
}  // namespace kelvora
