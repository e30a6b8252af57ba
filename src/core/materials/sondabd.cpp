#include "core/materials/sondabd.h"

#include "core/materials/conexion.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

namespace kelvora {

std::string MensajeErrorConexion(const std::string& archivoBD, const std::string& descripcion) {
    const std::string salto = kSaltoDeLinea;
    return "Se ha generado un error al intentar conectarse a la Base de Datos '" + archivoBD +
           "':" + salto + descripcion + salto + salto + salto +
           "Haga click en Aceptar para seguir con la aplicación. Algunas operaciones serán "
           "desactivadas del Programa." +
           salto + "Haga click en Cancelar para salir de la aplicación." + salto +
           "Haga click en Ayuda para obtener más información.";
}

bool ProbarBaseDatos(ContextoAplicacion& contexto, Prompter& prompter) {
    contexto.BDDisponible = true;
    Conexion sonda;
    try {
        sonda.Open(contexto.CadenaConexion);
        return true;
    } catch (const RuntimeError& error) {
        contexto.BDDisponible = false;
        Mensaje mensaje;
        mensaje.texto = MensajeErrorConexion(contexto.ArchivoBD, error.description);
        mensaje.botones = Botones::AceptarCancelar;
        mensaje.icono = Icono::Informacion;
        mensaje.titulo = kTituloAplicacion;
        mensaje.contextoAyuda = kAyudaErrorConexion;
        mensaje.modalSistema = true;
        return prompter.MsgBox(mensaje) != Respuesta::Cancelar;
    }
}

}  // namespace kelvora
