#include "core/app/contexto.h"

#include <filesystem>
#include <system_error>

namespace kelvora {

namespace {

const std::string kSeparador(1, std::filesystem::path::preferred_separator);

}  // namespace

void DerivarRutas(ContextoAplicacion& contexto, const std::string& carpetaEjecutable) {
    std::string ruta = carpetaEjecutable;
    if (ruta.empty() || ruta.back() != kSeparador.back()) {
        ruta += kSeparador;
    }
    contexto.RutaAplicacion = ruta;
    contexto.RutaBD = ruta + "BD" + kSeparador;
    contexto.ArchivoBD = contexto.RutaBD + "Kelvora.mdb";
    contexto.RutaAyuda = ruta + "Ayuda" + kSeparador;
    contexto.ArchivoAyuda = contexto.RutaAyuda + "Kelvora.hlp";
    contexto.RutaPDF = ruta + "Ayuda" + kSeparador + "PDF" + kSeparador;
    contexto.RutaDatos = ruta + "Datos y Resultados";
    contexto.CadenaConexion = CadenaConexionPara(contexto.ArchivoBD);
}

std::string CadenaConexionPara(const std::string& archivoBD) {
    return "Provider=Microsoft.Jet.OLEDB.4.0; Data Source=" + archivoBD +
           ";Jet OLEDB:Database Password=velamoratinco";
}

bool ArchivoExiste(const std::string& ruta) {
    std::error_code error;
    return !ruta.empty() && std::filesystem::exists(ruta, error);
}

}  // namespace kelvora
