#include "gui/platform/aplicaciongui.h"

#include <QGuiApplication>

#include <memory>

namespace kelvora {

void AsegurarAplicacionGui() {
    if (QGuiApplication::instance() != nullptr) {
        return;
    }
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    static int argc = 1;
    static char nombre[] = "kelvora";
    static char* argv[] = {nombre, nullptr};
    static const auto aplicacion = std::make_unique<QGuiApplication>(argc, argv);
}

}  // namespace kelvora
