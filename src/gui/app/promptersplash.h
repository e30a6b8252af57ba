#pragma once

#include "core/platform/prompter.h"

#include <QPointer>
#include <QWidget>

namespace kelvora {

struct ContextoAplicacion;

/// A prompter that keeps the splash, which stays on top of everything, out of the way of
/// its boxes: hidden while a box is up and shown again after, if it is still loaded.
class PrompterSplash : public Prompter {
public:
    PrompterSplash(Prompter& prompter, const ContextoAplicacion& contexto, QWidget* splash);

    Respuesta MsgBox(const Mensaje& mensaje) override;
    std::optional<std::string> InputBox(const Entrada& entrada) override;

private:
    void Ocultar();
    void Mostrar();

    Prompter& mPrompter;
    const ContextoAplicacion& mContexto;
    QPointer<QWidget> mSplash;
};

}  // namespace kelvora
