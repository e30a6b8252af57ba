#include "cli/prompterconsola.h"

#include <iostream>

namespace kelvora::cli {

PrompterConsola::PrompterConsola(bool imprimir) : mImprimir(imprimir) {
}

Respuesta PrompterConsola::MsgBox(const Mensaje& mensaje) {
    mMostrados.push_back(mensaje);
    if (mImprimir) {
        std::cerr << mensaje.texto << '\n';
    }
    return RespuestaQueSigue(mensaje.botones);
}

std::optional<std::string> PrompterConsola::InputBox(const Entrada& entrada) {
    if (mImprimir) {
        std::cerr << entrada.mensaje << '\n';
    }
    return entrada.valorInicial;
}

}  // namespace kelvora::cli
