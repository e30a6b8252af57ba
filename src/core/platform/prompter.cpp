#include "core/platform/prompter.h"

namespace kelvora {

std::string NombreBotones(const Mensaje& mensaje) {
    std::string nombres;
    switch (mensaje.botones) {
        case Botones::Aceptar:
            nombres = "Aceptar";
            break;
        case Botones::AceptarCancelar:
            nombres = "Aceptar,Cancelar";
            break;
        case Botones::AnularReintentarIgnorar:
            nombres = "Anular,Reintentar,Ignorar";
            break;
        case Botones::SiNoCancelar:
            nombres = "Sí,No,Cancelar";
            break;
        case Botones::SiNo:
            nombres = "Sí,No";
            break;
        case Botones::ReintentarCancelar:
            nombres = "Reintentar,Cancelar";
            break;
    }
    return mensaje.contextoAyuda != 0 ? nombres + ",Ayuda" : nombres;
}

Respuesta RespuestaQueSigue(Botones botones) {
    switch (botones) {
        case Botones::SiNoCancelar:
        case Botones::SiNo:
            return Respuesta::Si;
        case Botones::AnularReintentarIgnorar:
        case Botones::ReintentarCancelar:
            return Respuesta::Reintentar;
        default:
            return Respuesta::Aceptar;
    }
}

std::string NombreIcono(Icono icono) {
    switch (icono) {
        case Icono::Critico:
            return "critico";
        case Icono::Pregunta:
            return "pregunta";
        case Icono::Exclamacion:
            return "exclamacion";
        case Icono::Informacion:
            return "informacion";
        default:
            return "ninguno";
    }
}

}  // namespace kelvora
