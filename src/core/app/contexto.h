#pragma once

#include "core/app/colores.h"
#include "core/units/unidades.h"

#include <cstdint>
#include <string>

namespace kelvora {

/// Page settings and report font, loaded and saved with the options.
struct ConfiguracionPagina {
    float MargenSuperior = 15;
    float MargenInferior = 15;
    float MargenDerecho = 15;
    float MargenIzquierdo = 15;
    int32_t Justificar = 2;
    int32_t Orientacion = 1;
    int32_t TamanoPapel = 1;
    std::string FuenteNombre = "Courier New";
    float FuenteTamano = 10;
    bool FuenteNegrita = false;
    bool FuenteCursiva = false;
};

/// The application context: paths derived from the executable's folder, options, colours.
struct ContextoAplicacion {
    std::string RutaAplicacion;
    std::string RutaBD;
    std::string ArchivoBD;
    std::string RutaAyuda;
    std::string ArchivoAyuda;
    std::string RutaPDF;
    std::string RutaDatos;
    std::string CadenaConexion;
    bool BDDisponible = false;
    /// The list the file reader fills before it hands it to a new window.
    classUnidades Unidades;
    bool ConversionAutomatica = false;
    bool PreguntarAntesDeCerrarVentana = true;
    bool LeerEmisividadBD = true;
    bool SplashVisible = false;
    TablaColores Colores{};
    ConfiguracionPagina Pagina;
};

/// The product's name: application title of the settings store and of every message box.
inline constexpr const char* kTituloAplicacion = "Kelvora";

/// Derives every path from the executable's folder (steps 4 to 6 and 9 of the start-up).
void DerivarRutas(ContextoAplicacion& contexto, const std::string& carpetaEjecutable);

/// The database connection string for a database file.
std::string CadenaConexionPara(const std::string& archivoBD);

/// True when the path names an existing file or folder.
bool ArchivoExiste(const std::string& ruta);

}  // namespace kelvora
