#include "bdtemporal.h"
#include "core/materials/conexion.h"
#include "core/materials/recordset.h"

#include <gtest/gtest.h>

#include <charconv>
#include <fstream>
#include <sstream>
#include <vector>

namespace kelvora {
namespace {

using Filas = std::vector<std::vector<std::string>>;

Filas LeerCsv(const std::string& nombre) {
    std::ifstream archivo(std::string(KELVORA_SEMILLA_BD) + "/" + nombre);
    Filas filas;
    std::string linea;
    while (std::getline(archivo, linea)) {
        std::vector<std::string>& campos = filas.emplace_back();
        std::stringstream flujo(linea + ",");
        std::string campo;
        while (std::getline(flujo, campo, ',')) {
            campos.push_back(campo);
        }
    }
    return filas;
}

// The CSV's decimal text as a double, whatever the process locale.
double Doble(const std::string& texto) {
    double valor = 0;
    std::from_chars(texto.data(), texto.data() + texto.size(), valor);
    return valor;
}

// Every row of the seed is in the new database, field by field: texts equal, numbers equal
// to the CSV's decimal text read as a double, empty fields NULL.
TEST(Semilla, LasFilasSonLasDeLosCsv) {
    prueba::BDTemporal bd;
    for (const auto& [tabla, csv, filasEsperadas] :
         {std::tuple{"Emisividad", "emisividad.csv", 17}, std::tuple{"Tubos", "tubos.csv", 27}}) {
        const Filas filas = LeerCsv(csv);
        ASSERT_EQ(filas.size(), filasEsperadas + 1u) << csv;
        const std::vector<std::string>& columnas = filas.front();
        Conexion conexion;
        conexion.Open(bd.cadena);
        Recordset rs;
        rs.Open(std::string("SELECT * FROM ") + tabla + " ORDER BY " + columnas.front(), conexion,
                TipoCursor::SoloAdelante);
        for (size_t i = 1; i < filas.size(); ++i, rs.MoveNext()) {
            ASSERT_FALSE(rs.Eof()) << tabla << " termina antes de la fila " << i;
            for (size_t c = 0; c < columnas.size(); ++c) {
                const std::string& esperado = filas[i][c];
                const ValorCampo& valor = rs.Fields(columnas[c]);
                if (esperado.empty()) {
                    EXPECT_TRUE(valor.EsNulo()) << tabla << " fila " << i << " " << columnas[c];
                } else if (columnas[c] == "Descripcion") {
                    EXPECT_EQ(valor.Texto(), esperado);
                } else {
                    EXPECT_EQ(valor.Numero(), Doble(esperado))
                            << tabla << " fila " << i << " " << columnas[c];
                }
            }
        }
        EXPECT_TRUE(rs.Eof()) << tabla << " tiene filas de más";
    }
}

}  // namespace
}  // namespace kelvora
