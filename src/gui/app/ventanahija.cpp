#include "gui/app/ventanahija.h"

#include <QWidget>

namespace kelvora {

QString TagDe(const QWidget* ventana) {
    return ventana->property(kPropiedadTag).toString();
}

QString FileNameDe(const QWidget* ventana) {
    return ventana->property(kPropiedadFileName).toString();
}

int FileStateDe(const QWidget* ventana) {
    return ventana->property(kPropiedadFileState).toInt();
}

}  // namespace kelvora
