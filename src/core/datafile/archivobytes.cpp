#include "core/datafile/archivobytes.h"

#include "core/runtime/runtimeerror.h"

#include <filesystem>
#include <fstream>
#include <iterator>
#include <system_error>

namespace kelvora {

namespace {

namespace fs = std::filesystem;

constexpr const char* kSufijoTemporal = ".~kelvora";

RuntimeError ErrorArchivoNoEncontrado() {
    return {53, "No se encontró el archivo"};
}

RuntimeError ErrorAcceso() {
    return {75, "Error de acceso a la ruta o el archivo"};
}

RuntimeError ErrorRutaNoEncontrada() {
    return {76, "No se encontró la ruta de acceso"};
}

fs::path Ruta(const std::string& utf8) {
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

bool CarpetaExiste(const fs::path& ruta) {
    std::error_code error;
    const fs::path carpeta = ruta.has_parent_path() ? ruta.parent_path() : fs::path(".");
    return fs::is_directory(carpeta, error);
}

void Descartar(const std::string& temporal) {
    std::error_code error;
    fs::remove(Ruta(temporal), error);
}

}  // namespace

std::string LeerBytesArchivo(const std::string& nombre) {
    const fs::path ruta = Ruta(nombre);
    std::error_code error;
    if (!fs::exists(ruta, error)) {
        throw ErrorArchivoNoEncontrado();
    }
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo || fs::is_directory(ruta, error)) {
        throw ErrorAcceso();
    }
    std::string bytes{std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>()};
    if (archivo.bad()) {
        throw ErrorAcceso();
    }
    return bytes;
}

void ReemplazarArchivo(const std::string& nombre,
                       const std::function<void(const std::string& temporal)>& escribir) {
    const fs::path ruta = Ruta(nombre);
    if (!CarpetaExiste(ruta)) {
        throw ErrorRutaNoEncontrada();
    }
    std::error_code error;
    if (fs::is_directory(ruta, error)) {
        throw ErrorAcceso();
    }
    const std::string temporal = nombre + kSufijoTemporal;
    try {
        escribir(temporal);
        fs::rename(Ruta(temporal), ruta, error);
        if (error) {
            throw ErrorAcceso();
        }
    } catch (...) {
        Descartar(temporal);
        throw;
    }
}

void EscribirBytesArchivo(const std::string& nombre, std::string_view bytes) {
    ReemplazarArchivo(nombre, [bytes](const std::string& temporal) {
        std::ofstream archivo(Ruta(temporal), std::ios::binary | std::ios::trunc);
        archivo.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
        archivo.close();
        if (archivo.fail()) {
            throw ErrorAcceso();
        }
    });
}

}  // namespace kelvora
