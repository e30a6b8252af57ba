#include "bdtemporal.h"
#include "core/materials/modeloconsultamateriales.h"
#include "core/materials/sentencias.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <vector>

namespace kelvora {
namespace {

struct LlamadorPrueba : LlamadorConsulta {
    void PonerTexto(int caja, const std::string& texto) override {
        escritos.emplace_back(caja, texto);
    }
    std::vector<std::pair<int, std::string>> escritos;
};

// A query window on a database of its own, with the delivered rows 1 to 17.
struct Ventana {
    Ventana() : modelo(Entorno()) { contexto.CadenaConexion = bd.cadena; }

    EntornoConsulta Entorno() {
        return {prompter, contexto,
                [this](const std::optional<CeldasMaterial>& fila) {
                    filasInsertar.push_back(fila);
                },
                [this] { ++cierres; }};
    }
    std::vector<std::string> Codigos() const {
        std::vector<std::string> codigos;
        for (int f = 1; f < modelo.MSFGResultados().Rows(); ++f) {
            codigos.push_back(modelo.MSFGResultados().TextMatrix(f, 0));
        }
        return codigos;
    }
    std::string UltimoMensaje() const {
        return prompter.mensajes.empty() ? "" : prompter.mensajes.back().texto;
    }

    prueba::BDTemporal bd;
    ContextoAplicacion contexto;
    prueba::PrompterGuion prompter;
    std::vector<std::optional<CeldasMaterial>> filasInsertar;
    int cierres = 0;
    ModeloConsultaMateriales modelo;
};

TEST(ModeloConsulta, ListaPredeterminadaSegunLaCajaDelLlamador) {
    struct Caso {
        int16_t modo;
        size_t filas;
        const char* primera;
        const char* caption;
    };
    // clang-format off
    const Caso casos[] = {
        {0,  17, "1", "&Modificar"},
        {5,  13, "5", "&Aceptar"},
        {7,  4,  "1", "&Aceptar"},
        {10, 4,  "1", "&Aceptar"},
        {9,  13, "5", "&Aceptar"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        Ventana v;
        LlamadorPrueba llamador;
        if (caso.modo == 0) {
            v.modelo.AbrirMantenimiento();
        } else {
            v.modelo.AbrirParaSeleccion(&llamador, caso.modo);
        }
        v.modelo.Activar();
        EXPECT_EQ(v.Codigos().size(), caso.filas) << caso.modo;
        EXPECT_EQ(v.Codigos().front(), caso.primera) << caso.modo;
        EXPECT_EQ(v.modelo.cmdAceptarCaption(), caso.caption) << caso.modo;
        EXPECT_EQ(v.modelo.Row(), 1);
        EXPECT_EQ(v.modelo.Reiniciar(), false);
        EXPECT_TRUE(v.modelo.cmdMostrarTodoVisible());
    }
}

// Cells as the seed holds them (data/bd/emisividad.csv), formatted "0.0#" and "0.0##".
TEST(ModeloConsulta, CeldasDeLaGrillaEnAmbosLocales) {
    for (const LocaleChars& locale : {LocaleChars::Punto(), LocaleChars::Espanol()}) {
        prueba::LocaleTemporal temporal(locale);
        Ventana v;
        v.bd.Ejecutar("INSERT INTO Emisividad VALUES (30, '  lona  ', 0.125, -12.3456)");
        v.modelo.cmdMostrarTodo_Click();
        const Grilla& g = v.modelo.MSFGResultados();
        ASSERT_EQ(g.Rows(), 19);
        EXPECT_EQ(g.TextMatrix(0, 3), " Temperatura (°F) ");
        const CeldasMaterial seis = CeldasDe(g, 6);
        EXPECT_EQ(seis,
                  (CeldasMaterial{"6", "ALUMINIO COMERCIAL (LÁMINA NUEVA)", "0.09", "212.0"}));
        EXPECT_EQ(CeldasDe(g, 13), (CeldasMaterial{"13", "PINTURA DE ALUMINIO", "0.5", ""}));
        EXPECT_EQ(CeldasDe(g, 18), (CeldasMaterial{"30", "LONA", "0.13", "-12.346"}))
                << "decimal " << locale.decimal;
        EXPECT_FALSE(v.modelo.cmdMostrarTodoVisible());
    }
}

TEST(ModeloConsulta, SinResultadosSeOlvidaLaSentenciaYSeReinicia) {
    Ventana v;
    v.modelo.Formulario().SetTexto(1, "99");
    v.modelo.cmdConsultar_Click();
    EXPECT_EQ(v.UltimoMensaje(), "No se encontró ningún registro bajo estos parámetros.");
    EXPECT_EQ(v.prompter.mensajes.back().icono, Icono::Informacion);
    EXPECT_EQ(v.prompter.mensajes.back().titulo, "Kelvora");
    EXPECT_EQ(v.modelo.MSFGResultados().Rows(), 1);
    EXPECT_EQ(v.modelo.UltimaSentencia(), "");
    EXPECT_EQ(v.modelo.Reiniciar(), true);
    EXPECT_EQ(v.modelo.Row(), 0);

    // The form still holds a valid code, but an empty grid is not re-queried: the default list.
    v.modelo.Activar();
    EXPECT_EQ(v.Codigos().size(), 17u);
    EXPECT_EQ(v.modelo.UltimaSentencia(), kSqlListarMateriales);

    // With rows on the grid and a valid form, the activation presses "C&onsultar".
    v.modelo.Formulario().SetTexto(1, "3");
    v.modelo.Activar();
    EXPECT_EQ(v.Codigos(), std::vector<std::string>{"3"});
    EXPECT_FALSE(v.modelo.cmdMostrarTodoVisible());
}

TEST(ModeloConsulta, AceptarEscribeElCodigoEnElLlamadorYCierra) {
    Ventana v;
    LlamadorPrueba llamador;
    v.modelo.AbrirParaSeleccion(&llamador, 5);
    v.modelo.Activar();
    v.modelo.SetSeleccion(2, 3);
    v.modelo.Aceptar();
    EXPECT_TRUE(llamador.escritos.empty()) << "two rows selected";
    v.modelo.SetSeleccion(3, 3);
    v.modelo.Aceptar();
    ASSERT_EQ(llamador.escritos.size(), 1u);
    EXPECT_EQ(llamador.escritos[0], (std::pair<int, std::string>{5, "7"}));
    EXPECT_EQ(v.modelo.Llamador(), nullptr);
    EXPECT_EQ(v.cierres, 1);

    // Opened again from the menu: no caller, so maintenance mode and the last list.
    v.modelo.Form_Load();
    v.modelo.AbrirMantenimiento();
    v.modelo.Activar();
    EXPECT_EQ(v.modelo.Modo(), 0);
    EXPECT_EQ(v.modelo.cmdAceptarToolTipText(), "Modificar material seleccionado");
    EXPECT_EQ(v.Codigos().size(), 13u);
}

// In maintenance mode "&Modificar" is the acceptance: the insert window on the row's cells.
TEST(ModeloConsulta, AceptarSinLlamadorModifica) {
    Ventana v;
    v.modelo.AbrirMantenimiento();
    v.modelo.Activar();
    v.modelo.SetSeleccion(14, 14);
    v.modelo.Aceptar();
    v.modelo.SetSeleccion(0, 0);
    v.modelo.Modificar();
    ASSERT_EQ(v.filasInsertar.size(), 1u);
    EXPECT_EQ(v.filasInsertar[0], (CeldasMaterial{"14", "CHAQUETA DE PVC", "0.9", ""}));
}

TEST(ModeloConsulta, EliminarRechazaLosCodigosEntregados) {
    Ventana v;
    v.bd.Ejecutar("INSERT INTO Emisividad VALUES (18, 'A', 0.5, NULL)");
    v.bd.Ejecutar("INSERT INTO Emisividad VALUES (19, 'B', 0.5, NULL)");
    v.modelo.cmdMostrarTodo_Click();

    v.modelo.SetSeleccion(18, 18);
    v.prompter.respuestas = {Respuesta::No};
    v.modelo.Eliminar();
    EXPECT_EQ(v.UltimoMensaje(), "¿Realmente desea eliminar el material seleccionado?");
    EXPECT_EQ(v.prompter.mensajes.back().botones, Botones::SiNo);
    EXPECT_EQ(v.Codigos().size(), 19u);

    v.prompter.mensajes.clear();
    v.modelo.SetSeleccion(18, 17);
    v.modelo.Eliminar();
    ASSERT_EQ(v.prompter.mensajes.size(), 2u);
    EXPECT_EQ(v.prompter.mensajes[0].texto,
              "¿Realmente desea eliminar los materiales seleccionados?");
    EXPECT_EQ(v.prompter.mensajes[1].texto,
              "Acceso denegado para eliminar el registro con código = 17");
    EXPECT_EQ(v.prompter.mensajes[1].icono, Icono::Exclamacion);
    EXPECT_EQ(v.bd.Contar("SELECT * FROM Emisividad WHERE Codigo IN (17, 18, 19)"), 2);
    EXPECT_EQ(v.Codigos().size(), 18u) << "the list was read again";

    v.prompter.mensajes.clear();
    v.modelo.SetSeleccion(0, 3);
    v.modelo.Eliminar();
    EXPECT_TRUE(v.prompter.mensajes.empty()) << "a selection from the heading row does nothing";
}

TEST(ModeloConsulta, ComillaOSegundaSentenciaNoTocanLaBase) {
    // clang-format off
    const char* const palabras[] = {
        "o'brien",
        "x'; DELETE FROM Emisividad; SELECT * FROM Emisividad WHERE '1' = '1",
        "x' OR 1=1 --",
    };
    // clang-format on
    for (const char* texto : palabras) {
        Ventana v;
        v.modelo.cmdMostrarTodo_Click();
        v.modelo.Formulario().cboTipoConsulta_Click(1);
        v.modelo.Formulario().SetTexto(3, texto);
        v.modelo.cmdConsultar_Click();
        EXPECT_EQ(v.UltimoMensaje().rfind("Error inesperado: ", 0), 0u) << texto;
        EXPECT_EQ(v.prompter.mensajes.back().icono, Icono::Critico);
        EXPECT_EQ(v.bd.Contar(kSqlListarMateriales), 17) << texto;
        EXPECT_EQ(v.modelo.UltimaSentencia(), kSqlListarMateriales) << texto;
    }
}

}  // namespace
}  // namespace kelvora
