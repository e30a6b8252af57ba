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
        mFalloApertura.reset();
        try {
            mConexion->Open(mContexto.CadenaConexion);
        } catch (const RuntimeError& error) {
            mFalloApertura = error;
            throw;
        }
    }
}

// A lookup on a connection that could not be opened tells why it could not.
std::string MaterialesBD::LeerMaterial(int32_t codigo, std::string& caja) {
    Crear();
    if (!mConexion->EstaAbierta() && mFalloApertura) {
        return MensajeErrorMaterial(*mFalloApertura);
    }
    return kelvora::LeerMaterial(*mConexion, *mRecordset, codigo, caja);
}

void MaterialesBD::CerrarConexion() {
    if (mConexion) {
        mConexion->Close();
    }
    mRecordset.reset();
    mConexion.reset();
    mFalloApertura.reset();
}

}  // namespace kelvora
