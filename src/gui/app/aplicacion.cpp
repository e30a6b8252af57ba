#include "gui/app/aplicacion.h"

#include "core/app/arranque.h"
#include "core/app/contexto.h"
#include "gui/app/mdikelvora.h"
#include "gui/platform/qtprompter.h"
#include "gui/platform/qtsettingsstore.h"
#include "gui/platform/texto.h"

#include <QApplication>
#include <QPalette>

namespace kelvora {

namespace {

Color ColorDe(const QColor& c) {
    return RGB(c.red(), c.green(), c.blue());
}

ColoresSistema ColoresDelSistema() {
    const QPalette paleta = QApplication::palette();
    return {ColorDe(paleta.color(QPalette::Button)), ColorDe(paleta.color(QPalette::ToolTipBase)),
            ColorDe(paleta.color(QPalette::Base))};
}

}  // namespace

int EjecutarAplicacion(int argc, char** argv) {
    QApplication aplicacion(argc, argv);
    QApplication::setApplicationName(QString::fromUtf8(kTituloAplicacion));
    EstablecerLocaleDesdeQt();

    ContextoAplicacion contexto;
    QtSettingsStore ajustes;
    QtPrompter prompter;
    if (!IniciarContexto(contexto, S(QApplication::applicationDirPath()), ajustes,
                         ColoresDelSistema(), prompter)) {
        return 0;
    }
    mdiKelvora principal(contexto);
    principal.show();
    return QApplication::exec();
}

}  // namespace kelvora
