#include "core/materials/sentencias.h"
#include "core/materials/tubos.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

// Numbers in statements carry a point whatever the machine's decimal separator.
TEST(Sentencias, TextosExactosEnAmbosLocales) {
    // clang-format off
    const std::pair<std::string (*)(), const char*> casos[] = {
        {[] { return SqlMaterialPorCodigo(7); },    "SELECT * FROM Emisividad WHERE Codigo = 7"},
        {[] { return SqlEliminarMaterial(20); },    "DELETE FROM Emisividad WHERE Codigo = 20"},
        {[] { return SqlTuboPorNominal(0.75); },    "SELECT * FROM Tubos WHERE Nominal = 0.75"},
        {[] { return SqlTuboPorNominal(36); },      "SELECT * FROM Tubos WHERE Nominal = 36"},
        {[] { return SqlTuboPorNominal(12.7 / 25.4); }, "SELECT * FROM Tubos WHERE Nominal = 0.5"},
        {[] { return SqlConsultaUsuario("Codigo = 3"); },
         "SELECT * FROM Emisividad WHERE Codigo = 3 ORDER BY Codigo ASC"},
        {[] { return SqlInsertarMaterial({20, " chapa\r\nnueva\nde zinc ", 0.5, -12.5}); },
         "INSERT INTO Emisividad(Codigo, Descripcion, Emisividad, Temperatura) "
         "VALUES (20, 'CHAPA NUEVA DE ZINC', 0.5, -12.5)"},
        {[] { return SqlInsertarMaterial({21, "lona", 1, std::nullopt}); },
         "INSERT INTO Emisividad(Codigo, Descripcion, Emisividad) VALUES (21, 'LONA', 1)"},
        {[] { return SqlActualizarMaterial({21, "lona", 0.85, std::nullopt}); },
         "UPDATE Emisividad SET Descripcion = 'LONA', Temperatura = NULL, "
         "Emisividad = 0.85 WHERE Codigo = 21"},
        {[] { return SqlActualizarMaterial({3, "ñu", 1.0 / 3, 392.5}); },
         "UPDATE Emisividad SET Descripcion = 'ÑU', Temperatura = 392.5, "
         "Emisividad = 0.333333333333333 WHERE Codigo = 3"},
        {[] { return ErrorTuboNoEncontrado(1.25).description; },
         "No se encontró un diámetro de 1.25 plg en la Base de Datos."},
    };
    // clang-format on
    for (const LocaleChars& locale : {LocaleChars::Punto(), LocaleChars::Espanol()}) {
        prueba::LocaleTemporal temporal(locale);
        for (const auto& [construir, esperado] : casos) {
            EXPECT_EQ(construir(), esperado) << "decimal " << locale.decimal;
        }
    }
    EXPECT_EQ(ErrorTuboNoEncontrado(3).number, 1005);
}

}  // namespace
}  // namespace kelvora
