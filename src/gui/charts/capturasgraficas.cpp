#include "gui/charts/capturasgraficas.h"

#include "gui/app/mdikelvora.h"
#include "gui/charts/frmgraficas.h"
#include "gui/datafile/capturasejemplos.h"

#include <QMenu>
#include <QPushButton>
#include <QTabWidget>

namespace kelvora {

std::function<QWidget*(QWidget&)> GraficaEjemplo(const char* archivo, int tipo, int pestana) {
    return [archivo, tipo, pestana](QWidget& ventana) -> QWidget* {
        QWidget* datos = AbrirEjemplo(archivo, false)(ventana);
        auto* boton = datos->findChild<QPushButton*>(QStringLiteral("cmdGraficar"));
        auto* menu = ventana.findChild<QMenu*>(QStringLiteral("mnuATGraficar"));
        if (boton == nullptr || menu == nullptr) {
            return datos;
        }
        boton->click();
        menu->actions().at(tipo - 1)->trigger();
        menu->hide();
        auto* grafica =
                qobject_cast<frmGraficas*>(static_cast<mdiKelvora&>(ventana).VentanaActiva());
        if (grafica == nullptr) {
            return datos;
        }
        grafica->findChild<QTabWidget*>(QStringLiteral("tbs"))->setCurrentIndex(pestana);
        return grafica->parentWidget();
    };
}

}  // namespace kelvora
