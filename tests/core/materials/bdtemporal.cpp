#include "bdtemporal.h"

#include "core/app/contexto.h"
#include "core/materials/conexion.h"
#include "core/materials/creacionbd.h"

#include <atomic>
#include <unistd.h>

namespace kelvora::prueba {

namespace {

std::filesystem::path CarpetaNueva() {
    static std::atomic<int> siguiente = 0;
    return std::filesystem::temp_directory_path() /
           ("kelvora-materiales-" + std::to_string(getpid()) + "-" + std::to_string(siguiente++));
}

}  // namespace

BDTemporal::BDTemporal()
    : carpeta(CarpetaNueva()),
      archivo((carpeta / "BD" / "Kelvora.mdb").string()),
      cadena(CadenaConexionPara(archivo)) {
    std::filesystem::remove_all(carpeta);
    CrearBaseDatos(archivo, KELVORA_SEMILLA_BD);
}

BDTemporal::~BDTemporal() {
    std::error_code ignorado;
    std::filesystem::remove_all(carpeta, ignorado);
}

void BDTemporal::Ejecutar(const std::string& sql) const {
    Conexion conexion;
    conexion.Open(cadena);
    conexion.Execute(sql);
}

int BDTemporal::Contar(const std::string& sql) const {
    Conexion conexion;
    conexion.Open(cadena);
    return static_cast<int>(conexion.Consultar(sql).filas.size());
}

}  // namespace kelvora::prueba
