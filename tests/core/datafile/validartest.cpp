#include "core/app/contexto.h"
#include "core/datafile/lecturadatos.h"
#include "core/datafile/validarvariables.h"
#include "core/runtime/codificacion.h"
#include "support/dobles.h"
#include "ventanaprueba.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using prueba::PrompterGuion;

const std::string kCalor =
        "TemperaturaInterior = 350\nUnidadTemperaturaInterior = °F\n"
        "TemperaturaSuperficieAislamiento = 120\nUnidadTemperaturaSuperficieAislamiento = °F\n"
        "TemperaturaAmbiente = 80\nUnidadTemperaturaAmbiente = °F\n"
        "VelocidadAire = 5.5\nUnidadVelocidadAire = km/h\n"
        "CodigoMaterialSuperficieAislamiento = 3\nCodigoMaterialSuperficieDesnuda = 7\n";

const std::string kFrio =
        "TemperaturaInterior = 10\nUnidadTemperaturaInterior = °C\n"
        "TemperaturaAmbiente = 30\nUnidadTemperaturaAmbiente = °C\n"
        "TemperaturaBulboHumedo = 25\nUnidadTemperaturaBulboHumedo = °C\n"
        "TemperaturaPuntoRocio = 20\nUnidadTemperaturaPuntoRocio = °C\n"
        "HumedadRelativa = 70\nCoeficienteTransmisionCalor = 0.2\n"
        "VelocidadAire = 0\nUnidadVelocidadAire = mi/h\n"
        "CodigoMaterialSuperficieAislamiento = 0\nEmisividadSuperficieAislamiento = 0.9\n"
        "CodigoMaterialSuperficieDesnuda = 5\n";

const std::string kErrores = "Se han encontrado los siguientes errores:\r\n";
const std::string kAvisos = "Los siguientes valores no se encontraron:\r\n";

struct Resultado {
    bool valido;
    PrompterGuion prompter;
    classUnidades unidades;
};

Resultado Validar(const std::string& texto, Respuesta respuesta = Respuesta::Aceptar) {
    Resultado r;
    const int16_t tipo = LeerDatosArchivo(AWindows1252(texto), r.unidades, r.prompter);
    r.prompter.respuestas = {respuesta};
    r.valido = ValidarVariablesArchivo(tipo, r.unidades, r.prompter);
    return r;
}

