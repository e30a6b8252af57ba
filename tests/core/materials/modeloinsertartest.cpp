#include "bdtemporal.h"
#include "core/materials/modeloinsertarmaterial.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

struct Ventana {
    Ventana() : modelo({prompter, contexto}) {
        contexto.CadenaConexion = bd.cadena;
        modelo.Borrar();
    }

    void Llenar(const char* descripcion, const char* emisividad, const char* temperatura) {
        modelo.SetTexto(2, descripcion);
        modelo.SetTexto(3, emisividad);
        modelo.SetTexto(4, temperatura);
    }
    std::string UltimoMensaje() const {
        return prompter.mensajes.empty() ? "" : prompter.mensajes.back().texto;
    }

    prueba::BDTemporal bd;
    ContextoAplicacion contexto;
    prueba::PrompterGuion prompter;
    ModeloInsertarMaterial modelo;
};

TEST(ModeloInsertar, ComprobacionesConSusMensajes) {
    struct Caso {
        const char* descripcion;
        const char* emisividad;
        const char* temperatura;
        const char* mensaje;
        int foco;
        bool escrito;
    };
    // clang-format off
    const Caso casos[] = {
        {"  ",    "0.5",  "",     "Por favor ingrese la Descripción del material.",            2, false},
        {"lona",  "",     "",     "Por favor ingrese la Emisividad del material.",             3, false},
        {"lona",  "abc",  "",     "Por favor ingrese la Emisividad del material.",             3, false},
        {"lona",  "0",    "",     "La Emisividad del material debe estar en el rango [0, 1].", 3, false},
        {"lona",  "1.01", "",     "La Emisividad del material debe estar en el rango [0, 1].", 3, false},
        {"lona",  "-0.1", "",     "La Emisividad del material debe estar en el rango [0, 1].", 3, false},
        {"lona",  "0.5",  "-",    "Por favor ingrese la Temperatura del material.",            4, false},
        {"lona",  "1",    "",     "Los datos se han insertado con éxito.",                     2, true},
        {"lona",  "0.01", "-40",  "Los datos se han insertado con éxito.",                     2, true},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        Ventana v;
        v.Llenar(caso.descripcion, caso.emisividad, caso.temperatura);
        v.modelo.FocoTomado();
        const bool escrito = v.modelo.cmdAceptar_Click();
        EXPECT_EQ(v.UltimoMensaje(), caso.mensaje) << caso.emisividad;
        EXPECT_EQ(v.modelo.Foco(), caso.foco) << caso.emisividad;
        EXPECT_EQ(escrito, caso.escrito) << caso.emisividad;
        EXPECT_EQ(v.bd.Contar("SELECT * FROM Emisividad WHERE Codigo = 18"), caso.escrito ? 1 : 0);
    }
}

TEST(ModeloInsertar, BotonYTitulosSegunElModo) {
    Ventana v;
    EXPECT_EQ(v.modelo.Texto(1), "18");
    EXPECT_EQ(v.modelo.Caption(), "Insertar Acabado Superficial");
    EXPECT_EQ(v.modelo.cmdAceptarCaption(), "&Insertar");
    EXPECT_FALSE(v.modelo.cmdAceptarEnabled());
    v.Llenar("chapa ñandú", "0.5", "");
    EXPECT_EQ(v.modelo.Texto(2), "CHAPA ÑANDÚ");
    EXPECT_TRUE(v.modelo.cmdAceptarEnabled());
    v.modelo.SetTexto(4, "-");
    EXPECT_FALSE(v.modelo.cmdAceptarEnabled());

    v.modelo.CargarFila({"14", "CHAQUETA DE PVC", "0.9", ""});
    EXPECT_TRUE(v.modelo.Modificar());
    EXPECT_EQ(v.modelo.Caption(), "Modificar Acabado Superficial");
    EXPECT_EQ(v.modelo.cmdAceptarToolTipText(), "Modificar Acabado Superficial");
    EXPECT_EQ(v.modelo.cmdAceptarCaption(), "&Modificar");
    EXPECT_TRUE(v.modelo.cmdAceptarEnabled());
}

TEST(ModeloInsertar, TemperaturaVaciaYModificarVuelveAInsertar) {
    Ventana v;
    v.Llenar("lona\r\nnueva", "0.75", "");
    ASSERT_TRUE(v.modelo.cmdAceptar_Click());
    EXPECT_EQ(v.bd.Contar("SELECT * FROM Emisividad WHERE Codigo = 18 AND Descripcion = 'LONA "
                          "NUEVA' AND Temperatura IS NULL"),
              1);
    EXPECT_EQ(v.modelo.Texto(1), "19");
    EXPECT_EQ(v.modelo.Texto(2), "");

    v.modelo.CargarFila({"3", "HIERRO FUNDIDO OXIDADO", "0.64", "212.0"});
    v.modelo.SetTexto(4, "");
    ASSERT_TRUE(v.modelo.cmdAceptar_Click());
    EXPECT_EQ(v.UltimoMensaje(), "Los datos se han modificado con éxito.");
    EXPECT_EQ(v.bd.Contar("SELECT * FROM Emisividad WHERE Codigo = 3 AND Temperatura IS NULL"), 1);
    EXPECT_FALSE(v.modelo.Modificar());
    EXPECT_EQ(v.modelo.Texto(1), "19");

    // A gap left by a delete is the next code.
    v.bd.Ejecutar("INSERT INTO Emisividad VALUES (19, 'B', 0.5, NULL)");
    v.bd.Ejecutar("INSERT INTO Emisividad VALUES (20, 'C', 0.5, NULL)");
    v.bd.Ejecutar("DELETE FROM Emisividad WHERE Codigo = 18");
    v.modelo.Borrar();
    EXPECT_EQ(v.modelo.Texto(1), "18");
}

TEST(ModeloInsertar, ComillaEnLaDescripcionNoEscribeNada) {
    // clang-format off
    const char* const descripciones[] = {
        "o'brien",
        "x', 0.5); DELETE FROM Emisividad; INSERT INTO Emisividad VALUES (99, 'y",
    };
    // clang-format on
    for (const char* descripcion : descripciones) {
        Ventana v;
        v.Llenar(descripcion, "0.5", "");
        EXPECT_FALSE(v.modelo.cmdAceptar_Click());
        EXPECT_EQ(v.UltimoMensaje().rfind("Error inesperado: ", 0), 0u) << descripcion;
        EXPECT_EQ(v.prompter.mensajes.back().icono, Icono::Critico);
        EXPECT_EQ(v.bd.Contar("SELECT * FROM Emisividad"), 17) << descripcion;
        EXPECT_EQ(v.modelo.Texto(3), "0.5") << "the typed values stay";
        EXPECT_EQ(v.modelo.Texto(1), "18");
    }
}

}  // namespace
}  // namespace kelvora
