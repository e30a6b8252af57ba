#include "core/materials/fuentetubosbd.h"

#include "core/materials/conexion.h"
#include "core/materials/recordset.h"
#include "core/materials/sentencias.h"

#include <utility>

namespace kelvora {

namespace {

FilaTubos LeerFilaTubos(const Recordset& tubos) {
    const auto campo = [&tubos](const char* nombre) { return tubos.Fields(nombre).Numero(); };
    return {campo("Nominal"),   campo("Real"),  campo("Interior"), campo("Una"),
            campo("UnaMedia"),  campo("Dos"),   campo("DosMedia"), campo("Tres"),
            campo("TresMedia"), campo("Cuatro")};
}

}  // namespace

FuenteTubosBD::FuenteTubosBD(std::string cadenaConexion)
    : mCadenaConexion(std::move(cadenaConexion)) {
}

std::optional<FilaTubos> FuenteTubosBD::BuscarTubo(double nominal) {
    Conexion conexion;
    conexion.Open(mCadenaConexion);
    Recordset tubos;
    tubos.Open(SqlTuboPorNominal(nominal), conexion, TipoCursor::Estatico);
    if (tubos.Eof()) {
        return std::nullopt;
    }
    return LeerFilaTubos(tubos);
}

}  // namespace kelvora
