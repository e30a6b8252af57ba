#include "core/app/contexto.h"
#include "core/datafile/escrituradatos.h"
#include "core/datafile/guardararchivo.h"
#include "core/datafile/leerarchivo.h"
#include "support/dobles.h"
#include "ventanaprueba.h"

#include <gtest/gtest.h>

#include <cstdlib>
#include <filesystem>

namespace kelvora {
namespace {

using prueba::CarpetaTemporal;
using prueba::LeerBytes;
using prueba::LocaleTemporal;
using prueba::PrompterGuion;
using prueba::SettingsMemoria;
using prueba::VentanaPrueba;

const LocaleChars kLocales[] = {LocaleChars::Punto(), LocaleChars::Espanol()};

std::string Fixture(const std::string& nombre) {
    const char* carpeta = std::getenv("KELVORA_FIXTURES");
    return LeerBytes(std::string(carpeta ? carpeta : "") + "/datafile/" + nombre);
}

// The window of the flat hot example, its variables stored out of the file's order.
VentanaPrueba VentanaEjemplo() {
    VentanaPrueba v;
    v.tag = "1";
    v.tipoAnalisis = 1;
    v.unit.AddVariable("EmisividadSuperficieDesnuda", 0.8, "");
    v.unit.AddVariable("VelocidadAire", 5.5, "mi/h");
    v.unit.AddVariable("TemperaturaInterior", 350, "°F");
    v.unit.AddVariable("temperaturasuperficieaislamiento", 120, "°F");
    v.unit.AddVariable("TemperaturaAmbiente", 80, "°F");
    v.unit.AddVariable("CodigoMaterialSuperficieAislamiento", 3, "");
    v.unit.AddVariable("EmisividadSuperficieAislamiento", 0.9, "");
    v.unit.AddVariable("CodigoMaterialSuperficieDesnuda", 7, "");
    return v;
}

TEST(EscrituraDatos, BytesDelEjemploEnAmbosLocales) {
    const std::string esperado = Fixture("planas-calor.adk");
    ASSERT_FALSE(esperado.empty());
    for (const LocaleChars& locale : kLocales) {
        SCOPED_TRACE(locale.decimal);
        LocaleTemporal fijo(locale);
        CarpetaTemporal carpeta;
        VentanaPrueba ventana = VentanaEjemplo();
        PrompterGuion prompter;
        SettingsMemoria ajustes;
        const std::string archivo = carpeta.Ruta("ejemplo.adk");
        EXPECT_TRUE(GuardarArchivo(ventana, archivo, prompter, ajustes));
        EXPECT_EQ(LeerBytes(archivo), esperado);
        EXPECT_TRUE(prompter.mensajes.empty());
        EXPECT_EQ((ajustes.valores[{"Kelvora", "ArchivosRecientes", "File-1"}]), archivo);
    }
}

TEST(EscrituraDatos, LineasPorClaseDeVentana) {
    // clang-format off
    const struct {
        int tag;
        int16_t tipo;
        std::vector<std::string> lineas;
    } casos[] = {
        {5,  9,  {"Tipo = 9  'Dorlin (Superficies Cilíndricas - Calor)",
                  "TemperaturaInterior = 0", "UnidadTemperaturaInterior = ",
                  "TemperaturaSuperficieAislamiento = 0", "UnidadTemperaturaSuperficieAislamiento = ",
                  "TemperaturaAmbiente = 0", "UnidadTemperaturaAmbiente = ",
                  "VelocidadAire = 0", "UnidadVelocidadAire = ",
                  "DiametroTuberia = 0", "UnidadDiametroTuberia = ",
                  "CodigoMaterialSuperficieAislamiento = 0", "EmisividadSuperficieAislamiento = 0"}},
        {9,  13, {"Tipo = 13  'Tavelas de Poliuretano (Superficies Planas - Frío)",
                  "TemperaturaInterior = 0", "UnidadTemperaturaInterior = ",
                  "TemperaturaAmbiente = 0", "UnidadTemperaturaAmbiente = ",
                  "TemperaturaBulboHumedo = 0", "UnidadTemperaturaBulboHumedo = ",
                  "TemperaturaPuntoRocio = 0", "UnidadTemperaturaPuntoRocio = ",
                  "HumedadRelativa = 0  '%", "CoeficienteTransmisionCalor = 0  'BTU plg/pie² h °F",
                  "VelocidadAire = 0", "UnidadVelocidadAire = ",
                  "CodigoMaterialSuperficieAislamiento = 0", "EmisividadSuperficieAislamiento = 0",
                  "CodigoMaterialSuperficieDesnuda = 0", "EmisividadSuperficieDesnuda = 0"}},
        {12, 14, {"Tipo = 14  'Orbelas de Poliuretano (Superficies Cilíndricas - Frío)",
                  "TemperaturaInterior = 0", "UnidadTemperaturaInterior = ",
                  "TemperaturaAmbiente = 0", "UnidadTemperaturaAmbiente = ",
                  "TemperaturaBulboHumedo = 0", "UnidadTemperaturaBulboHumedo = ",
                  "TemperaturaPuntoRocio = 0", "UnidadTemperaturaPuntoRocio = ",
                  "HumedadRelativa = 0  '%", "CoeficienteTransmisionCalor = 0  'BTU plg/pie² h °F",
                  "VelocidadAire = 0", "UnidadVelocidadAire = ",
                  "DiametroTuberia = 0", "UnidadDiametroTuberia = ",
                  "CodigoMaterialSuperficieAislamiento = 0", "EmisividadSuperficieAislamiento = 0"}},
    };
    // clang-format on
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.tag);
        EXPECT_EQ(LineasDatosArchivo(caso.tag, caso.tipo, classUnidades()), caso.lineas);
    }
}

