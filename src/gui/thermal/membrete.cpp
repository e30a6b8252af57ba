#include "gui/thermal/membrete.h"

#include "core/app/acercade.h"
#include "gui/app/imagenes.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QPixmapCache>
#include <QVBoxLayout>

namespace kelvora {

namespace {

constexpr int kLadoLogo = 40;
constexpr int kLineas = 3;

// Drawing the logo from its picture costs more than the rest of the strip: it is drawn once.
QPixmap Logo() {
    const QString clave = QStringLiteral("kelvora-membrete");
    QPixmap logo;
    if (!QPixmapCache::find(clave, &logo)) {
        logo = Logotipo(kLadoLogo);
        QPixmapCache::insert(clave, logo);
    }
    return logo;
}

}  // namespace

Membrete::Membrete(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("picInfoComercial"));
    auto* logo = new QLabel(this);
    logo->setObjectName(QStringLiteral("picLogo"));
    logo->setPixmap(Logo());
    auto* lineas = new QVBoxLayout;
    lineas->setSpacing(0);
    for (int i = 0; i < kLineas; ++i) {
        auto* linea =
                new QLabel(QString::fromUtf8(kLineasFabricante[static_cast<size_t>(i)]), this);
        linea->setObjectName(QStringLiteral("Label%1").arg(i + 1));
        if (i == 0) {
            QFont negrita = linea->font();
            negrita.setBold(true);
            linea->setFont(negrita);
        }
        lineas->addWidget(linea);
    }
    auto* fila = new QHBoxLayout(this);
    fila->setContentsMargins(0, 0, 0, 0);
    fila->addWidget(logo);
    fila->addLayout(lineas, 1);
}

}  // namespace kelvora
