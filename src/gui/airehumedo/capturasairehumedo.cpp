#include "gui/airehumedo/capturasairehumedo.h"

#include "gui/airehumedo/aperturaairehumedo.h"
#include "gui/airehumedo/frmairehumedo.h"
#include "gui/datafile/capturasejemplos.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLineEdit>

namespace kelvora {

std::function<QWidget*(QWidget&)> AireHumedoCaptura() {
    return [](QWidget& marco) -> QWidget* {
        AbrirEjemplo("data/ejemplos/tavelas-poliuretano.adk", false)(marco);
        auto* apertura = marco.findChild<AperturaAireHumedo*>();
        apertura->AireHumedo();
        frmAireHumedo* ventana = apertura->Ventana();
        for (const auto& [caja, texto] : {std::pair{"txtSeco", "86"}, {"txtHumedad", "65"}}) {
            auto* destino = ventana->findChild<QLineEdit*>(QString::fromLatin1(caja));
            destino->selectAll();
            for (const QChar caracter : QString::fromLatin1(texto)) {
                QKeyEvent tecla(QEvent::KeyPress, 0, Qt::NoModifier, QString(caracter));
                QCoreApplication::sendEvent(destino, &tecla);
            }
        }
        return ventana->parentWidget();
    };
}

}  // namespace kelvora
