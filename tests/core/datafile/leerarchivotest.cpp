#include "core/app/contexto.h"
#include "core/datafile/archivobytes.h"
#include "core/datafile/leerarchivo.h"
#include "core/runtime/codificacion.h"
#include "support/dobles.h"
#include "ventanaprueba.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <sys/stat.h>

namespace kelvora {
namespace {

using prueba::CarpetaTemporal;
using prueba::DialogosGuion;
using prueba::PrompterGuion;
using prueba::SettingsMemoria;
using prueba::VentanaPrueba;

const std::string kCompleto =
        "Tipo = 5\r\nTemperaturaInterior = 300\r\nUnidadTemperaturaInterior = °F\r\n"
        "TemperaturaSuperficieAislamiento = 120\r\nUnidadTemperaturaSuperficieAislamiento = °F\r\n"
        "TemperaturaAmbiente = 80\r\nUnidadTemperaturaAmbiente = °F\r\nVelocidadAire = 0\r\n"
        "UnidadVelocidadAire = mi/h\r\nCodigoMaterialSuperficieAislamiento = 1\r\n"
        "CodigoMaterialSuperficieDesnuda = 2\r\n";

// A program with one window ready to take a file, and a folder for the files.
struct Programa {
    ContextoAplicacion contexto;
    PrompterGuion prompter;
    SettingsMemoria ajustes;
    EntornoArchivos entorno{contexto, prompter, ajustes};
    CarpetaTemporal carpeta;
    VentanaPrueba ventana;
    std::vector<std::pair<VentanaEntrada, int16_t>> creadas;
    bool crearFalla = false;

