#include "core/materials/creacionbd.h"

#include "core/materials/errorbd.h"

#include <sqlite3.h>

#include <charconv>
#include <filesystem>
#include <fstream>
#include <memory>
#include <sstream>
#include <vector>

namespace kelvora {

namespace {

namespace fs = std::filesystem;

using FilaCsv = std::vector<std::string>;

struct TablaSemilla {
    const char* nombre;
    const char* archivo;
    const char* crear;
    std::vector<std::string> columnas;
    std::string columnaTexto;
};

const std::vector<TablaSemilla>& Tablas() {
    static const std::vector<TablaSemilla> tablas = {
            {"Emisividad",
             "emisividad.csv",
             "CREATE TABLE Emisividad (Codigo INTEGER NOT NULL PRIMARY KEY, Descripcion TEXT, "
             "Emisividad DOUBLE NOT NULL, Temperatura DOUBLE)",
             {"Codigo", "Descripcion", "Emisividad", "Temperatura"},
             "Descripcion"},
            {"Tubos",
             "tubos.csv",
             "CREATE TABLE Tubos (Nominal DOUBLE NOT NULL PRIMARY KEY, Real DOUBLE NOT NULL, "
             "Interior DOUBLE NOT NULL, Una DOUBLE NOT NULL, UnaMedia DOUBLE NOT NULL, "
             "Dos DOUBLE NOT NULL, DosMedia DOUBLE NOT NULL, Tres DOUBLE NOT NULL, "
             "TresMedia DOUBLE NOT NULL, Cuatro DOUBLE NOT NULL)",
             {"Nominal", "Real", "Interior", "Una", "UnaMedia", "Dos", "DosMedia", "Tres",
              "TresMedia", "Cuatro"},
             ""},
    };
    return tablas;
}

FilaCsv DividirLinea(const std::string& linea) {
    FilaCsv campos;
    std::stringstream flujo(linea);
    std::string campo;
    while (std::getline(flujo, campo, ',')) {
        campos.push_back(campo);
    }
    if (!linea.empty() && linea.back() == ',') {
        campos.emplace_back();
    }
    return campos;
}

std::vector<FilaCsv> LeerCsv(const fs::path& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo) {
        throw ErrorBaseDatos("No se puede leer el archivo " + ruta.string());
    }
    std::vector<FilaCsv> filas;
    std::string linea;
    while (std::getline(archivo, linea)) {
        if (!linea.empty() && linea.back() == '\r') {
            linea.pop_back();
        }
        if (!linea.empty()) {
            filas.push_back(DividirLinea(linea));
        }
    }
    return filas;
}

struct CerrarBD {
    void operator()(sqlite3* bd) const { sqlite3_close_v2(bd); }
};
using BaseDatos = std::unique_ptr<sqlite3, CerrarBD>;

struct Finalizar {
    void operator()(sqlite3_stmt* sentencia) const { sqlite3_finalize(sentencia); }
};
using Sentencia = std::unique_ptr<sqlite3_stmt, Finalizar>;

void Ejecutar(sqlite3* bd, const std::string& sql) {
    if (sqlite3_exec(bd, sql.c_str(), nullptr, nullptr, nullptr) != SQLITE_OK) {
        throw ErrorSQLite(bd);
    }
}

std::string TextoInsercion(const TablaSemilla& tabla) {
    std::string nombres;
    std::string marcas;
    for (const std::string& columna : tabla.columnas) {
        nombres += (nombres.empty() ? "" : ", ") + columna;
        marcas += marcas.empty() ? "?" : ", ?";
    }
    return std::string("INSERT INTO ") + tabla.nombre + " (" + nombres + ") VALUES (" + marcas +
           ")";
}

std::string Ubicacion(const TablaSemilla& tabla, size_t linea) {
    return "la línea " + std::to_string(linea + 1) + " de " + tabla.archivo;
}

// An empty field is NULL; any other must be a whole number in plain decimal form.
void EnlazarNumero(sqlite3_stmt* sentencia, int posicion, const std::string& campo,
                   const std::string& ubicacion) {
    if (campo.empty()) {
        sqlite3_bind_null(sentencia, posicion);
        return;
    }
    double valor = 0;
    const auto [fin, error] = std::from_chars(campo.data(), campo.data() + campo.size(), valor);
    if (error != std::errc() || fin != campo.data() + campo.size()) {
        throw ErrorBaseDatos("Número no válido '" + campo + "' en " + ubicacion);
    }
    sqlite3_bind_double(sentencia, posicion, valor);
}

void InsertarFila(sqlite3* bd, sqlite3_stmt* sentencia, const TablaSemilla& tabla,
                  const FilaCsv& fila, const std::string& ubicacion) {
    if (fila.size() != tabla.columnas.size()) {
        throw ErrorBaseDatos("Número de campos incorrecto en " + ubicacion);
    }
    sqlite3_reset(sentencia);
    for (size_t c = 0; c < fila.size(); ++c) {
        const int posicion = static_cast<int>(c + 1);
        if (tabla.columnas[c] == tabla.columnaTexto) {
            sqlite3_bind_text(sentencia, posicion, fila[c].c_str(), -1, SQLITE_TRANSIENT);
        } else {
            EnlazarNumero(sentencia, posicion, fila[c], ubicacion);
        }
    }
    if (sqlite3_step(sentencia) != SQLITE_DONE) {
        throw ErrorBaseDatos(std::string(sqlite3_errmsg(bd)) + " en " + ubicacion);
    }
}

void LlenarTabla(sqlite3* bd, const TablaSemilla& tabla, const fs::path& carpetaSemilla) {
    const std::vector<FilaCsv> filas = LeerCsv(carpetaSemilla / tabla.archivo);
    if (filas.empty() || filas.front() != tabla.columnas) {
        throw ErrorBaseDatos(std::string("Las columnas de ") + tabla.archivo +
                             " no son las de la tabla " + tabla.nombre);
    }
    Ejecutar(bd, tabla.crear);
    sqlite3_stmt* preparada = nullptr;
    if (sqlite3_prepare_v2(bd, TextoInsercion(tabla).c_str(), -1, &preparada, nullptr) !=
        SQLITE_OK) {
        throw ErrorSQLite(bd);
    }
    const Sentencia sentencia(preparada);
    for (size_t i = 1; i < filas.size(); ++i) {
        InsertarFila(bd, sentencia.get(), tabla, filas[i], Ubicacion(tabla, i));
    }
}

void EscribirBaseDatos(const fs::path& ruta, const fs::path& carpetaSemilla) {
    sqlite3* abierta = nullptr;
    const int resultado = sqlite3_open_v2(ruta.string().c_str(), &abierta,
                                          SQLITE_OPEN_READWRITE | SQLITE_OPEN_CREATE, nullptr);
    const BaseDatos bd(abierta);
    if (resultado != SQLITE_OK) {
        throw ErrorSQLite(bd.get());
    }
    Ejecutar(bd.get(), "BEGIN");
    for (const TablaSemilla& tabla : Tablas()) {
        LlenarTabla(bd.get(), tabla, carpetaSemilla);
    }
    Ejecutar(bd.get(), "COMMIT");
}

}  // namespace

void CrearBaseDatos(const std::string& archivo, const std::string& carpetaSemilla) {
    const fs::path destino(archivo);
    const fs::path temporal = fs::path(archivo + ".nuevo");
    std::error_code ignorado;
    if (destino.has_parent_path()) {
        fs::create_directories(destino.parent_path(), ignorado);
    }
    fs::remove(temporal, ignorado);
    try {
        EscribirBaseDatos(temporal, carpetaSemilla);
        fs::rename(temporal, destino);
    } catch (const fs::filesystem_error& error) {
        fs::remove(temporal, ignorado);
        throw ErrorBaseDatos(error.what());
    } catch (...) {
        fs::remove(temporal, ignorado);
        throw;
    }
}

bool CrearBaseDatosSiFalta(const std::string& archivo, const std::string& carpetaSemilla) {
    std::error_code error;
    if (fs::exists(archivo, error)) {
        return false;
    }
    CrearBaseDatos(archivo, carpetaSemilla);
    return true;
}

}  // namespace kelvora
