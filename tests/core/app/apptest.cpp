#include "core/app/arranque.h"
#include "core/app/opciones.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <filesystem>

namespace kelvora {
namespace {

using prueba::LocaleTemporal;
using prueba::SettingsMemoria;

std::string Valor(SettingsMemoria& ajustes, const char* seccion, const char* clave) {
    return ajustes.valores[{"Kelvora", seccion, clave}];
}

TEST(Contexto, RutasDesdeLaCarpetaDelEjecutable) {
    for (const std::string carpeta : {"/opt/kelvora", "/opt/kelvora/"}) {
        ContextoAplicacion c;
        DerivarRutas(c, carpeta);
        EXPECT_EQ(c.RutaAplicacion, "/opt/kelvora/");
        EXPECT_EQ(c.RutaBD, "/opt/kelvora/BD/");
        EXPECT_EQ(c.ArchivoBD, "/opt/kelvora/BD/Kelvora.mdb");
        EXPECT_EQ(c.RutaAyuda, "/opt/kelvora/Ayuda/");
        EXPECT_EQ(c.ArchivoAyuda, "/opt/kelvora/Ayuda/Kelvora.hlp");
        EXPECT_EQ(c.RutaPDF, "/opt/kelvora/Ayuda/PDF/");
        EXPECT_EQ(c.RutaDatos, "/opt/kelvora/Datos y Resultados");
        EXPECT_EQ(c.CadenaConexion,
                  "Provider=Microsoft.Jet.OLEDB.4.0; Data Source=/opt/kelvora/BD/Kelvora.mdb;"
                  "Jet OLEDB:Database Password=velamoratinco");
    }
}

TEST(Contexto, ArchivoDeLineaComandos) {
    EXPECT_EQ(ArchivoDeLineaComandos("\"/datos/mi proyecto.adk\""), "/datos/mi proyecto.adk");
    EXPECT_EQ(ArchivoDeLineaComandos("/da\"tos/a.adk"), "/datos/a.adk");
    EXPECT_EQ(ArchivoDeLineaComandos("    "), "");
}

TEST(Opciones, PredeterminadosYOrdenDeEscritura) {
    SettingsMemoria ajustes;
    ContextoAplicacion c;
    LeerOpciones(c, ajustes);
    EXPECT_FALSE(c.ConversionAutomatica);
    EXPECT_TRUE(c.PreguntarAntesDeCerrarVentana);
    EXPECT_TRUE(c.LeerEmisividadBD);
    EXPECT_EQ(c.Pagina.Orientacion, 1);
    EXPECT_EQ(c.Pagina.Justificar, 2);
    EXPECT_FLOAT_EQ(c.Pagina.MargenSuperior, 15);
    EXPECT_EQ(c.Pagina.FuenteNombre, "Courier New");
    EXPECT_FLOAT_EQ(c.Pagina.FuenteTamano, 10);
    EXPECT_EQ(ajustes.lecturas, 14);

    LocaleTemporal punto(LocaleChars::Punto());
    GuardarOpciones(c, ajustes);
    const std::vector<std::string> orden = {"ConversionAutomatica",
                                            "PreguntarAntesDeCerrarVentana",
                                            "LeerEmisividadBD",
                                            "Orientacion",
                                            "Justificar",
                                            "Derecho",
                                            "Izquierdo",
                                            "Superior",
                                            "Inferior",
                                            "Tamaño",
                                            "Fuente.Nombre",
                                            "Fuente.Negrita",
                                            "Fuente.Cursiva",
                                            "Fuente.Tamaño"};
    ASSERT_EQ(ajustes.escrituras.size(), orden.size());
    for (size_t i = 0; i < orden.size(); ++i) {
        EXPECT_EQ(std::get<0>(ajustes.escrituras[i]), "Kelvora");
        EXPECT_EQ(std::get<1>(ajustes.escrituras[i]), i < 3 ? "Opciones" : "ConfigurarPagina");
        EXPECT_EQ(std::get<2>(ajustes.escrituras[i]), orden[i]);
    }
    EXPECT_EQ(Valor(ajustes, "Opciones", "PreguntarAntesDeCerrarVentana"), "1");
    EXPECT_EQ(Valor(ajustes, "ConfigurarPagina", "Derecho"), "15");
}

TEST(Opciones, LecturaDeTextosRaros) {
    struct Caso {
        const char* clave;
        const char* texto;
        double esperado;
    };
    // clang-format off
    const Caso casos[] = {
        {"Derecho",       "abc",    0},
        {"Derecho",       "12,5",   12},
        {"Derecho",       "12.5",   12.5},
        {"Orientacion",   "2.5",    2},
        {"Orientacion",   "1e99",   0},
        {"Fuente.Tamaño", "",       0},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        SettingsMemoria ajustes;
        ajustes.valores[{"Kelvora", "ConfigurarPagina", caso.clave}] = caso.texto;
        ContextoAplicacion c;
        LeerOpciones(c, ajustes);
        const double leido = std::string(caso.clave) == "Derecho"       ? c.Pagina.MargenDerecho
                             : std::string(caso.clave) == "Orientacion" ? c.Pagina.Orientacion
                                                                        : c.Pagina.FuenteTamano;
        EXPECT_DOUBLE_EQ(leido, caso.esperado) << caso.clave << "=" << caso.texto;
    }
}

// In a comma locale a margin is saved as "12,5" and comes back as 12.
TEST(Opciones, AsimetriaDeLaComa) {
    LocaleTemporal coma(LocaleChars::Espanol());
    SettingsMemoria ajustes;
    ContextoAplicacion c;
    c.Pagina.MargenIzquierdo = 12.5F;
    c.ConversionAutomatica = true;
    GuardarOpciones(c, ajustes);
    EXPECT_EQ(Valor(ajustes, "ConfigurarPagina", "Izquierdo"), "12,5");
    ContextoAplicacion leido;
    LeerOpciones(leido, ajustes);
    EXPECT_FLOAT_EQ(leido.Pagina.MargenIzquierdo, 12);
    EXPECT_TRUE(leido.ConversionAutomatica);
}

TEST(Arranque, CreaLaCarpetaDeDatosEIgnoraFallos) {
    const auto raiz = std::filesystem::temp_directory_path() / "kelvora-arranque";
    std::filesystem::remove_all(raiz);
    SettingsMemoria ajustes;
    prueba::PrompterGuion prompter;
    ContextoAplicacion c;
    EXPECT_TRUE(IniciarContexto(c, raiz.string(), ajustes, {}, prompter));
    EXPECT_TRUE(std::filesystem::is_directory(raiz / "Datos y Resultados"));
    EXPECT_EQ(c.Colores[4], RGB(0, 0, 255));
    EXPECT_EQ(c.Colores[6], RGB(102, 204, 255));

    ContextoAplicacion sinPermiso;
    EXPECT_TRUE(IniciarContexto(sinPermiso, "/proc/kelvora", ajustes, {}, prompter));
    std::filesystem::remove_all(raiz);
}

}  // namespace
}  // namespace kelvora