    CrearVentanaDatos Crear() {
        return [this](VentanaEntrada clase, int16_t tipo) -> VentanaArchivo* {
            creadas.emplace_back(clase, tipo);
            return crearFalla ? nullptr : &ventana;
        };
    }
    std::string Archivo(const std::string& texto) {
        const std::string ruta = carpeta.Ruta("datos.adk");
        prueba::EscribirBytes(ruta, AWindows1252(texto));
        return ruta;
    }
    std::string Reciente() { return ajustes.valores[{"Kelvora", "ArchivosRecientes", "File-1"}]; }
};

TEST(LeerArchivo, VentanaSegunTipo) {
    using V = VentanaEntrada;
    // clang-format off
    const struct {
        int16_t tipo;
        std::optional<VentanaEntrada> ventana;
    } casos[] = {
        {0, std::nullopt}, {1, V::SuperficiesPlanas}, {7, V::SuperficiesPlanas},
        {8, V::SuperficiesCilindricas}, {12, V::SuperficiesCilindricas},
        {13, V::SuperficiesPlanasFrio}, {14, V::SuperficiesCilindricasFrio}, {15, std::nullopt},
    };
    // clang-format on
    for (const auto& caso : casos) {
        EXPECT_EQ(VentanaEntradaDeTipo(caso.tipo), caso.ventana) << caso.tipo;
    }
}

TEST(LeerArchivo, LaVentanaRecibeUnaCopiaYUnidadesQuedaVacia) {
    Programa p;
    const std::string archivo = p.Archivo(kCompleto);
    EXPECT_TRUE(LeerArchivo(archivo, p.entorno, p.Crear()));
    ASSERT_EQ(p.creadas.size(), 1u);
    EXPECT_EQ(p.creadas[0], std::make_pair(VentanaEntrada::SuperficiesPlanas, int16_t{5}));
    EXPECT_EQ(p.ventana.unit.getValueVariable("TemperaturaInterior"), 300);
    EXPECT_EQ(p.ventana.unit.Count(), 6);
    EXPECT_EQ(p.ventana.mostradas, 1);
    EXPECT_EQ(p.ventana.fileState, 1);
    EXPECT_EQ(p.ventana.fileName, archivo);
    EXPECT_EQ(p.contexto.Unidades.Count(), 0);
    EXPECT_EQ(p.Reciente(), archivo);
}

TEST(LeerArchivo, TrasUnFalloUnidadesConservaLoLeido) {
    // clang-format off
    const struct {
        const char* nombre;
        std::string texto;
        bool crearFalla;
        size_t ventanas;
        std::string mensaje;
    } casos[] = {
        {"unidad desconocida", "TemperaturaInterior = 300\r\nUnidadVelocidadAire = nudos\r\n",
         false, 0, "Error: La Unidad 'nudos' no existe para 'Velocidad'."},
        {"tuberia sin diametro", "VelocidadAire = 3\r\nTipo = 14\r\n",
         false, 0, "Se han encontrado los siguientes errores:\r\n"
                   "- No se encontró el Coeficiente de Transmisión de Calor.\r\n"
                   "- No se encontró el Diámetro de la tubería a aislar.\r\n"
                   "- No se encontró el Código del Material para la Superficie Exterior del Aistamiento.\r\n"},
        {"vacio", "",
         false, 0, "No es posible asociar los datos leidos con alguna ventana de Entrada de Datos.\r\n"
                   "Haga click en Ayuda para mayor información."},
        {"ventana no creada", kCompleto,
         true,  1, ""},
    };
    // clang-format on
    for (const auto& caso : casos) {
        SCOPED_TRACE(caso.nombre);
        Programa p;
        p.contexto.Unidades.AddVariable("DeAntes", 1, "");
        p.crearFalla = caso.crearFalla;
        EXPECT_FALSE(LeerArchivo(p.Archivo(caso.texto), p.entorno, p.Crear()));
        EXPECT_EQ(p.creadas.size(), caso.ventanas);
        EXPECT_TRUE(p.contexto.Unidades.ExistVariable("DeAntes"));
        EXPECT_EQ(p.ventana.fileState, 0);
        if (caso.mensaje.empty()) {
            EXPECT_TRUE(p.prompter.mensajes.empty());
        } else {
            ASSERT_FALSE(p.prompter.mensajes.empty());
            EXPECT_EQ(p.prompter.mensajes.front().texto, caso.mensaje);
        }
    }
}

TEST(LeerArchivo, ErrorDeLecturaSeInformaYAnotaUnRecienteVacio) {
    Programa p;
    p.ajustes.valores[{"Kelvora", "ArchivosRecientes", "NumFileRecents"}] = "1";
    p.ajustes.valores[{"Kelvora", "ArchivosRecientes", "File-1"}] = "viejo.adk";
    p.contexto.Unidades.AddVariable("VelocidadAire", 4, "mi/h");
    p.Archivo("TemperaturaInterior = 20\r\nUnidadDiametroTuberia = pie\r\n");
    EXPECT_FALSE(LeerArchivo(p.carpeta.Ruta("datos.adk"), p.entorno, p.Crear()));
    EXPECT_FALSE(LeerArchivo(p.carpeta.Ruta("no-existe.adk"), p.entorno, p.Crear()));
    ASSERT_EQ(p.prompter.mensajes.size(), 2u);
    EXPECT_EQ(p.prompter.mensajes[0].texto, "Error: La Unidad 'pie' no existe para 'Longitud'.");
    EXPECT_EQ(p.prompter.mensajes[1].texto, "Error: No se encontró el archivo");
    EXPECT_EQ(p.prompter.mensajes[1].icono, Icono::Critico);
    EXPECT_EQ(p.prompter.mensajes[1].titulo, kTituloAplicacion);
    EXPECT_EQ(p.Reciente(), "");
    EXPECT_EQ(p.contexto.Unidades.Count(), 2);
    EXPECT_EQ(p.contexto.Unidades.getValueVariable("TemperaturaInterior"), 20);
}

// What cannot be a data file is refused unread, without waiting on a pipe or reading a device
// for ever.
TEST(LeerArchivo, SoloArchivosComunesYDeTamanoAcotado) {
    Programa p;
    const std::string tuberia = p.carpeta.Ruta("tuberia.adk");
    ASSERT_EQ(mkfifo(tuberia.c_str(), 0600), 0);
    const std::string grande = p.Archivo(kCompleto);
    std::filesystem::resize_file(grande, kTamanoMaximoLectura + 1);
    const std::string noComun =
            "Error: El nombre no corresponde a un archivo común (es una carpeta, un dispositivo o "
            "una tubería)";
    // clang-format off
    const std::pair<std::string, std::string> casos[] = {
        {"/dev/zero",        noComun},
        {tuberia,            noComun},
        {p.carpeta.carpeta,  noComun},
        {grande,             "Error: El archivo es demasiado grande para ser un archivo de datos"},
    };
    // clang-format on
    for (const auto& [archivo, mensaje] : casos) {
        p.prompter.mensajes.clear();
        EXPECT_FALSE(LeerArchivo(archivo, p.entorno, p.Crear())) << archivo;
        ASSERT_EQ(p.prompter.mensajes.size(), 1u) << archivo;
        EXPECT_EQ(p.prompter.mensajes.front().texto, mensaje);
    }
    EXPECT_TRUE(p.creadas.empty());
}

TEST(AbrirArchivo, DialogoDesdeLaCarpetaDelProgramaYNombreSinBlancos) {
    Programa p;
    p.contexto.RutaAplicacion = "/opt/kelvora";
    const std::string archivo = p.Archivo(kCompleto);
    DialogosGuion dialogos;
    dialogos.nombres = {"  " + archivo + "  ", std::nullopt, ""};
    for (int i = 0; i < 3; ++i) {
        AbrirArchivo(p.entorno, dialogos, p.Crear());
    }
    EXPECT_EQ(p.creadas.size(), 1u);
    EXPECT_EQ(p.ventana.fileName, archivo);
    EXPECT_TRUE(p.prompter.mensajes.empty());
    ASSERT_EQ(dialogos.abiertos.size(), 3u);
    EXPECT_EQ(dialogos.abiertos[0].carpetaInicial, "/opt/kelvora");
    EXPECT_EQ(dialogos.abiertos[0].filtro,
              "Archivo de datos Kelvora (*.adk)|*.adk|Archivos de Texto (*.txt)|*.txt|Todos los "
              "Archivos (*.*)|*.*");
}

}  // namespace
}  // namespace kelvora
