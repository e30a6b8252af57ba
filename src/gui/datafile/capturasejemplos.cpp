#include "gui/datafile/capturasejemplos.h"

#include "core/app/contexto.h"
#include "gui/app/fabricaprograma.h"
#include "gui/app/mdikelvora.h"

#include <QApplication>
#include <QDir>
#include <QPushButton>

namespace kelvora {

std::unique_ptr<QWidget> MarcoCapturas(ContextoAplicacion& contexto, SettingsStore& ajustes,
                                       Clock& reloj, Prompter& prompter) {
    DerivarRutas(contexto, QApplication::applicationDirPath().toStdString());
    contexto.Colores = LlenarColores(ColoresSistema{});
    auto marco = std::make_unique<mdiKelvora>(contexto, ajustes, reloj);
    marco->PonerFabrica(CrearFabrica(*marco, contexto, ajustes, prompter));
    marco->resize(1000, 760);
    return marco;
}

std::function<QWidget*(QWidget&)> AbrirEjemplo(const char* archivo, bool calcular) {
    return [archivo, calcular](QWidget& ventana) -> QWidget* {
        auto& marco = static_cast<mdiKelvora&>(ventana);
        marco.AbrirArchivoInicio(
                QDir::current().filePath(QString::fromUtf8(archivo)).toStdString());
        QWidget* hija = marco.VentanaActiva();
        if (hija != nullptr && calcular) {
            hija->findChild<QPushButton*>(QStringLiteral("cmdAceptar"))->click();
            hija = marco.VentanaActiva();
        }
        return hija != nullptr ? hija->parentWidget() : &ventana;
    };
}

}  // namespace kelvora
