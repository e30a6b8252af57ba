#include "gui/app/promptersplash.h"

#include "core/app/contexto.h"

namespace kelvora {

PrompterSplash::PrompterSplash(Prompter& prompter, const ContextoAplicacion& contexto,
                               QWidget* splash)
    : mPrompter(prompter), mContexto(contexto), mSplash(splash) {
}

Respuesta PrompterSplash::MsgBox(const Mensaje& mensaje) {
    Ocultar();
    const Respuesta respuesta = mPrompter.MsgBox(mensaje);
    Mostrar();
    return respuesta;
}

std::optional<std::string> PrompterSplash::InputBox(const Entrada& entrada) {
    Ocultar();
    auto respuesta = mPrompter.InputBox(entrada);
    Mostrar();
    return respuesta;
}

void PrompterSplash::Ocultar() {
    if (mContexto.SplashVisible && mSplash) {
        mSplash->hide();
    }
}

void PrompterSplash::Mostrar() {
    if (mContexto.SplashVisible && mSplash) {
        mSplash->show();
    }
}

}  // namespace kelvora