TEST(ValidarVariables, MensajesPorTipo) {
    struct Caso {
        const char* nombre;
        std::string texto;
        Respuesta respuesta;
        bool valido;
        Icono icono;
        std::string mensaje;
    };
    const std::string f = " Se asumió °F (Grados Fahrenheit).\r\n";
    // clang-format off
    const Caso casos[] = {
        {"plano completo", "Tipo = 1\n" + kCalor, Respuesta::Aceptar, true, Icono::Ninguno, ""},
        {"frio completo",  "Tipo = 13\n" + kFrio, Respuesta::Aceptar, true, Icono::Ninguno, ""},
        {"solo tipo",      "Tipo = 7",            Respuesta::Aceptar, false, Icono::Critico, kErrores +
            "- No se encontró el Código del Material para la Superficie Exterior del Aistamiento.\r\n"
            "- No se encontró el Código del Material para la Superficie Desnuda.\r\n"},
        {"tuberia sin diametro", "Tipo = 12\n" + kCalor, Respuesta::Aceptar, false, Icono::Critico, kErrores +
            "- No se encontró el Diámetro de la tubería a aislar.\r\n"},
        {"tuberia frio sin diametro", "Tipo = 14\n" + kFrio, Respuesta::Aceptar, false, Icono::Critico, kErrores +
            "- No se encontró el Diámetro de la tubería a aislar.\r\n"},
        {"avisos aceptados", "Tipo = 8\nDiametroTuberia = 4\nVelocidadAire = 1\n"
            "TemperaturaInterior = 350\nUnidadTemperaturaInterior = °F\n"
            "TemperaturaAmbiente = 80\nCodigoMaterialSuperficieAislamiento = 2\n",
            Respuesta::Aceptar, true, Icono::Informacion, kAvisos +
            "* La Temperatura de la Superficie del Aislamiento. Se asumió 0.\r\n"
            "* La Unidad para la Temperatura de la Superficie del Aislamiento." + f +
            "* La Unidad para la Temperatura Ambiente." + f +
            "* La Unidad para la Velocidad del Aire. Se asumió mi/h (Millas por hora).\r\n"
            "* La Unidad para el Diámetro de la tubería a aislar. Se asumió plg (Pulgadas).\r\n"},
        {"avisos cancelados", "Tipo = 2\nCodigoMaterialSuperficieAislamiento = 1\n"
            "CodigoMaterialSuperficieDesnuda = 1\n",
            Respuesta::Cancelar, false, Icono::Informacion, kAvisos +
            "* La Temperatura Interior. Se asumió 0.\r\n"
            "* La Unidad para la Temperatura Interior." + f +
            "* La Temperatura de la Superficie del Aislamiento. Se asumió 0.\r\n"
            "* La Unidad para la Temperatura de la Superficie del Aislamiento." + f +
            "* La Temperatura Ambiente. Se asumió 0.\r\n"
            "* La Unidad para la Temperatura Ambiente." + f +
            "* La Velocidad del Aire. Se asumió 0.\r\n"
            "* La Unidad para la Velocidad del Aire. Se asumió mi/h (Millas por hora).\r\n"},
        {"kelvin y emisividad", "Tipo = 13\n" + kFrio + "TemperaturaInterior = 0\n"
            "UnidadTemperaturaInterior = K\nTemperaturaPuntoRocio = -40\n"
            "CodigoMaterialSuperficieDesnuda = 0\n",
            Respuesta::Aceptar, false, Icono::Critico, kErrores +
            "- El Valor de la Temperatura Interior es Inválido.\r\n"
            "- No se encontró la Emisividad del Material para la Superficie Desnuda.\r\n"},
        {"errores ocultan avisos", "Tipo = 13\nTemperaturaInterior = 1\n"
            "UnidadTemperaturaInterior = °F\nTemperaturaAmbiente = 2\nUnidadTemperaturaAmbiente = °F\n"
            "TemperaturaPuntoRocio = 3\nUnidadTemperaturaPuntoRocio = °F\nVelocidadAire = 0\n"
            "UnidadVelocidadAire = mi/h\nCodigoMaterialSuperficieAislamiento = 1\n"
            "CodigoMaterialSuperficieDesnuda = 1\n",
            Respuesta::Aceptar, false, Icono::Critico, kErrores +
            "- No se encontró el Coeficiente de Transmisión de Calor.\r\n"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        const Resultado r = Validar(caso.texto, caso.respuesta);
        EXPECT_EQ(r.valido, caso.valido);
        ASSERT_EQ(r.prompter.mensajes.size(), caso.mensaje.empty() ? 0u : 1u);
        if (!caso.mensaje.empty()) {
            const Mensaje& m = r.prompter.mensajes.front();
            EXPECT_EQ(m.texto, caso.mensaje);
            EXPECT_EQ(m.icono, caso.icono);
            EXPECT_EQ(m.botones, caso.icono == Icono::Informacion ? Botones::AceptarCancelar
                                                                  : Botones::Aceptar);
            EXPECT_EQ(m.titulo, kTituloAplicacion);
        }
    }
}

TEST(ValidarVariables, BulboHumedoDesconocidoYSoloNegativoEnKelvin) {
    struct Caso {
        std::string lineas;
        std::string mensaje;
    };
    // clang-format off
    const Caso casos[] = {
        {"TemperaturaBulboHumedo = 0\nUnidadTemperaturaBulboHumedo = K\n",  ""},
        {"TemperaturaBulboHumedo = -1\nUnidadTemperaturaBulboHumedo = k\n", kErrores +
            "- El Valor de la Temperatura del Bulbo Húmedo es Inválido.\r\n"},
        {"TemperaturaPuntoRocio = 0\nUnidadTemperaturaPuntoRocio = K\n",    kErrores +
            "- El Valor de la Temperatura del Punto de Rocío es Inválido.\r\n"},
        {"TemperaturaAmbiente = -500\nUnidadTemperaturaAmbiente = °C\n",    ""},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        SCOPED_TRACE(caso.lineas);
        const Resultado r = Validar("Tipo = 13\n" + kFrio + caso.lineas);
        EXPECT_EQ(r.valido, caso.mensaje.empty());
        EXPECT_EQ(r.prompter.mensajes.empty() ? "" : r.prompter.mensajes.front().texto,
                  caso.mensaje);
    }
    std::string sinBulbo = "Tipo = 13\n" + kFrio;
    const std::string bulbo = "TemperaturaBulboHumedo = 25\nUnidadTemperaturaBulboHumedo = °C\n";
    sinBulbo.erase(sinBulbo.find(bulbo), bulbo.size());
    const Resultado r = Validar(sinBulbo);
    ASSERT_EQ(r.prompter.mensajes.size(), 1u);
    EXPECT_EQ(r.prompter.mensajes.front().texto,
              kAvisos +
                      "* La Temperatura del Bulbo Húmedo. Se asumió DESCONOCIDA.\r\n"
                      "* La Unidad para la Temperatura del Bulbo Húmedo. Se asumió °F (Grados "
                      "Fahrenheit).\r\n");
}

TEST(ValidarVariables, UnidadesAsumidasQuedanEnLaLista) {
    const Resultado r =
            Validar("Tipo = 9\nDiametroTuberia = 4\nVelocidadAire = 2\nUnidadVelocidadAire = km/h\n"
                    "CodigoMaterialSuperficieAislamiento = 1\n");
    EXPECT_TRUE(r.valido);
    // The diameter's warning sets the speed's unit and leaves the diameter without one.
    EXPECT_EQ(r.unidades.getUnitVariable("VelocidadAire"), "mi/h");
    EXPECT_EQ(r.unidades.getUnitVariable("DiametroTuberia"), "");
    // A missing temperature is taken as 0 °F; a missing relative humidity stays missing.
    EXPECT_EQ(r.unidades.getUnitVariable("TemperaturaAmbiente"), "°F");
    EXPECT_EQ(r.unidades.getValueVariable("TemperaturaAmbiente"), 0);
    EXPECT_FALSE(r.unidades.ExistVariable("HumedadRelativa"));
}

TEST(ValidarVariables, TipoSinVentana) {
    for (const char* texto : {"", "Tipo = 0", "Tipo = 15", "Tipo = -1\nTemperaturaInterior = 3"}) {
        SCOPED_TRACE(texto);
        const Resultado r = Validar(texto);
        EXPECT_FALSE(r.valido);
        ASSERT_EQ(r.prompter.mensajes.size(), 1u);
        const Mensaje& m = r.prompter.mensajes.front();
        EXPECT_EQ(m.texto,
                  "No es posible asociar los datos leidos con alguna ventana de Entrada de "
                  "Datos.\r\nHaga click en Ayuda para mayor información.");
        EXPECT_EQ(m.icono, Icono::Critico);
        EXPECT_EQ(m.contextoAyuda, 118);
        EXPECT_EQ(m.titulo, kTituloAplicacion);
    }
}

}  // namespace
}  // namespace kelvora
