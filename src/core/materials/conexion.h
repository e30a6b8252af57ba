#pragma once

#include "core/materials/valorcampo.h"

#include <string>
#include <string_view>
#include <vector>

struct sqlite3;

namespace kelvora {

/// The rows of a query, read in full, with the names of its fields.
struct ResultadoConsulta {
    std::vector<std::string> campos;
    std::vector<std::vector<ValorCampo>> filas;
};

/// A connection to the materials database, opened for one operation and closed after it.
/// Every statement runs alone: a text holding a second statement is refused unrun.
class Conexion {
public:
    Conexion() = default;
    ~Conexion();
    Conexion(const Conexion&) = delete;
    Conexion& operator=(const Conexion&) = delete;

    /// Opens the file named by the Data Source of the connection string; the password part
    /// is ignored. Fails on a missing file, a file that is not a database, a file without
    /// the tables Emisividad and Tubos, or a damaged file.
    void Open(const std::string& cadenaConexion);
    /// Runs one statement that returns no rows, as one transaction.
    void Execute(const std::string& sql);
    void Close();
    bool EstaAbierta() const { return mBD != nullptr; }

    /// Runs one read-only statement and returns all its rows.
    ResultadoConsulta Consultar(const std::string& sql);

private:
    void ComprobarArchivo();
    void EjecutarSimple(const char* sql);

    sqlite3* mBD = nullptr;
};

/// The file named by "Data Source=" in a connection string, trimmed.
std::string OrigenDatos(std::string_view cadenaConexion);

}  // namespace kelvora
