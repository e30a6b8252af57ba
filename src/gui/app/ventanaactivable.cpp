#include "gui/app/ventanaactivable.h"

#include <QEvent>
#include <QMdiSubWindow>

namespace kelvora {

bool VentanaActivable::event(QEvent* evento) {
    if (evento->type() == QEvent::ParentChange) {
        if (auto* marco = qobject_cast<QMdiSubWindow*>(parentWidget())) {
            AlEntrarEnMarco(marco);
        }
    } else if (evento->type() == QEvent::WindowActivate && isWindow()) {
        Activar();
    }
    return QWidget::event(evento);
}

void VentanaActivable::AlEntrarEnMarco(QMdiSubWindow* marco) {
    connect(marco, &QMdiSubWindow::aboutToActivate, this, &VentanaActivable::Activar,
            Qt::UniqueConnection);
}

}  // namespace kelvora
