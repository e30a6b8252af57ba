#include "core/datafile/archivobytes.h"

#include "core/platform/disco.h"
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

RuntimeError ErrorNoEsArchivo() {
    return {75,
            "El nombre no corresponde a un archivo común (es una carpeta, un dispositivo o "
            "una tubería)"};
}

RuntimeError ErrorDemasiadoGrande() {
    return {75, "El archivo es demasiado grande para ser un archivo de datos"};
}

RuntimeError ErrorSoloLectura(const std::string& nombre) {
    return {75, "El archivo '" + nombre +
                        "' es de solo lectura o no tiene permiso para modificarlo. Guárdelo con "
                        "otro nombre."};
}

fs::path Ruta(const std::string& utf8) {
    return fs::path(std::u8string(utf8.begin(), utf8.end()));
}

std::string Utf8(const fs::path& ruta) {
    const std::u8string texto = ruta.u8string();
    return {texto.begin(), texto.end()};
}

// A symbolic link is written through: the file it leads to is the one replaced.
fs::path Destino(fs::path ruta) {
    constexpr int kMaximoEnlaces = 40;
    std::error_code error;
    for (int i = 0; i < kMaximoEnlaces && fs::is_symlink(fs::symlink_status(ruta, error)); ++i) {
        const fs::path enlace = fs::read_symlink(ruta, error);
        if (error) {
            break;
        }
        ruta = enlace.is_absolute() ? enlace : ruta.parent_path() / enlace;
    }
    return ruta;
}

// A file that no one may write is read-only even for a user whom the system lets write it;
// otherwise opening for appending, which writes nothing, fails exactly when writing would.
bool SePuedeEscribir(const fs::path& ruta, fs::perms permisos) {
    constexpr fs::perms kEscritura =
            fs::perms::owner_write | fs::perms::group_write | fs::perms::others_write;
    return (permisos & kEscritura) != fs::perms::none &&
           std::ofstream(ruta, std::ios::binary | std::ios::app).is_open();
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
    const fs::file_status estado = fs::status(ruta, error);
    if (!fs::exists(estado)) {
        throw ErrorArchivoNoEncontrado();
    }
    // A device or a pipe would be read forever, or block before the first byte.
    if (!fs::is_regular_file(estado)) {
        throw ErrorNoEsArchivo();
    }
    if (fs::file_size(ruta, error) > kTamanoMaximoLectura) {
        throw ErrorDemasiadoGrande();
    }
    std::ifstream archivo(ruta, std::ios::binary);
    if (!archivo) {
        throw ErrorAcceso();
    }
    std::string bytes(kTamanoMaximoLectura + 1, '\0');
    archivo.read(bytes.data(), static_cast<std::streamsize>(bytes.size()));
    if (archivo.bad()) {
        throw ErrorAcceso();
    }
    bytes.resize(static_cast<size_t>(archivo.gcount()));
    if (bytes.size() > kTamanoMaximoLectura) {
        throw ErrorDemasiadoGrande();
    }
    return bytes;
}

void ReemplazarArchivo(const std::string& nombre,
                       const std::function<void(const std::string& temporal)>& escribir) {
    const fs::path ruta = Destino(Ruta(nombre));
    if (!CarpetaExiste(ruta)) {
        throw ErrorRutaNoEncontrada();
    }
    std::error_code error;
    const fs::file_status anterior = fs::status(ruta, error);
    if (fs::is_directory(anterior)) {
        throw ErrorAcceso();
    }
    if (fs::exists(anterior) && !SePuedeEscribir(ruta, anterior.permissions())) {
        throw ErrorSoloLectura(nombre);
    }
    const fs::path temporal = fs::path(ruta) += kSufijoTemporal;
    const std::string temporalUtf8 = Utf8(temporal);
    try {
        escribir(temporalUtf8);
        if (fs::exists(anterior)) {
            fs::permissions(temporal, anterior.permissions(), fs::perm_options::replace, error);
        }
        if (!SincronizarConDisco(temporal)) {
            throw ErrorAcceso();
        }
        fs::rename(temporal, ruta, error);
        if (error) {
            throw ErrorAcceso();
        }
        SincronizarConDisco(ruta.parent_path().empty() ? fs::path(".") : ruta.parent_path());
    } catch (...) {
        Descartar(temporalUtf8);
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
