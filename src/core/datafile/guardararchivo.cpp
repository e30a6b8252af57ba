#include "core/datafile/guardararchivo.h"

#include "core/app/recientes.h"
#include "core/datafile/archivobytes.h"
#include "core/datafile/escrituradatos.h"
#include "core/datafile/listadogrilla.h"
#include "core/runtime/codificacion.h"
#include "core/runtime/runtimeerror.h"

namespace kelvora {

namespace {

bool EsVentanaDatos(int tag) {
    return tag == 1 || tag == 5 || tag == 9 || tag == 12;
}

bool EsListado(int tag) {
    return (tag >= 2 && tag <= 4) || (tag >= 6 && tag <= 8) || tag == 10 || tag == 11 ||
           tag == 13 || tag == 14 || tag == 16;
}

constexpr int kGrafica = 15;

void GuardarDatos(VentanaArchivo& ventana, int tag, const std::string& nombre,
                  SettingsStore& ajustes, const std::function<void(const std::string&)>& reciente) {
    const classUnidades vacia;
    const classUnidades* unit = ventana.Unit();
    const auto lineas = LineasDatosArchivo(tag, ventana.TipoAnalisis(), unit ? *unit : vacia);
    EscribirBytesArchivo(nombre, BytesArchivoTexto(lineas));
    if (reciente) {
        reciente(nombre);
    } else {
        AgregarArchivoReciente(ajustes, nombre);
    }
}

void GuardarImagen(const VentanaArchivo& ventana, const std::string& nombre) {
    ReemplazarArchivo(nombre,
                      [&ventana](const std::string& temporal) { ventana.GuardarImagen(temporal); });
}

void Guardar(VentanaArchivo& ventana, const std::string& nombre, SettingsStore& ajustes,
             const std::function<void(const std::string&)>& reciente) {
    const int tag = NumeroTag(ventana.Tag());
    if (EsVentanaDatos(tag)) {
        GuardarDatos(ventana, tag, nombre, ajustes, reciente);
    } else if (tag == kGrafica) {
        GuardarImagen(ventana, nombre);
    } else if (EsListado(tag)) {
        EscribirBytesArchivo(nombre, AWindows1252(ListadoGrilla(ventana.GrillaListado(), tag)));
    } else {
        EscribirBytesArchivo(nombre, "");
    }
}

}  // namespace

bool GuardarArchivo(VentanaArchivo& ventana, const std::string& nombre, Prompter& prompter,
                    SettingsStore& ajustes,
                    const std::function<void(const std::string&)>& agregarReciente) {
    try {
        Guardar(ventana, nombre, ajustes, agregarReciente);
        return true;
    } catch (const RuntimeError& error) {
        Mensaje mensaje;
        mensaje.texto = "Se ha producido el siguiente error: " + error.description;
        mensaje.icono = Icono::Critico;
        mensaje.titulo = "Error";
        prompter.MsgBox(mensaje);
        return false;
    }
}

}  // namespace kelvora
