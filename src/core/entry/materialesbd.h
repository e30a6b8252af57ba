#pragma once

#include "core/app/contexto.h"
#include "core/entry/accesomateriales.h"
#include "core/materials/conexion.h"
#include "core/materials/recordset.h"
#include "core/runtime/runtimeerror.h"

#include <memory>
#include <optional>

namespace kelvora {

/// The materials database of the application context, as a data entry window uses it.
class MaterialesBD : public AccesoMateriales {
public:
    explicit MaterialesBD(const ContextoAplicacion& contexto);

    bool ExisteBaseDatos() override;
    void AbrirConexion() override;
    std::string LeerMaterial(int32_t codigo, std::string& caja) override;
    void CerrarConexion() override;

private:
    void Crear();

    const ContextoAplicacion& mContexto;
    std::unique_ptr<Conexion> mConexion;
    std::unique_ptr<Recordset> mRecordset;
    std::optional<RuntimeError> mFalloApertura;
};

}  // namespace kelvora
