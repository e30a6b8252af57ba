#include "core/materials/errorbd.h"

#include <sqlite3.h>

#include <utility>

namespace kelvora {

RuntimeError ErrorBaseDatos(std::string descripcion) {
    return {kErrorBaseDatos, std::move(descripcion)};
}

RuntimeError ErrorSQLite(sqlite3* bd) {
    return ErrorBaseDatos(sqlite3_errmsg(bd));
}

RuntimeError ErrorSinRegistroActual() {
    return {3021,
            "BOF o EOF es True, o el registro actual se eliminó. La operación solicitada "
            "requiere un registro actual."};
}

RuntimeError ErrorCampoNoEncontrado(const std::string& nombre) {
    return {3265,
            "No se encontró el elemento en la colección que corresponde al nombre o al ordinal "
            "solicitado: " +
                    nombre};
}

RuntimeError ErrorObjetoCerrado() {
    return {3704, "No se permite realizar la operación si el objeto está cerrado."};
}

RuntimeError ErrorObjetoAbierto() {
    return {3705, "No se permite realizar la operación si el objeto está abierto."};
}

RuntimeError ErrorUsoNull() {
    return {94, "Uso no válido de Null"};
}

}  // namespace kelvora
