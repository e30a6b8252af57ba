#pragma once

#include "core/runtime/runtimeerror.h"

#include <string>

struct sqlite3;

namespace kelvora {

/// Number of a failure reported by the database engine (the provider's generic failure).
inline constexpr int kErrorBaseDatos = -2147467259;

/// A failure of the database engine with its own message.
RuntimeError ErrorBaseDatos(std::string descripcion);
/// The last error of a connection, with the engine's message.
RuntimeError ErrorSQLite(sqlite3* bd);

/// A field read with no current row (BOF or EOF).
RuntimeError ErrorSinRegistroActual();
/// A field name that the row does not hold.
RuntimeError ErrorCampoNoEncontrado(const std::string& nombre);
/// An operation on a closed connection or recordset.
RuntimeError ErrorObjetoCerrado();
/// Opening a connection or recordset that is already open.
RuntimeError ErrorObjetoAbierto();
/// A NULL where a number is needed.
RuntimeError ErrorUsoNull();

}  // namespace kelvora
