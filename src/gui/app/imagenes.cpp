#include "gui/app/imagenes.h"

#include <QIcon>
#include <QString>

// The pictures live in the static library, so the program must pull them in itself.
static void IniciarImagenes() {
    Q_INIT_RESOURCE(imagenes);
}

namespace kelvora {

void CargarImagenes() {
    IniciarImagenes();
}

namespace {

QPixmap Imagen(const char* nombre) {
    CargarImagenes();
    return QPixmap(QStringLiteral(":/imagenes/") + QString::fromLatin1(nombre));
}

}  // namespace

QPixmap Logotipo(int lado) {
    CargarImagenes();
    return QIcon(QStringLiteral(":/imagenes/logo.svg")).pixmap(lado, lado);
}

QPixmap Fondo() {
    return Imagen("fondo.svg");
}

}  // namespace kelvora
