#include "bdtemporal.h"
#include "core/app/arranque.h"
#include "support/dobles.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <functional>
#include <memory>

namespace kelvora {
namespace {

namespace fs = std::filesystem;

struct CerrarBD {
    void operator()(sqlite3* bd) const { sqlite3_close(bd); }
};
// A connection of another program, kept open while the probe runs.
using OtroPrograma = std::unique_ptr<sqlite3, CerrarBD>;
using Preparar = std::function<OtroPrograma(const std::string&)>;

Preparar ConSqlite(const char* sql) {
    return [sql](const std::string& archivo) {
        sqlite3* bd = nullptr;
        sqlite3_open(archivo.c_str(), &bd);
        sqlite3_exec(bd, sql, nullptr, nullptr, nullptr);
        return OtroPrograma(bd);
    };
}

Preparar Escribir(std::streamoff paso, const char* texto) {
    return [=](const std::string& archivo) {
        std::fstream flujo(archivo, std::ios::in | std::ios::out | std::ios::binary);
        const auto tamano = static_cast<std::streamoff>(fs::file_size(archivo));
        for (std::streamoff pos = paso; pos < tamano; pos += paso) {
            flujo.seekp(pos);
            flujo << texto;
        }
        return nullptr;
    };
}

std::string TextoEsperado(const std::string& archivo, const std::string& descripcion) {
    return "Se ha generado un error al intentar conectarse a la Base de Datos '" + archivo +
           "':\r\n" + descripcion +
           "\r\n\r\n\r\nHaga click en Aceptar para seguir con la aplicación. Algunas operaciones "
           "serán "
           "desactivadas del Programa.\r\nHaga click en Cancelar para salir de la aplicación.\r\n"
           "Haga click en Ayuda para obtener más información.";
}

TEST(Sonda, CadaFalloDaElMensajeYSeSigueConAceptar) {
    const auto borrar = [](const std::string& archivo) {
        fs::remove(archivo);
        return OtroPrograma();
    };
    const auto truncar = [](const std::string& archivo) {
        fs::resize_file(archivo, 8192);
        return OtroPrograma();
    };
    // clang-format off
    const std::tuple<const char*, Preparar, const char*> casos[] = {
        {"falta",        borrar,                              "No se puede abrir el archivo de la base de datos (SQLite: unable to open database file)"},
        {"otro formato", Escribir(1, "x"),                    "El archivo no es una base de datos (SQLite: file is not a database)"},
        {"sin tablas",   ConSqlite("DROP TABLE Emisividad"),  "La base de datos no tiene la tabla Emisividad (SQLite: no such table: Emisividad)"},
        {"sin Tubos",    ConSqlite("DROP TABLE Tubos"),       "La base de datos no tiene la tabla Tubos (SQLite: no such table: Tubos)"},
        {"dañada",       Escribir(4096, "basura basura"),     "La base de datos está dañada (SQLite: database disk image is malformed)"},
        {"truncada",     truncar,                             "La base de datos está dañada (SQLite: database disk image is malformed)"},
        {"bloqueada",    ConSqlite("BEGIN EXCLUSIVE"),        "La base de datos está bloqueada por otro programa (SQLite: database is locked)"},
    };
    // clang-format on
    for (const auto& [nombre, preparar, descripcion] : casos) {
        prueba::BDTemporal bd;
        const OtroPrograma otro = preparar(bd.archivo);
        ContextoAplicacion c;
        prueba::SettingsMemoria ajustes;
        prueba::PrompterGuion prompter;
        EXPECT_TRUE(IniciarContexto(c, bd.carpeta.string(), ajustes, {}, prompter)) << nombre;
        EXPECT_FALSE(c.BDDisponible) << nombre;
        EXPECT_EQ(ajustes.lecturas, 14) << nombre;
        ASSERT_EQ(prompter.mensajes.size(), 1u) << nombre;
        const Mensaje& m = prompter.mensajes.front();
        EXPECT_EQ(m.texto, TextoEsperado(bd.archivo, descripcion)) << nombre;
        EXPECT_EQ(NombreBotones(m), "Aceptar,Cancelar,Ayuda");
        EXPECT_EQ(m.contextoAyuda, 120);
        EXPECT_EQ(m.icono, Icono::Informacion);
        EXPECT_EQ(m.titulo, "Kelvora");
        EXPECT_TRUE(m.modalSistema);
        EXPECT_EQ(fs::exists(bd.archivo), std::string(nombre) != "falta");
    }
}

TEST(Sonda, CancelarTerminaSinTocarLosAjustes) {
    prueba::BDTemporal bd;
    fs::remove(bd.archivo);
    ContextoAplicacion c;
    prueba::SettingsMemoria ajustes;
    prueba::PrompterGuion prompter;
    prompter.respuestas = {Respuesta::Cancelar};
    EXPECT_FALSE(IniciarContexto(c, bd.carpeta.string(), ajustes, {}, prompter));
    EXPECT_FALSE(c.BDDisponible);
    EXPECT_EQ(ajustes.lecturas, 0);
    EXPECT_TRUE(ajustes.escrituras.empty());
}

TEST(Sonda, BaseCorrectaSinMensaje) {
    prueba::BDTemporal bd;
    ContextoAplicacion c;
    prueba::SettingsMemoria ajustes;
    prueba::PrompterGuion prompter;
    EXPECT_TRUE(IniciarContexto(c, bd.carpeta.string(), ajustes, {}, prompter));
    EXPECT_TRUE(c.BDDisponible);
    EXPECT_TRUE(prompter.mensajes.empty());
}

}  // namespace
}  // namespace kelvora