TEST(EscrituraDatos, CodigosSinNormalizarElDecimal) {
    LocaleTemporal coma(LocaleChars::Espanol());
    classUnidades unit;
    unit.AddVariable("CodigoMaterialSuperficieAislamiento", 2.5, "");
    unit.AddVariable("EmisividadSuperficieAislamiento", 2.5, "");
    unit.AddVariable("HumedadRelativa", 62.5, "");
    const auto lineas = LineasDatosArchivo(12, 14, unit);
    const auto contiene = [&lineas](const std::string& linea) {
        return std::find(lineas.begin(), lineas.end(), linea) != lineas.end();
    };
    EXPECT_TRUE(contiene("CodigoMaterialSuperficieAislamiento = 2,5"));
    EXPECT_TRUE(contiene("EmisividadSuperficieAislamiento = 2.5"));
    EXPECT_TRUE(contiene("HumedadRelativa = 62.5  '%"));
}

// What each window kind writes, with values that need decimals, exponents and signs.
struct Proyecto {
    const char* tag;
    int16_t tipo;
    std::vector<Variable> variables;
};

// clang-format off
const Proyecto kProyectos[] = {
    {"1", 4, {{"TemperaturaInterior", 615.25, "°C"}, {"TemperaturaSuperficieAislamiento", 60, "°C"},
              {"TemperaturaAmbiente", -12.75, "°C"}, {"VelocidadAire", 0.00001, "km/h"},
              {"CodigoMaterialSuperficieAislamiento", 6, ""}, {"EmisividadSuperficieAislamiento", 0.09, ""},
              {"CodigoMaterialSuperficieDesnuda", 0, ""}, {"EmisividadSuperficieDesnuda", 0.95, ""}}},
    {"5", 12, {{"TemperaturaInterior", 1200, "K"}, {"TemperaturaSuperficieAislamiento", 330.5, "K"},
               {"TemperaturaAmbiente", 300, "K"}, {"VelocidadAire", 3.5, "m/s"},
               {"DiametroTuberia", 1234567.891, "mm"}, {"CodigoMaterialSuperficieAislamiento", 0, ""},
               {"EmisividadSuperficieAislamiento", 1E-16, ""}}},
    {"9", 13, {{"TemperaturaInterior", -40, "°F"}, {"TemperaturaAmbiente", 95, "°F"},
               {"TemperaturaBulboHumedo", 80.125, "°F"}, {"TemperaturaPuntoRocio", 75, "°F"},
               {"HumedadRelativa", 62.5, ""}, {"CoeficienteTransmisionCalor", 0.18, ""},
               {"VelocidadAire", 7, "mi/h"}, {"CodigoMaterialSuperficieAislamiento", 2, ""},
               {"EmisividadSuperficieAislamiento", 0.1, ""}, {"CodigoMaterialSuperficieDesnuda", 5, ""},
               {"EmisividadSuperficieDesnuda", 0.3, ""}}},
    {"12", 14, {{"TemperaturaInterior", 2, "°C"}, {"TemperaturaAmbiente", 35, "°C"},
                {"TemperaturaBulboHumedo", 28, "°C"}, {"TemperaturaPuntoRocio", 26.5, "°C"},
                {"HumedadRelativa", 85, ""}, {"CoeficienteTransmisionCalor", 0.2, ""},
                {"VelocidadAire", 1.5, "yd/h"}, {"DiametroTuberia", 6.625, "plg"},
                {"CodigoMaterialSuperficieAislamiento", 1, ""}, {"EmisividadSuperficieAislamiento", 0.9, ""}}},
};
// clang-format on

