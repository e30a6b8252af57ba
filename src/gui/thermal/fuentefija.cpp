#include "gui/thermal/fuentefija.h"

#include <QStringList>

namespace kelvora {

QFont FuenteFija(double puntos) {
    QFont fuente;
    fuente.setFamilies({QStringLiteral("Courier New"), QStringLiteral("Liberation Mono")});
    fuente.setStyleHint(QFont::TypeWriter);
    fuente.setFixedPitch(true);
    fuente.setPointSizeF(puntos);
    return fuente;
}

}  // namespace kelvora
