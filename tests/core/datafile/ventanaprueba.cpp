#include "ventanaprueba.h"

#include "core/runtime/runtimeerror.h"

#include <fstream>
#include <iterator>
#include <random>
#include <sstream>

namespace kelvora::prueba {

void VentanaPrueba::GuardarImagen(const std::string& archivo) const {
    if (imagen.empty()) {
        throw RuntimeError(482, "Error de impresora");
    }
    EscribirBytes(archivo, imagen);
}

std::optional<std::string> DialogosGuion::Siguiente() {
    if (nombres.empty()) {
        return std::nullopt;
    }
    auto nombre = nombres.front();
    nombres.pop_front();
    return nombre;
}

std::optional<std::string> DialogosGuion::Abrir(const OpcionesDialogo& opciones) {
    abiertos.push_back(opciones);
    return Siguiente();
}

std::optional<std::string> DialogosGuion::Guardar(const OpcionesDialogo& opciones) {
    guardados.push_back(opciones);
    return Siguiente();
}

CarpetaTemporal::CarpetaTemporal() {
    std::random_device azar;
    carpeta = std::filesystem::temp_directory_path() /
              ("kelvora-datafile-" + std::to_string(azar()) + std::to_string(azar()));
    std::filesystem::create_directories(carpeta);
}

CarpetaTemporal::~CarpetaTemporal() {
    std::error_code error;
    std::filesystem::permissions(carpeta, std::filesystem::perms::owner_all,
                                 std::filesystem::perm_options::add, error);
    std::filesystem::remove_all(carpeta, error);
}

std::string CarpetaTemporal::Ruta(const std::string& nombre) const {
    return (carpeta / nombre).string();
}

std::string LeerBytes(const std::string& ruta) {
    std::ifstream archivo(ruta, std::ios::binary);
    return {std::istreambuf_iterator<char>(archivo), std::istreambuf_iterator<char>()};
}

void EscribirBytes(const std::string& ruta, const std::string& bytes) {
    std::ofstream(ruta, std::ios::binary) << bytes;
}

std::vector<std::string> Volcado(const classUnidades& lista) {
    std::vector<std::string> registros;
    for (int16_t i = 1; i <= lista.Count(); ++i) {
        const Variable v = lista.getVariableRec(i);
        std::ostringstream texto;
        texto << v.Name << "=" << v.Value << " " << v.Unit;
        registros.push_back(texto.str());
    }
    return registros;
}

}  // namespace kelvora::prueba
