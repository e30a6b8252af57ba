#pragma once

#include "core/app/contexto.h"
#include "core/platform/clock.h"
#include "core/platform/prompter.h"
#include "core/platform/settingsmemoria.h"
#include "core/platform/settingsstore.h"

#include <QWidget>

#include <functional>
#include <memory>
#include <vector>

namespace kelvora {

/// A fixed date, so that every capture shows the same day.
class RelojCaptura : public Clock {
public:
    Fecha Hoy() override { return {2024, 3, 5}; }
};

/// What the windows of a capture are built with.
struct EntornoCaptura {
    ContextoAplicacion contexto;
    SettingsEnMemoria ajustes;
    RelojCaptura reloj;
    std::unique_ptr<Prompter> prompter;
};

/// One picture: the PNG's name (without extension) and how to build the window. The window
/// returned is shown, laid out and grabbed; `preparar`, when given, runs once it is shown
/// and returns the widget to grab instead (a menu it opened, a dialog it raised).
struct Captura {
    const char* archivo;
    std::function<std::unique_ptr<QWidget>(EntornoCaptura&)> crear;
    std::function<QWidget*(QWidget&)> preparar;
};

/// Every window of the program that has a picture in the documentation.
const std::vector<Captura>& Capturas();

}  // namespace kelvora
