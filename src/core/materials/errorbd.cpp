#include "core/materials/errorbd.h"

#include <sqlite3.h>

#include <utility>

namespace kelvora {

RuntimeError ErrorBaseDatos(std::string descripcion) {
    return {kErrorBaseDatos, std::move(descripcion)};
}

namespace {

const char* DescripcionMotor(int codigo) {
    switch (codigo & 0xFF) {
        case SQLITE_CANTOPEN:
            return "No se puede abrir el archivo de la base de datos";
        case SQLITE_NOTADB:
            return "El archivo no es una base de datos";
        case SQLITE_CORRUPT:
            return "La base de datos está dañada";
        case SQLITE_BUSY:
        case SQLITE_LOCKED:
            return "La base de datos está bloqueada por otro programa";
        case SQLITE_IOERR:
            return "Error de lectura o escritura en el disco";
        case SQLITE_READONLY:
            return "La base de datos es de solo lectura";
        case SQLITE_FULL:
            return "El disco está lleno";
        case SQLITE_PERM:
        case SQLITE_AUTH:
            return "No tiene permiso para usar la base de datos";
        case SQLITE_NOMEM:
            return "No hay memoria suficiente";
        case SQLITE_TOOBIG:
            return "El dato es demasiado grande";
        case SQLITE_CONSTRAINT:
            return "Los datos no cumplen una regla de la base de datos";
        case SQLITE_MISMATCH:
            return "No coinciden los tipos de datos";
        case SQLITE_ERROR:
            return "La instrucción SQL no es válida";
        default:
            return "Error de la base de datos";
    }
}

}  // namespace

RuntimeError ErrorMotor(int codigo, const std::string& texto) {
    return ErrorBaseDatos(std::string(DescripcionMotor(codigo)) + " (SQLite: " + texto + ")");
}

RuntimeError ErrorSQLite(sqlite3* bd) {
    return ErrorMotor(bd != nullptr ? sqlite3_extended_errcode(bd) : SQLITE_NOMEM,
                      sqlite3_errmsg(bd));
}

RuntimeError ErrorValorNoNumerico(const std::string& tabla, const std::string& campo,
                                  const std::string& clave, const std::string& valor) {
    std::string registro = clave.empty() ? "" : " del registro " + clave;
    return ErrorBaseDatos("En la tabla " + tabla + ", el campo " + campo + registro +
                          " no tiene un número: '" + valor + "'");
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