TEST(EscrituraDatos, LoEscritoSeLeeIgual) {
    for (const LocaleChars& locale : kLocales) {
        LocaleTemporal fijo(locale);
        for (const Proyecto& proyecto : kProyectos) {
            SCOPED_TRACE(std::string(proyecto.tag) + " " + locale.decimal);
            CarpetaTemporal carpeta;
            VentanaPrueba origen;
            origen.tag = proyecto.tag;
            origen.tipoAnalisis = proyecto.tipo;
            for (const Variable& v : proyecto.variables) {
                origen.unit.AddVariable(v.Name, v.Value, v.Unit);
            }
            ContextoAplicacion contexto;
            PrompterGuion prompter;
            SettingsMemoria ajustes;
            EntornoArchivos entorno{contexto, prompter, ajustes};
            const std::string archivo = carpeta.Ruta("proyecto.adk");
            ASSERT_TRUE(GuardarArchivo(origen, archivo, prompter, ajustes));

            VentanaPrueba destino;
            int16_t tipoCreado = 0;
            const auto crear = [&](VentanaEntrada, int16_t tipo) {
                tipoCreado = tipo;
                return &destino;
            };
            ASSERT_TRUE(LeerArchivo(archivo, entorno, crear));
            EXPECT_TRUE(prompter.mensajes.empty());
            EXPECT_EQ(tipoCreado, proyecto.tipo);
            EXPECT_EQ(destino.unit.Count(), static_cast<int16_t>(proyecto.variables.size()));
            for (const Variable& v : proyecto.variables) {
                EXPECT_EQ(destino.unit.getValueVariable(v.Name), v.Value) << v.Name;
                EXPECT_EQ(destino.unit.getUnitVariable(v.Name), v.Unit) << v.Name;
            }
        }
    }
}

TEST(EscrituraDatos, ListadosImagenYVentanaSinClase) {
    Grilla grilla;
    grilla.SetRows(1);
    grilla.SetCols(2);
    grilla.SetTextMatrix(0, 0, "Área");
    grilla.SetTextMatrix(0, 1, "5 m²");
    // clang-format off
    const struct {
        const char* tag;
        std::string imagen;
        std::string bytes;
    } casos[] = {
        {"2",  "",     "\xC1rea  5 m\xB2  \r\n"},
        {"0",  "",     ""},
        {"15", "BM..", "BM.."},
    };
    // clang-format on
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.tag);
        CarpetaTemporal carpeta;
        VentanaPrueba ventana;
        ventana.tag = caso.tag;
        ventana.grilla = grilla;
        ventana.imagen = caso.imagen;
        PrompterGuion prompter;
        SettingsMemoria ajustes;
        const std::string archivo = carpeta.Ruta("salida.txt");
        EXPECT_TRUE(GuardarArchivo(ventana, archivo, prompter, ajustes));
        EXPECT_EQ(LeerBytes(archivo), caso.bytes);
        EXPECT_TRUE(ajustes.valores.empty()) << "only data files are recent files";
    }
}

