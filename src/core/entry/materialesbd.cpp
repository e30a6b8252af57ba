#include "core/entry/materialesbd.h"

#include "core/materials/leermaterial.h"

namespace kelvora {

MaterialesBD::MaterialesBD(const ContextoAplicacion& contexto) : mContexto(contexto) {
}

bool MaterialesBD::ExisteBaseDatos() {
    return ArchivoExiste(mContexto.ArchivoBD);
}

void MaterialesBD::Crear() {
    if (!mConexion) {
        mConexion = std::make_unique<Conexion>();
        mRecordset = std::make_unique<Recordset>();
    }
}

void MaterialesBD::AbrirConexion() {
    Crear();
    if (!mConexion->EstaAbierta()) {
        mConexion->Open(mContexto.CadenaConexion);
    }
}

std::string MaterialesBD::LeerMaterial(int32_t codigo, std::string& caja) {
    Crear();
    return kelvora::LeerMaterial(*mConexion, *mRecordset, codigo, caja);
}

void MaterialesBD::CerrarConexion() {
    if (mConexion) {
        mConexion->Close();
    }
    mRecordset.reset();
    mConexion.reset();
}

}  // namespace kelvora
