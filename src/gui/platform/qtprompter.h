#pragma once

#include "core/platform/prompter.h"

#include <functional>

class QWidget;

namespace kelvora {

/// Message and input boxes as QMessageBox and QInputDialog, with Spanish buttons.
class QtPrompter : public Prompter {
public:
    using AbrirAyuda = std::function<void(int contexto)>;

    explicit QtPrompter(QWidget* padre = nullptr, AbrirAyuda ayuda = {});

    Respuesta MsgBox(const Mensaje& mensaje) override;
    std::optional<std::string> InputBox(const Entrada& entrada) override;

private:
    QWidget* mPadre;
    AbrirAyuda mAyuda;
};

}  // namespace kelvora
