#include "core/app/contexto.h"
#include "core/datafile/guardarventana.h"
#include "support/dobles.h"
#include "ventanaprueba.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

using prueba::CarpetaTemporal;
using prueba::DialogosGuion;
using prueba::PrompterGuion;
using prueba::SettingsMemoria;
using prueba::VentanaPrueba;

struct Programa {
    ContextoAplicacion contexto;
    PrompterGuion prompter;
    SettingsMemoria ajustes;
    EntornoArchivos entorno{contexto, prompter, ajustes};
    DialogosGuion dialogos;
    CarpetaTemporal carpeta;
    VentanaPrueba ventana;

    Programa() {
        ventana.tag = "2";
        ventana.caption = "Resultados [2]";
        contexto.RutaDatos = carpeta.carpeta.string();
    }
};

TEST(GuardarVentana, DialogoSegunTag) {
    const std::string texto = "Archivos de Texto (*.txt)|*.txt|Todos los Archivos (*.*)|*.*";
    // clang-format off
    const struct {
        const char* tag;
        std::string filtro;
        const char* extension;
    } casos[] = {
        {"15", "Mapa de Bits (*.bmp)|*.bmp|Todos los Archivos (*.*)|*.*", "bmp"},
        {"1",  "Archivo de datos Kelvora (*.adk)|*.adk|Archivos de Texto (*.txt)|*.txt|"
               "Todos los Archivos (*.*)|*.*",                             "adk"},
        {"12", "Archivo de datos Kelvora (*.adk)|*.adk|Archivos de Texto (*.txt)|*.txt|"
               "Todos los Archivos (*.*)|*.*",                             "adk"},
        {"16", texto,                                                     "txt"},
        {"3",  texto,                                                     "txt"},
    };
    // clang-format on
    for (const auto& caso : casos) {
        const OpcionesDialogo opciones = OpcionesGuardar(caso.tag, "/datos");
        EXPECT_EQ(opciones.filtro, caso.filtro) << caso.tag;
        EXPECT_EQ(opciones.extension, caso.extension) << caso.tag;
        EXPECT_EQ(opciones.carpetaInicial, "/datos");
    }
}

TEST(GuardarVentana, PideNombreSoloSinArchivoOComoNuevo) {
    Programa p;
    const std::string primero = p.carpeta.Ruta("a.txt");
    const std::string segundo = p.carpeta.Ruta("b.txt");
    p.dialogos.nombres = {std::nullopt, "", " " + primero + " ", segundo};

    EXPECT_FALSE(GuardarVentana(p.ventana, false, p.entorno, p.dialogos));  // cancelled
    EXPECT_FALSE(GuardarVentana(p.ventana, false, p.entorno, p.dialogos));  // empty name
    EXPECT_EQ(p.ventana.fileState, 0);
    EXPECT_TRUE(GuardarVentana(p.ventana, false, p.entorno, p.dialogos));
    EXPECT_EQ(p.ventana.fileName, primero);
    EXPECT_EQ(p.ventana.fileState, 3);
    EXPECT_EQ(p.dialogos.guardados.size(), 3u);

    p.ventana.fileState = 2;
    EXPECT_TRUE(GuardarVentana(p.ventana, false, p.entorno, p.dialogos));
    EXPECT_EQ(p.dialogos.guardados.size(), 3u);
    EXPECT_EQ(p.ventana.fileState, 3);
    EXPECT_TRUE(GuardarVentana(p.ventana, true, p.entorno, p.dialogos));
    EXPECT_EQ(p.ventana.fileName, segundo);
    EXPECT_EQ(p.dialogos.guardados.back().carpetaInicial, p.contexto.RutaDatos);
    EXPECT_TRUE(p.prompter.mensajes.empty());
}

TEST(GuardarVentana, UnFalloNoCambiaElEstado) {
    Programa p;
    p.ventana.fileName = p.carpeta.Ruta("falta/c.txt");
    p.ventana.fileState = 2;
    EXPECT_FALSE(GuardarVentana(p.ventana, false, p.entorno, p.dialogos));
    EXPECT_EQ(p.ventana.fileState, 2);
    EXPECT_EQ(p.ventana.fileName, p.carpeta.Ruta("falta/c.txt"));
    ASSERT_EQ(p.prompter.mensajes.size(), 1u);
    EXPECT_EQ(p.prompter.mensajes[0].titulo, "Error");
}

TEST(PreguntarGuardar, SoloCambiosConArchivoOConLaOpcion) {
    // clang-format off
    const struct {
        int16_t estado;
        bool conNombre;
        bool opcion;
        Respuesta respuesta;
        bool pregunta;
        bool resultado;
        bool guardado;
    } casos[] = {
        {0, true,  true,  Respuesta::Cancelar, false, true,  false},
        {1, true,  true,  Respuesta::Cancelar, false, true,  false},
        {3, true,  true,  Respuesta::Cancelar, false, true,  false},
        {2, false, false, Respuesta::Cancelar, false, true,  false},
        {2, false, true,  Respuesta::Cancelar, true,  false, false},
        {2, true,  false, Respuesta::No,       true,  true,  false},
        {2, true,  false, Respuesta::Si,       true,  true,  true},
        {2, false, true,  Respuesta::Si,       true,  true,  true},
    };
    // clang-format on
    for (const auto& caso : casos) {
        SCOPED_TRACE(std::to_string(caso.estado) + (caso.conNombre ? " con nombre" : "") +
                     (caso.opcion ? " opcion" : ""));
        Programa p;
        const std::string archivo = p.carpeta.Ruta("r.txt");
        p.ventana.fileState = caso.estado;
        p.ventana.fileName = caso.conNombre ? archivo : "";
        p.contexto.PreguntarAntesDeCerrarVentana = caso.opcion;
        p.prompter.respuestas = {caso.respuesta};
        p.dialogos.nombres = {archivo};
        EXPECT_EQ(PreguntarGuardar(p.ventana, p.entorno, p.dialogos), caso.resultado);
        EXPECT_EQ(p.prompter.mensajes.size(), caso.pregunta ? 1u : 0u);
        EXPECT_EQ(p.ventana.fileState, caso.guardado ? 3 : caso.estado);
        if (caso.pregunta) {
            const Mensaje& m = p.prompter.mensajes[0];
            const std::string nombre =
                    caso.conNombre ? "el archivo '" + archivo + "'" : "'Resultados [2]'";
            EXPECT_EQ(m.texto, "Los datos en " + nombre +
                                       " han cambiado.\r\n\r\n¿Desea guardar los cambios?");
            EXPECT_EQ(m.botones, Botones::SiNoCancelar);
            EXPECT_EQ(m.icono, Icono::Pregunta);
            EXPECT_EQ(m.titulo, "Advertencia");
        }
    }
}

}  // namespace
}  // namespace kelvora
