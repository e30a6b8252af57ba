#pragma once

#include "core/runtime/runtimeerror.h"

#include <string>

struct sqlite3;

namespace kelvora {

/// Number of a failure reported by the database engine (the provider's generic failure).
inline constexpr int kErrorBaseDatos = -2147467259;

/// A failure of the database engine with its own message.
RuntimeError ErrorBaseDatos(std::string descripcion);
/// The last error of a connection: its Spanish description, then the engine's own text.
RuntimeError ErrorSQLite(sqlite3* bd);
/// An engine failure of result code `codigo` with the engine's text `texto`, described as above.
RuntimeError ErrorMotor(int codigo, const std::string& texto);
/// A numeric field whose stored value is not a number, named by table, field and row key.
RuntimeError ErrorValorNoNumerico(const std::string& tabla, const std::string& campo,
                                  const std::string& clave, const std::string& valor);

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
