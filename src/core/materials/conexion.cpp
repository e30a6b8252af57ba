#include "core/materials/conexion.h"

#include "core/materials/errorbd.h"
#include "core/materials/textosql.h"
#include "core/runtime/texto.h"

#include <sqlite3.h>

#include <cmath>
#include <memory>

namespace kelvora {

namespace {

// Waits this long for another program's lock before a statement fails as locked.
constexpr int kEsperaBloqueoMs = 500;

struct Finalizar {
    void operator()(sqlite3_stmt* sentencia) const { sqlite3_finalize(sentencia); }
};
using Sentencia = std::unique_ptr<sqlite3_stmt, Finalizar>;

// Jet's UCASE, with the runtime's upper case of accented letters.
void UCaseSql(sqlite3_context* contexto, int, sqlite3_value** argumentos) {
    if (sqlite3_value_type(argumentos[0]) == SQLITE_NULL) {
        sqlite3_result_null(contexto);
        return;
    }
    const auto* texto = reinterpret_cast<const char*>(sqlite3_value_text(argumentos[0]));
    const std::string mayusculas =
            UCase(std::string_view(texto, static_cast<size_t>(sqlite3_value_bytes(argumentos[0]))));
    sqlite3_result_text(contexto, mayusculas.data(), static_cast<int>(mayusculas.size()),
                        SQLITE_TRANSIENT);
}

Sentencia PrepararUna(sqlite3* bd, std::string_view sql, const char** resto) {
    sqlite3_stmt* sentencia = nullptr;
    if (sqlite3_prepare_v2(bd, sql.data(), static_cast<int>(sql.size()), &sentencia, resto) !=
        SQLITE_OK) {
        throw ErrorSQLite(bd);
    }
    return Sentencia(sentencia);
}

// True when what follows the first statement holds another one, well formed or not.
bool HaySegundaSentencia(sqlite3* bd, std::string_view resto) {
    while (!resto.empty()) {
        sqlite3_stmt* sentencia = nullptr;
        const char* siguiente = nullptr;
        const int resultado = sqlite3_prepare_v2(bd, resto.data(), static_cast<int>(resto.size()),
                                                 &sentencia, &siguiente);
        sqlite3_finalize(sentencia);
        if (resultado != SQLITE_OK || sentencia != nullptr) {
            return true;
        }
        resto.remove_prefix(static_cast<size_t>(siguiente - resto.data()));
    }
    return false;
}

Sentencia Preparar(sqlite3* bd, const std::string& sql) {
    if (bd == nullptr) {
        throw ErrorObjetoCerrado();
    }
    // The dialect has no comments: a quote in a built text cannot cut its statement short.
    if (TieneComentario(sql)) {
        throw ErrorBaseDatos("La instrucción SQL no admite comentarios.");
    }
    const char* resto = nullptr;
    Sentencia sentencia = PrepararUna(bd, sql, &resto);
    if (sentencia == nullptr) {
        throw ErrorBaseDatos("La instrucción SQL está vacía.");
    }
    if (HaySegundaSentencia(bd, std::string_view(resto, sql.data() + sql.size() - resto))) {
        throw ErrorBaseDatos("La instrucción SQL contiene más de una sentencia.");
    }
    return sentencia;
}

// SQLite's affinity of a declared type: anything but text, blob or no type is numeric.
bool DeclaradaNumerica(sqlite3_stmt* sentencia, int columna) {
    const char* declarado = sqlite3_column_decltype(sentencia, columna);
    if (declarado == nullptr || *declarado == '\0') {
        return false;
    }
    const std::string tipo = UCase(declarado);
    for (const char* noNumerico : {"CHAR", "CLOB", "TEXT", "BLOB"}) {
        if (tipo.find(noNumerico) != std::string::npos) {
            return false;
        }
    }
    return true;
}

std::string TextoColumna(sqlite3_stmt* sentencia, int columna) {
    const auto* texto = reinterpret_cast<const char*>(sqlite3_column_text(sentencia, columna));
    return texto != nullptr ? std::string(texto) : std::string();
}

// "Campo = valor" of the row's primary key, when the statement reads it.
std::string ClaveFila(sqlite3* bd, sqlite3_stmt* sentencia, const char* tabla) {
    for (int c = 0; c < sqlite3_column_count(sentencia); ++c) {
        const char* origen = sqlite3_column_origin_name(sentencia, c);
        const char* suTabla = sqlite3_column_table_name(sentencia, c);
        int clave = 0;
        if (origen != nullptr && suTabla != nullptr && std::string_view(suTabla) == tabla &&
            sqlite3_table_column_metadata(bd, nullptr, tabla, origen, nullptr, nullptr, nullptr,
                                          &clave, nullptr) == SQLITE_OK &&
            clave != 0) {
            return std::string(origen) + " = " + TextoColumna(sentencia, c);
        }
    }
    return {};
}

// A numeric column holds a text or an infinity only in a damaged file; it is refused rather
// than read in a way that would depend on the locale.
void ComprobarNumero(sqlite3* bd, sqlite3_stmt* sentencia, int columna) {
    const int tipo = sqlite3_column_type(sentencia, columna);
    const bool noNumero =
            tipo == SQLITE_TEXT || tipo == SQLITE_BLOB ||
            (tipo == SQLITE_FLOAT && !std::isfinite(sqlite3_column_double(sentencia, columna)));
    if (!noNumero || !DeclaradaNumerica(sentencia, columna)) {
        return;
    }
    const char* tabla = sqlite3_column_table_name(sentencia, columna);
    const char* campo = sqlite3_column_origin_name(sentencia, columna);
    throw ErrorValorNoNumerico(tabla != nullptr ? tabla : "", campo != nullptr ? campo : "",
                               tabla != nullptr ? ClaveFila(bd, sentencia, tabla) : "",
                               TextoColumna(sentencia, columna));
}

ValorCampo LeerColumna(sqlite3_stmt* sentencia, int columna) {
    switch (sqlite3_column_type(sentencia, columna)) {
        case SQLITE_INTEGER:
            return ValorCampo(static_cast<int64_t>(sqlite3_column_int64(sentencia, columna)));
        case SQLITE_FLOAT:
            return ValorCampo(sqlite3_column_double(sentencia, columna));
        case SQLITE_NULL:
            return {};
        default:
            return ValorCampo(std::string(
                    reinterpret_cast<const char*>(sqlite3_column_text(sentencia, columna)),
                    static_cast<size_t>(sqlite3_column_bytes(sentencia, columna))));
    }
}

}  // namespace

std::string OrigenDatos(std::string_view cadenaConexion) {
    size_t inicio = 0;
    while (inicio <= cadenaConexion.size()) {
        size_t fin = cadenaConexion.find(';', inicio);
        if (fin == std::string_view::npos) {
            fin = cadenaConexion.size();
        }
        const std::string_view parte = cadenaConexion.substr(inicio, fin - inicio);
        const size_t igual = parte.find('=');
        if (igual != std::string_view::npos &&
            IgualTexto(Trim(parte.substr(0, igual)), "Data Source")) {
            return Trim(parte.substr(igual + 1));
        }
        inicio = fin + 1;
    }
    return {};
}

Conexion::~Conexion() {
    Close();
}

void Conexion::Open(const std::string& cadenaConexion) {
    if (mBD != nullptr) {
        throw ErrorObjetoAbierto();
    }
    const std::string archivo = OrigenDatos(cadenaConexion);
    if (archivo.empty()) {
        throw ErrorBaseDatos("La cadena de conexión no indica el archivo de la base de datos.");
    }
    sqlite3* bd = nullptr;
    if (sqlite3_open_v2(archivo.c_str(), &bd, SQLITE_OPEN_READWRITE, nullptr) != SQLITE_OK) {
        const RuntimeError error = ErrorSQLite(bd);
        sqlite3_close(bd);
        throw error;
    }
    mBD = bd;
    try {
        sqlite3_busy_timeout(mBD, kEsperaBloqueoMs);
        sqlite3_create_function(mBD, "UCASE", 1, SQLITE_UTF8 | SQLITE_DETERMINISTIC, nullptr,
                                UCaseSql, nullptr, nullptr);
        ComprobarArchivo();
    } catch (...) {
        Close();
        throw;
    }
}

void Conexion::ComprobarArchivo() {
    Sentencia revision = Preparar(mBD, "PRAGMA quick_check(1)");
    const int paso = sqlite3_step(revision.get());
    if (paso != SQLITE_ROW) {
        throw ErrorSQLite(mBD);
    }
    const auto* resultado = reinterpret_cast<const char*>(sqlite3_column_text(revision.get(), 0));
    if (resultado == nullptr || std::string_view(resultado) != "ok") {
        throw ErrorMotor(SQLITE_CORRUPT, sqlite3_errstr(SQLITE_CORRUPT));
    }
    for (const char* tabla : {"Emisividad", "Tubos"}) {
        const std::string sql = std::string("SELECT * FROM ") + tabla;
        sqlite3_stmt* sentencia = nullptr;
        const int resultado = sqlite3_prepare_v2(mBD, sql.c_str(), -1, &sentencia, nullptr);
        sqlite3_finalize(sentencia);
        if (resultado == SQLITE_ERROR) {
            throw ErrorBaseDatos(std::string("La base de datos no tiene la tabla ") + tabla +
                                 " (SQLite: " + sqlite3_errmsg(mBD) + ")");
        }
        if (resultado != SQLITE_OK) {
            throw ErrorSQLite(mBD);
        }
    }
}

void Conexion::Close() {
    sqlite3_close_v2(mBD);
    mBD = nullptr;
}

void Conexion::EjecutarSimple(const char* sql) {
    if (sqlite3_exec(mBD, sql, nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw ErrorSQLite(mBD);
    }
}

void Conexion::Execute(const std::string& sql) {
    Sentencia sentencia = Preparar(mBD, sql);
    EjecutarSimple("BEGIN IMMEDIATE");
    int paso = SQLITE_ROW;
    while (paso == SQLITE_ROW) {
        paso = sqlite3_step(sentencia.get());
    }
    if (paso != SQLITE_DONE) {
        const RuntimeError error = ErrorSQLite(mBD);
        sentencia.reset();
        sqlite3_exec(mBD, "ROLLBACK", nullptr, nullptr, nullptr);
        throw error;
    }
    sentencia.reset();
    try {
        EjecutarSimple("COMMIT");
    } catch (...) {
        sqlite3_exec(mBD, "ROLLBACK", nullptr, nullptr, nullptr);
        throw;
    }
}

ResultadoConsulta Conexion::Consultar(const std::string& sql) {
    Sentencia sentencia = Preparar(mBD, sql);
    if (sqlite3_stmt_readonly(sentencia.get()) == 0) {
        throw ErrorBaseDatos(
                "Un conjunto de registros de solo lectura no admite esta instrucción.");
    }
    ResultadoConsulta resultado;
    const int columnas = sqlite3_column_count(sentencia.get());
    for (int c = 0; c < columnas; ++c) {
        resultado.campos.emplace_back(sqlite3_column_name(sentencia.get(), c));
    }
    int paso = SQLITE_ROW;
    while ((paso = sqlite3_step(sentencia.get())) == SQLITE_ROW) {
        std::vector<ValorCampo>& fila = resultado.filas.emplace_back();
        for (int c = 0; c < columnas; ++c) {
            ComprobarNumero(mBD, sentencia.get(), c);
            fila.push_back(LeerColumna(sentencia.get(), c));
        }
    }
    if (paso != SQLITE_DONE) {
        throw ErrorSQLite(mBD);
    }
    return resultado;
}

}  // namespace kelvora
