#include "core/materials/leermaterial.h"

#include "core/materials/sentencias.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

namespace kelvora {

namespace {

std::string LeerFilaActual(const Recordset& recordset, int32_t codigo, std::string& caja) {
    if (recordset.Bof() && recordset.Eof()) {
        caja.clear();
        return "No existe un material con código " + std::to_string(codigo);
    }
    std::string emisividad = TextoNumero(recordset.Fields("Emisividad").Numero());
    const std::string descripcion = UCase(Trim(recordset.Fields("Descripcion").Texto()));
    caja = NormalizarDecimal(emisividad);
    return descripcion;
}

}  // namespace

std::string MensajeErrorMaterial(const RuntimeError& error) {
    return "Error al consultar material: " + error.description;
}

std::string LeerMaterial(Conexion& conexion, Recordset& recordset, int32_t codigo,
                         std::string& caja) {
    std::string resultado;
    try {
        recordset.Open(SqlMaterialPorCodigo(codigo), conexion, TipoCursor::Estatico);
        resultado = LeerFilaActual(recordset, codigo, caja);
    } catch (const RuntimeError& error) {
        resultado = MensajeErrorMaterial(error);
    }
    if (recordset.EstaAbierto()) {
        recordset.Close();
    }
    return resultado;
}

}  // namespace kelvora
