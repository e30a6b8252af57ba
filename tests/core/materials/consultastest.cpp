#include "bdtemporal.h"
#include "core/materials/codigolibre.h"
#include "core/materials/fuentetubosbd.h"
#include "core/materials/leermaterial.h"
#include "core/materials/sentencias.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

// Real and Interior are the seed's values for these sizes (data/bd/tubos.csv), exact.
TEST(Consultas, TuboYMaterialEnAmbosLocales) {
    prueba::BDTemporal bd;
    FuenteTubosBD tubos(bd.cadena);
    // clang-format off
    const struct { double nominal; double real; double interior; double cuatro; } filas[] = {
        {0.5,  0.840,  0.622,  8.625},
        {0.75, 1.050,  0.824,  8.625},
        {1.25, 1.660,  1.380,  9.625},
        {36,   36.000, 34.500, 44.000},
    };
    // clang-format on
    for (const LocaleChars& locale : {LocaleChars::Punto(), LocaleChars::Espanol()}) {
        prueba::LocaleTemporal temporal(locale);
        for (const auto& esperada : filas) {
            const std::optional<FilaTubos> fila = tubos.BuscarTubo(esperada.nominal);
            ASSERT_TRUE(fila.has_value()) << esperada.nominal << " decimal " << locale.decimal;
            EXPECT_EQ(fila->Real, esperada.real);
            EXPECT_EQ(fila->Interior, esperada.interior);
            EXPECT_EQ(fila->Cuatro, esperada.cuatro);
        }
        EXPECT_FALSE(tubos.BuscarTubo(3.3).has_value());
        EXPECT_FALSE(tubos.BuscarTubo(0.25).has_value());

        Conexion conexion;
        conexion.Open(bd.cadena);
        Recordset rs;
        std::string caja;
        EXPECT_EQ(LeerMaterial(conexion, rs, 7, caja), "ALUMINIO OXIDADO");
        EXPECT_EQ(caja, "0.2") << "decimal " << locale.decimal;
    }
}

TEST(Consultas, LeerMaterialSusResultados) {
    prueba::BDTemporal bd;
    bd.Ejecutar("INSERT INTO Emisividad VALUES (40, '  lona vieja ', 1, NULL)");
    bd.Ejecutar("INSERT INTO Emisividad VALUES (41, NULL, 0.125, NULL)");
    bd.Ejecutar("INSERT INTO Emisividad VALUES (42, 'MALA', 'abc', NULL)");
    struct Caso {
        int32_t codigo;
        bool abierta;
        const char* caja;
        const char* resultado;
    };
    // clang-format off
    const Caso casos[] = {
        {6,  true,  "0.09",  "ALUMINIO COMERCIAL (LÁMINA NUEVA)"},
        {40, true,  "1",     "LONA VIEJA"},
        {41, true,  "0.125", ""},
        {99, true,  "",      "No existe un material con código 99"},
        {42, true,  "antes", "Error al consultar material: En la tabla Emisividad, el campo "
                             "Emisividad del registro Codigo = 42 no tiene un número: 'abc'"},
        {6,  false, "antes", "Error al consultar material: No se permite realizar la operación "
                             "si el objeto está cerrado."},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        Conexion conexion;
        if (caso.abierta) {
            conexion.Open(bd.cadena);
        }
        Recordset rs;
        std::string caja = "antes";
        EXPECT_EQ(LeerMaterial(conexion, rs, caso.codigo, caja), caso.resultado);
        EXPECT_EQ(caja, caso.caja) << caso.codigo;
        EXPECT_FALSE(rs.EstaAbierto());
    }
}

TEST(Consultas, SiguienteCodigoLibreReusaLosHuecos) {
    struct Caso {
        std::vector<std::string> cambios;
        int16_t esperado;
    };
    const auto insertar = [](int32_t codigo) {
        return SqlInsertarMaterial({codigo, "NUEVO", 0.5, std::nullopt});
    };
    std::vector<std::string> de18a25;
    for (int32_t codigo = 18; codigo <= 25; ++codigo) {
        de18a25.push_back(insertar(codigo));
    }
    std::vector<std::string> sin20 = de18a25;
    sin20.push_back(SqlEliminarMaterial(20));
    // clang-format off
    const Caso casos[] = {
        {{},                                   18},
        {de18a25,                              26},
        {sin20,                                20},
        {{insertar(0)},                        1},
        {{SqlEliminarMaterial(3)},             3},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        prueba::BDTemporal bd;
        for (const std::string& cambio : caso.cambios) {
            bd.Ejecutar(cambio);
        }
        Conexion conexion;
        conexion.Open(bd.cadena);
        EXPECT_EQ(SiguienteCodigoLibre(conexion), caso.esperado);
    }
}

}  // namespace
}  // namespace kelvora
