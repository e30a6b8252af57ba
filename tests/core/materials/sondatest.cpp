#include "bdtemporal.h"
#include "core/app/arranque.h"
#include "core/materials/sondabd.h"
#include "support/dobles.h"

#include <gtest/gtest.h>
#include <sqlite3.h>

#include <fstream>
#include <memory>

namespace kelvora {
namespace {

namespace fs = std::filesystem;

struct CerrarBD {
    void operator()(sqlite3* bd) const { sqlite3_close(bd); }
};
using Bloqueo = std::unique_ptr<sqlite3, CerrarBD>;

Bloqueo Borrar(const std::string& archivo) {
    fs::remove(archivo);
    return nullptr;
}

Bloqueo EscribirTexto(const std::string& archivo) {
    std::ofstream(archivo) << std::string(2000, 'x');
    return nullptr;
}

Bloqueo SinTablas(const std::string& archivo) {
    fs::remove(archivo);
    sqlite3* bd = nullptr;
    sqlite3_open(archivo.c_str(), &bd);
    sqlite3_exec(bd, "CREATE TABLE Otra (x)", nullptr, nullptr, nullptr);
    sqlite3_close(bd);
    return nullptr;
}

Bloqueo SinTubos(const std::string& archivo) {
    sqlite3* bd = nullptr;
    sqlite3_open(archivo.c_str(), &bd);
    sqlite3_exec(bd, "DROP TABLE Tubos", nullptr, nullptr, nullptr);
    sqlite3_close(bd);
    return nullptr;
}

// Garbage over the header of every page but the first: the tables' pages are damaged.
Bloqueo Danar(const std::string& archivo) {
    std::fstream flujo(archivo, std::ios::in | std::ios::out | std::ios::binary);
    const auto tamano = static_cast<std::streamoff>(fs::file_size(archivo));
    for (std::streamoff pagina = 4096; pagina < tamano; pagina += 4096) {
        flujo.seekp(pagina);
        flujo << "basura basura";
    }
    return nullptr;
}

Bloqueo Truncar(const std::string& archivo) {
    fs::resize_file(archivo, 8192);
    return nullptr;
}

// Another program writing: an exclusive lock held until the returned handle closes.
Bloqueo Bloquear(const std::string& archivo) {
    sqlite3* bd = nullptr;
    sqlite3_open(archivo.c_str(), &bd);
    sqlite3_exec(bd, "BEGIN EXCLUSIVE", nullptr, nullptr, nullptr);
    return Bloqueo(bd);
}

TEST(Sonda, CadaFalloDaElMensajeYSeSigueConAceptar) {
    struct Caso {
        const char* nombre;
        Bloqueo (*preparar)(const std::string&);
        const char* descripcion;
    };
    // clang-format off
    const Caso casos[] = {
        {"falta",        Borrar,        "unable to open database file"},
        {"otro formato", EscribirTexto, "file is not a database"},
        {"sin tablas",   SinTablas,     "no such table: Emisividad"},
        {"sin Tubos",    SinTubos,      "no such table: Tubos"},
        {"dañada",       Danar,         "database disk image is malformed"},
        {"truncada",     Truncar,       "database disk image is malformed"},
        {"bloqueada",    Bloquear,      "database is locked"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        prueba::BDTemporal bd;
        const Bloqueo bloqueo = caso.preparar(bd.archivo);
        ContextoAplicacion c;
        prueba::SettingsMemoria ajustes;
        prueba::PrompterGuion prompter;
        EXPECT_TRUE(IniciarContexto(c, bd.carpeta.string(), ajustes, {}, prompter)) << caso.nombre;
        EXPECT_FALSE(c.BDDisponible) << caso.nombre;
        EXPECT_EQ(ajustes.lecturas, 14) << caso.nombre;
        ASSERT_EQ(prompter.mensajes.size(), 1u) << caso.nombre;
        const Mensaje& m = prompter.mensajes.front();
        EXPECT_EQ(m.texto, MensajeErrorConexion(bd.archivo, caso.descripcion)) << caso.nombre;
        EXPECT_EQ(m.botones, Botones::AceptarCancelar);
        EXPECT_EQ(NombreBotones(m), "Aceptar,Cancelar,Ayuda");
        EXPECT_EQ(m.contextoAyuda, 120);
        EXPECT_EQ(m.icono, Icono::Informacion);
        EXPECT_EQ(m.titulo, "Kelvora");
        EXPECT_TRUE(m.modalSistema);
    }
}

TEST(Sonda, ElMensajeCompletoYNingunArchivoCreado) {
    prueba::BDTemporal bd;
    fs::remove(bd.archivo);
    ContextoAplicacion c;
    DerivarRutas(c, bd.carpeta.string());
    prueba::PrompterGuion prompter;
    EXPECT_TRUE(ProbarBaseDatos(c, prompter));
    EXPECT_FALSE(fs::exists(bd.archivo));
    ASSERT_EQ(prompter.mensajes.size(), 1u);
    EXPECT_EQ(prompter.mensajes[0].texto,
              "Se ha generado un error al intentar conectarse a la Base de Datos '" + bd.archivo +
                      "':\nunable to open database file\n\n\nHaga click en Aceptar para seguir "
                      "con la aplicación. Algunas operaciones serán desactivadas del Programa.\n"
                      "Haga click en Cancelar para salir de la aplicación.\nHaga click en Ayuda "
                      "para obtener más información.");
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
