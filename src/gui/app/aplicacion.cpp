#include "gui/app/aplicacion.h"

#include "core/app/arranque.h"
#include "core/app/contexto.h"
#include "core/runtime/runtimeerror.h"
#include "gui/app/fabricaprograma.h"
#include "gui/app/frmsplash.h"
#include "gui/app/mdikelvora.h"
#include "gui/app/promptersplash.h"
#include "gui/app/relojsistema.h"
#include "gui/app/traspasoinstancia.h"
#include "gui/platform/qtprompter.h"
#include "gui/platform/qtsettingsstore.h"
#include "gui/platform/texto.h"

#include <QApplication>
#include <QPalette>

#include <exception>
#include <new>

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

// What a handler lets escape ends in the program's own message instead of ending the process.
class AplicacionKelvora : public QApplication {
public:
    using QApplication::QApplication;

    void PonerPrompter(Prompter* prompter) { mPrompter = prompter; }

    bool notify(QObject* receptor, QEvent* evento) override {
        try {
            return QApplication::notify(receptor, evento);
        } catch (const RuntimeError& error) {
            Informar(error.description);
        } catch (const std::bad_alloc&) {
            Informar("Memoria insuficiente");
        } catch (const std::exception& error) {
            Informar(error.what());
        }
        return false;
    }

private:
    void Informar(const std::string& descripcion) {
        if (mPrompter == nullptr) {
            return;
        }
        Mensaje mensaje;
        mensaje.texto = "Error inesperado: " + descripcion;
        mensaje.icono = Icono::Exclamacion;
        mensaje.titulo = kTituloAplicacion;
        mPrompter->MsgBox(mensaje);
    }

    Prompter* mPrompter = nullptr;
};

// The arguments as one line, as the command line reached the program.
std::string LineaComandos() {
    QStringList argumentos = QApplication::arguments();
    argumentos.removeFirst();
    return S(argumentos.join(QLatin1Char(' ')));
}

void MostrarSplash(frmSplash& splash) {
    splash.show();
    splash.raise();
    splash.activateWindow();
    QApplication::setOverrideCursor(Qt::WaitCursor);
    QApplication::processEvents();
}

}  // namespace

int EjecutarAplicacion(int argc, char** argv) {
    AplicacionKelvora aplicacion(argc, argv);
    QApplication::setApplicationName(QString::fromUtf8(kTituloAplicacion));
    EstablecerLocaleDesdeQt();

    const std::string archivo = ArchivoDeLineaComandos(LineaComandos());
    const QString canal = CanalTraspaso();
    if (!archivo.empty() && EnviarArchivoInstanciaPrevia(canal, archivo)) {
        return 0;
    }

    ContextoAplicacion contexto;
    frmSplash splash(contexto);
    MostrarSplash(splash);
    QtSettingsStore ajustes;
    QtPrompter cajas;
    PrompterSplash prompter(cajas, contexto, &splash);
    aplicacion.PonerPrompter(&prompter);
    if (!IniciarContexto(contexto, S(QApplication::applicationDirPath()), ajustes,
                         ColoresDelSistema(), prompter)) {
        QApplication::restoreOverrideCursor();
        return 0;
    }

    RelojSistema reloj;
    mdiKelvora principal(contexto, ajustes, reloj);
    principal.PonerSplash(&splash);
    principal.PonerFabrica(CrearFabrica(principal, contexto, ajustes, prompter));
    principal.show();
    // The frame's receiver for file names handed over by a second instance.
    ReceptorTraspaso receptor(canal, [&principal](const std::string& recibido) {
        principal.AbrirArchivoInicio(recibido);
    });
    receptor.Escuchar();
    QObject::connect(&aplicacion, &QGuiApplication::commitDataRequest, &principal,
                     &mdiKelvora::CerrarSinPreguntas);

    if (!archivo.empty()) {
        principal.AbrirArchivoInicio(archivo);
    }
    // Raised as well as repainted: without a window manager to keep it on top, the frame
    // shown after it would cover it.
    if (contexto.SplashVisible) {
        splash.raise();
        splash.update();
    }
    QApplication::restoreOverrideCursor();
    const int salida = QApplication::exec();
    receptor.Detener();
    aplicacion.PonerPrompter(nullptr);
    return salida;
}

}  // namespace kelvora
