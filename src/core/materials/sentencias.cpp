#include "core/materials/sentencias.h"

#include "core/materials/tubos.h"
#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"

namespace kelvora {

namespace {

std::string ReemplazarTodo(std::string texto, std::string_view buscado, std::string_view nuevo) {
    for (size_t pos = texto.find(buscado); pos != std::string::npos;
         pos = texto.find(buscado, pos + nuevo.size())) {
        texto.replace(pos, buscado.size(), nuevo);
    }
    return texto;
}

}  // namespace

std::string NumeroSql(double valor) {
    std::string texto = TextoNumero(valor);
    return NormalizarDecimal(texto);
}

std::string SqlMaterialPorCodigo(int32_t codigo) {
    return "SELECT * FROM Emisividad WHERE Codigo = " + NumeroSql(codigo);
}

std::string SqlConsultaUsuario(std::string_view condicion) {
    return "SELECT * FROM Emisividad WHERE " + std::string(condicion) + " ORDER BY Codigo ASC";
}

std::string SqlEliminarMaterial(int32_t codigo) {
    return "DELETE FROM Emisividad WHERE Codigo = " + NumeroSql(codigo);
}

std::string SqlTuboPorNominal(double nominal) {
    return "SELECT * FROM Tubos WHERE Nominal = " + TextoNominal(nominal);
}

std::string DescripcionParaGuardar(std::string_view descripcion) {
    std::string texto = ReemplazarTodo(std::string(descripcion), "\r\n", " ");
    texto = ReemplazarTodo(std::move(texto), "\r", " ");
    texto = ReemplazarTodo(std::move(texto), "\n", " ");
    return UCase(Trim(texto));
}

std::string SqlInsertarMaterial(const FilaMaterial& fila) {
    const bool conTemperatura = fila.Temperatura.has_value();
    return "INSERT INTO Emisividad(Codigo, Descripcion, Emisividad" +
           std::string(conTemperatura ? ", Temperatura" : "") + ") VALUES (" +
           NumeroSql(fila.Codigo) + ", '" + DescripcionParaGuardar(fila.Descripcion) + "', " +
           NumeroSql(fila.Emisividad) +
           (conTemperatura ? ", " + NumeroSql(*fila.Temperatura) : std::string()) + ")";
}

std::string SqlActualizarMaterial(const FilaMaterial& fila) {
    const std::string temperatura =
            fila.Temperatura.has_value() ? NumeroSql(*fila.Temperatura) : "NULL";
    return "UPDATE Emisividad SET Descripcion = '" + DescripcionParaGuardar(fila.Descripcion) +
           "', Temperatura = " + temperatura + ", Emisividad = " + NumeroSql(fila.Emisividad) +
           " WHERE Codigo = " + NumeroSql(fila.Codigo);
}

}  // namespace kelvora