// Saving over a file replaces its content only: a link stays a link, the permissions stay, and
// a file without write permission is refused as it stands.
TEST(EscrituraDatos, ReemplazarConservaEnlacePermisosYSoloLectura) {
    namespace fs = std::filesystem;
    using fs::perms;
    CarpetaTemporal carpeta;
    const std::string destino = carpeta.Ruta("destino.adk");
    const std::string enlace = carpeta.Ruta("enlace.adk");
    struct Caso {
        const char* nombre;
        perms permisos;
        bool porEnlace;
        bool guarda;
    };
    // clang-format off
    const Caso casos[] = {
        {"permisos propios", perms::owner_read | perms::owner_write | perms::group_read, false, true},
        {"por un enlace",    perms::owner_read | perms::owner_write,                   true,  true},
        {"solo lectura",     perms::owner_read | perms::group_read,                    false, false},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        fs::remove(enlace);
        prueba::EscribirBytes(destino, "anterior");
        fs::permissions(destino, caso.permisos);
        if (caso.porEnlace) {
            fs::create_symlink("destino.adk", enlace);
        }
        VentanaPrueba ventana = VentanaEjemplo();
        PrompterGuion prompter;
        SettingsMemoria ajustes;
        const std::string nombre = caso.porEnlace ? enlace : destino;
        EXPECT_EQ(GuardarArchivo(ventana, nombre, prompter, ajustes), caso.guarda) << caso.nombre;
        EXPECT_EQ(LeerBytes(destino) != "anterior", caso.guarda) << caso.nombre;
        EXPECT_EQ(fs::status(destino).permissions(), caso.permisos) << caso.nombre;
        EXPECT_EQ(fs::is_symlink(enlace), caso.porEnlace) << caso.nombre;
        if (!caso.guarda) {
            ASSERT_EQ(prompter.mensajes.size(), 1u);
            EXPECT_EQ(prompter.mensajes[0].texto,
                      "Se ha producido el siguiente error: El archivo '" + destino +
                              "' es de solo lectura o no tiene permiso para modificarlo. "
                              "Guárdelo con otro nombre.");
        }
        fs::permissions(destino, perms::owner_all);
    }
    EXPECT_EQ(std::distance(fs::directory_iterator(carpeta.carpeta), fs::directory_iterator()), 1);
}

TEST(EscrituraDatos, UnFalloDejaElArchivoAnterior) {
    CarpetaTemporal carpeta;
    const std::string archivo = carpeta.Ruta("grafica.bmp");
    prueba::EscribirBytes(archivo, "anterior");
    VentanaPrueba ventana;
    ventana.tag = "15";  // no picture: the chart's save fails
    PrompterGuion prompter;
    SettingsMemoria ajustes;
    EXPECT_FALSE(GuardarArchivo(ventana, archivo, prompter, ajustes));
    EXPECT_EQ(LeerBytes(archivo), "anterior");
    EXPECT_EQ(std::distance(std::filesystem::directory_iterator(carpeta.carpeta),
                            std::filesystem::directory_iterator()),
              1);
    ASSERT_EQ(prompter.mensajes.size(), 1u);
    EXPECT_EQ(prompter.mensajes[0].texto, "Se ha producido el siguiente error: Error de impresora");

    VentanaPrueba datos = VentanaEjemplo();
    EXPECT_FALSE(GuardarArchivo(datos, carpeta.Ruta("no/existe.adk"), prompter, ajustes));
    ASSERT_EQ(prompter.mensajes.size(), 2u);
    const Mensaje& m = prompter.mensajes[1];
    EXPECT_EQ(m.texto, "Se ha producido el siguiente error: No se encontró la ruta de acceso");
    EXPECT_EQ(m.icono, Icono::Critico);
    EXPECT_EQ(m.titulo, "Error");
    EXPECT_TRUE(ajustes.valores.empty());
}

}  // namespace
}  // namespace kelvora
