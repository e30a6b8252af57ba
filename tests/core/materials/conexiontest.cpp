#include "bdtemporal.h"
#include "core/app/contexto.h"
#include "core/entry/materialesbd.h"
#include "core/materials/conexion.h"
#include "core/materials/recordset.h"
#include "core/materials/sentencias.h"
#include "core/runtime/runtimeerror.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <functional>
#include <tuple>

namespace kelvora {
namespace {

// Every cell of Emisividad as text, to see that a refused statement changed nothing.
std::string Instantanea(const prueba::BDTemporal& bd) {
    Conexion conexion;
    conexion.Open(bd.cadena);
    std::string texto;
    for (const auto& fila : conexion.Consultar("SELECT * FROM Emisividad ORDER BY Codigo").filas) {
        for (const ValorCampo& valor : fila) {
            texto += (valor.EsNulo() ? "<null>" : valor.Texto()) + "|";
        }
    }
    return texto;
}

std::string Descripcion(const char* texto) {
    return SqlActualizarMaterial({1, texto, 0.5, std::nullopt});
}

TEST(Conexion, SentenciaRechazadaNoCambiaNada) {
    struct Caso {
        std::string sql;
        bool comoConsulta;
        const char* error;
    };
    // clang-format off
    const Caso casos[] = {
        {Descripcion("O'BRIEN"),                                 false, "syntax error"},
        {Descripcion("X' --"),                                   false, "no admite comentarios"},
        {Descripcion("X' /*"),                                   false, "no admite comentarios"},
        {Descripcion("X'; DELETE FROM Emisividad; SELECT '"),    false, "más de una sentencia"},
        {"DELETE FROM Emisividad WHERE Codigo = 1; DELETE FROM Emisividad",
                                                                 false, "más de una sentencia"},
        {"UPDATE Emisividad SET Emisividad = "
         "CASE WHEN Codigo = 10 THEN NULL ELSE 0.5 END",         false, "NOT NULL"},
        {"  ;  ",                                                false, "vacía"},
        {"SELECT * FROM Emisividad; DELETE FROM Emisividad",     true,  "más de una sentencia"},
        {"DELETE FROM Emisividad",                               true,  "solo lectura"},
        {SqlConsultaUsuario("UCASE(Descripcion) LIKE '%D'ALBA%'"), true, "syntax error"},
    };
    // clang-format on
    prueba::BDTemporal bd;
    const std::string antes = Instantanea(bd);
    for (const Caso& caso : casos) {
        Conexion conexion;
        conexion.Open(bd.cadena);
        Recordset rs;
        try {
            caso.comoConsulta ? rs.Open(caso.sql, conexion, TipoCursor::SoloAdelante)
                              : conexion.Execute(caso.sql);
            ADD_FAILURE() << "aceptada: " << caso.sql;
        } catch (const RuntimeError& error) {
            EXPECT_NE(error.description.find(caso.error), std::string::npos)
                    << caso.sql << " -> " << error.description;
        }
        EXPECT_EQ(Instantanea(bd), antes) << caso.sql;
    }
}

// A numeric field that holds a text or an infinity is refused, the same in every locale, with
// where it stands; a lookup on a database that could not be opened says why.
TEST(Conexion, ValorNoNumericoSeRechazaEnCadaLocale) {
    // clang-format off
    const std::tuple<const char*, const char*, const char*> casos[] = {
        {"UPDATE Tubos SET Real = '6,625' WHERE Nominal = 6",   "SELECT * FROM Tubos WHERE Nominal = 6",
         "En la tabla Tubos, el campo Real del registro Nominal = 6.0 no tiene un número: '6,625'"},
        {"UPDATE Emisividad SET Emisividad = 9e999 WHERE Codigo = 6", "SELECT Emisividad FROM Emisividad",
         "En la tabla Emisividad, el campo Emisividad no tiene un número: 'Inf'"},
    };
    // clang-format on
    for (const auto& [dano, consulta, mensaje] : casos) {
        prueba::BDTemporal bd;
        bd.Ejecutar(dano);
        for (const LocaleChars& locale : {LocaleChars::Punto(), LocaleChars::Espanol()}) {
            prueba::LocaleTemporal temporal(locale);
            Conexion conexion;
            conexion.Open(bd.cadena);
            try {
                conexion.Consultar(consulta);
                ADD_FAILURE() << "leída: " << dano;
            } catch (const RuntimeError& error) {
                EXPECT_EQ(error.description, mensaje);
            }
        }
    }
    prueba::BDTemporal bd;
    std::filesystem::remove(bd.archivo);
    ContextoAplicacion contexto;
    contexto.CadenaConexion = bd.cadena;
    MaterialesBD materiales(contexto);
    EXPECT_THROW(materiales.AbrirConexion(), RuntimeError);
    std::string caja = "0.5";
    EXPECT_EQ(materiales.LeerMaterial(6, caja),
              "Error al consultar material: No se puede abrir el archivo de la base de datos "
              "(SQLite: unable to open database file)");
    EXPECT_EQ(caja, "0.5");
}

// Only the Data Source of the connection string counts, its key without regard to case.
TEST(Conexion, ArchivoDeLaCadenaDeConexion) {
    prueba::BDTemporal bd;
    Conexion conexion;
    try {
        conexion.Open("Provider=x;Jet OLEDB:Database Password=y");
        ADD_FAILURE() << "abierta sin archivo";
    } catch (const RuntimeError& error) {
        EXPECT_EQ(error.description,
                  "La cadena de conexión no indica el archivo de la base de datos.");
    }
    conexion.Open("Provider=x; data source = " + bd.archivo + " ;Jet OLEDB:Database Password=y");
    EXPECT_TRUE(conexion.EstaAbierta());
}

TEST(Conexion, UCaseConAcentos) {
    prueba::BDTemporal bd;
    bd.Ejecutar("INSERT INTO Emisividad VALUES (30, 'tubería de ñandú', 0.5, NULL)");
    Conexion conexion;
    conexion.Open(bd.cadena);
    // clang-format off
    const std::pair<const char*, const char*> casos[] = {
        {"'señal'",         "SEÑAL"},
        {"'cañería ÁéÍóú'", "CAÑERÍA ÁÉÍÓÚ"},
        {"'ç ü 2°C m²'",    "Ç Ü 2°C M²"},
        {"0.5",             "0.5"},
    };
    // clang-format on
    for (const auto& [argumento, esperado] : casos) {
        const auto r = conexion.Consultar(std::string("SELECT UCASE(") + argumento + ") AS T");
        EXPECT_EQ(r.filas.at(0).at(0).Texto(), esperado) << argumento;
    }
    EXPECT_TRUE(conexion.Consultar("SELECT UCASE(NULL)").filas.at(0).at(0).EsNulo());
    const auto hallados =
            conexion.Consultar(SqlConsultaUsuario("UCASE(Descripcion) LIKE '%ÑANDÚ%'"));
    ASSERT_EQ(hallados.filas.size(), 1u);
    EXPECT_EQ(hallados.filas[0][0].Numero(), 30);
}

TEST(Recordset, RecorridoCamposYErrores) {
    prueba::BDTemporal bd;
    Conexion conexion;
    conexion.Open(bd.cadena);
    Recordset rs;
    rs.Open("SELECT * FROM Emisividad WHERE Codigo > 99", conexion, TipoCursor::Estatico);
    EXPECT_TRUE(rs.Bof() && rs.Eof());
    rs.Close();

    rs.Open("SELECT * FROM Emisividad WHERE Codigo >= 12 AND Codigo <= 13 ORDER BY Codigo",
            conexion, TipoCursor::SoloAdelante);
    EXPECT_FALSE(rs.Bof() || rs.Eof());
    EXPECT_EQ(rs.Fields("temperatura").Numero(), 212);
    rs.MoveNext();
    EXPECT_EQ(rs.Fields("DESCRIPCION").Texto(), "PINTURA DE ALUMINIO");
    EXPECT_TRUE(rs.Fields("Temperatura").EsNulo());
    EXPECT_EQ(rs.Fields("Temperatura").Texto(), "");

    // clang-format off
    const std::pair<std::function<void()>, int> errores[] = {
        {[&] { rs.Fields("Temperatura").Numero(); }, 94},
        {[&] { rs.Fields("Color"); },                3265},
        {[&] { rs.Open("SELECT 1", conexion, TipoCursor::Estatico); }, 3705},
        {[&] { rs.MoveNext(); rs.MoveNext(); },      3021},
        {[&] { rs.Fields("Codigo"); },               3021},
        {[&] { rs.Close(); rs.Eof(); },              3704},
        {[&] { conexion.Close(); rs.Open("SELECT 1", conexion, TipoCursor::Estatico); }, 3704},
    };
    // clang-format on
    for (const auto& [operacion, numero] : errores) {
        try {
            operacion();
            ADD_FAILURE() << "sin error " << numero;
        } catch (const RuntimeError& error) {
            EXPECT_EQ(error.number, numero) << error.description;
        }
    }
}

}  // namespace
}  // namespace kelvora
