#pragma once

#include <cstdint>
#include <string>

namespace kelvora {

/// What a data entry window needs of the materials database: its own connection and recordset,
/// created on first activation and released at unload.
class AccesoMateriales {
public:
    virtual ~AccesoMateriales() = default;

    /// The database file exists.
    virtual bool ExisteBaseDatos() = 0;
    /// Creates the connection if needed and opens it when it is closed; a failure raises.
    virtual void AbrirConexion() = 0;
    /// `LeerMaterial` on the window's connection and recordset: the description or a sentence
    /// saying what went wrong; the box takes the emissivity, or is emptied when there is none.
    virtual std::string LeerMaterial(int32_t codigo, std::string& caja) = 0;
    /// Closes and releases the connection.
    virtual void CerrarConexion() = 0;
};

}  // namespace kelvora
