#include "core/datafile/guardarventana.h"

#include "core/datafile/guardararchivo.h"
#include "core/datafile/leerarchivo.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

namespace kelvora {

namespace {

constexpr int16_t kCambiado = 2;
constexpr int16_t kGuardado = 3;

std::optional<std::string> NombreParaGuardar(VentanaArchivo& ventana, bool comoNuevo,
                                             EntornoArchivos& entorno, DialogosArchivo& dialogos) {
    if (!ventana.FileName().empty() && !comoNuevo) {
        return ventana.FileName();
    }
    const std::optional<std::string> nombre =
            dialogos.Guardar(OpcionesGuardar(ventana.Tag(), entorno.contexto.RutaDatos));
    if (!nombre || nombre->empty()) {
        return std::nullopt;
    }
    return Trim(*nombre);
}

bool Guardar(VentanaArchivo& ventana, bool comoNuevo, EntornoArchivos& entorno,
             DialogosArchivo& dialogos) {
    const std::optional<std::string> nombre =
            NombreParaGuardar(ventana, comoNuevo, entorno, dialogos);
    if (!nombre || !GuardarArchivo(ventana, *nombre, entorno.prompter, entorno.ajustes,
                                   entorno.AgregarReciente)) {
        return false;
    }
    ventana.SetFileState(kGuardado);
    ventana.SetFileName(*nombre);
    return true;
}

std::string NombreEnPregunta(const VentanaArchivo& ventana) {
    const std::string archivo = ventana.FileName();
    return archivo.empty() ? "'" + ventana.Caption() + "'" : "el archivo '" + archivo + "'";
}

}  // namespace

OpcionesDialogo OpcionesGuardar(std::string_view tag, const std::string& RutaDatos) {
    const int16_t numero = NumeroTag(tag);
    if (numero == 15) {
        return {"Mapa de Bits (*.bmp)|*.bmp|Todos los Archivos (*.*)|*.*", "bmp", RutaDatos};
    }
    if (numero == 1 || numero == 5 || numero == 9 || numero == 12) {
        return {kFiltroDatos, "adk", RutaDatos};
    }
    return {"Archivos de Texto (*.txt)|*.txt|Todos los Archivos (*.*)|*.*", "txt", RutaDatos};
}

bool GuardarVentana(VentanaArchivo& ventana, bool comoNuevo, EntornoArchivos& entorno,
                    DialogosArchivo& dialogos) {
    try {
        return Guardar(ventana, comoNuevo, entorno, dialogos);
    } catch (const RuntimeError& error) {
        Mensaje mensaje;
        mensaje.texto = "Error inesperado: " + error.description;
        mensaje.icono = Icono::Critico;
        mensaje.titulo = "Error";
        entorno.prompter.MsgBox(mensaje);
        return false;
    }
}

bool PreguntarGuardar(VentanaArchivo& ventana, EntornoArchivos& entorno,
                      DialogosArchivo& dialogos) {
    const bool preguntar =
            ventana.FileState() == kCambiado &&
            (!ventana.FileName().empty() || entorno.contexto.PreguntarAntesDeCerrarVentana);
    if (!preguntar) {
        return true;
    }
    Mensaje mensaje;
    mensaje.texto = "Los datos en " + NombreEnPregunta(ventana) + " han cambiado." + kSaltoDeLinea +
                    kSaltoDeLinea + "¿Desea guardar los cambios?";
    mensaje.botones = Botones::SiNoCancelar;
    mensaje.icono = Icono::Pregunta;
    mensaje.titulo = "Advertencia";
    switch (entorno.prompter.MsgBox(mensaje)) {
        case Respuesta::Cancelar:
            return false;
        case Respuesta::Si:
            return GuardarVentana(ventana, false, entorno, dialogos);
        default:
            return true;
    }
}

}  // namespace kelvora
