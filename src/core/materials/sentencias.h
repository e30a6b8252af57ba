#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace kelvora {

/// One row of table Emisividad as the edit window writes it.
struct FilaMaterial {
    int32_t Codigo = 0;
    std::string Descripcion;
    double Emisividad = 0;
    std::optional<double> Temperatura;
};

inline constexpr const char* kSqlListarMateriales =
        "SELECT * FROM Emisividad WHERE Codigo <> 0 ORDER BY Codigo ASC";
inline constexpr const char* kSqlListarDesnudas =
        "SELECT * FROM Emisividad WHERE Codigo < 5 ORDER BY Codigo ASC";
inline constexpr const char* kSqlListarChaquetas =
        "SELECT * FROM Emisividad WHERE Codigo >= 5 ORDER BY Codigo ASC";
inline constexpr const char* kSqlCodigosMateriales =
        "SELECT Codigo FROM Emisividad ORDER BY Codigo ASC";

/// A number as it stands in SQL text: its default text with a point as decimal mark.
std::string NumeroSql(double valor);

std::string SqlMaterialPorCodigo(int32_t codigo);
/// The query built by the user in the material list, from its condition.
std::string SqlConsultaUsuario(std::string_view condicion);
std::string SqlEliminarMaterial(int32_t codigo);
std::string SqlTuboPorNominal(double nominal);

/// The description as it is stored: line breaks to one blank, trimmed, upper case.
std::string DescripcionParaGuardar(std::string_view descripcion);
/// Quotes in the description are not escaped: such a statement fails.
std::string SqlInsertarMaterial(const FilaMaterial& fila);
std::string SqlActualizarMaterial(const FilaMaterial& fila);

}  // namespace kelvora
