#include "core/airehumedo/modeloairehumedo.h"
#include "core/units/unidades.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

// The window recalculates at each change; the box the user last chose keeps its value.
TEST(ModeloAireHumedo, CalculaAlEscribirYAlCambiarDeDato) {
    const classUnidades unidades;
    prueba::PrompterGuion prompter;
    ModeloAireHumedo modelo(unidades, prompter);
    EXPECT_EQ(modelo.lblEstado(), "Por favor ingrese la Temperatura Bulbo Seco.");
    EXPECT_FALSE(modelo.TextosVentanaFria({"°F", "°F", "°F"}));

    modelo.SetTexto(CampoAire::Seco, "80");
    modelo.SetTexto(CampoAire::Humedad, "50");
    EXPECT_EQ(modelo.lblEstado(), "");
    EXPECT_EQ(modelo.Caja(CampoAire::Rocio).Text, "59.71");
    EXPECT_EQ(modelo.Caja(CampoAire::Presion).Text, "14.696");

    modelo.ElegirHumedad(CampoAire::Rocio);
    modelo.SetTexto(CampoAire::Humedad, "10");  // a result box takes no typing
    EXPECT_EQ(modelo.Caja(CampoAire::Rocio).Text, "59.71");
    EXPECT_EQ(modelo.Caja(CampoAire::Humedad).Text, "50.01");

    modelo.SeleccionarUnidad(CampoAire::Seco, 2);  // °C: the given number is converted
    EXPECT_EQ(modelo.Caja(CampoAire::Seco).Text, "26.67");
    const auto textos = modelo.TextosVentanaFria({"°C", "°F", "K"});
    ASSERT_TRUE(textos);
    EXPECT_EQ((*textos)[0], "26.67");
    EXPECT_EQ((*textos)[2], "288.54");

    modelo.SetTexto(CampoAire::Rocio, "90");
    EXPECT_EQ(modelo.lblEstado(),
              "La Temperatura Punto de Rocío no puede ser mayor que la Temperatura Bulbo Seco.");
    EXPECT_EQ(modelo.CampoError(), CampoAire::Rocio);
    EXPECT_EQ(modelo.Caja(CampoAire::Humedad).Text, "");
    EXPECT_TRUE(prompter.mensajes.empty());
}

}  // namespace
}  // namespace kelvora
