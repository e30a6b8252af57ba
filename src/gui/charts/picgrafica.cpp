#include "gui/charts/picgrafica.h"

#include <QMouseEvent>
#include <QPainter>

namespace kelvora {

namespace {

constexpr double kMmPorPulgada = 25.4;

}  // namespace

PicGrafica::PicGrafica(QWidget* padre) : QWidget(padre) {
    setObjectName(QStringLiteral("picGrafica"));
    setMouseTracking(true);
    setAttribute(Qt::WA_OpaquePaintEvent);
    setMinimumSize(200, 150);
}

double PicGrafica::PixelesPorMm() const {
    return logicalDpiX() / kMmPorPulgada;
}

double PicGrafica::AnchoMm() const {
    return width() / PixelesPorMm();
}

double PicGrafica::AltoMm() const {
    return height() / PixelesPorMm();
}

void PicGrafica::PonerImagen(const QImage& imagen) {
    mImagen = imagen;
    update();
}

void PicGrafica::PonerMensaje(const QString& mensaje) {
    mMensaje = mensaje;
    update();
}

void PicGrafica::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), Qt::white);
    if (!mMensaje.isEmpty()) {
        pintor.setPen(Qt::black);
        pintor.drawText(rect().adjusted(20, 20, -20, -20), Qt::AlignCenter | Qt::TextWordWrap,
                        mMensaje);
        return;
    }
    pintor.drawImage(QPoint(0, 0), mImagen);
}

void PicGrafica::mouseMoveEvent(QMouseEvent* evento) {
    const QPointF punto = evento->position();
    emit Movido(punto.x() / PixelesPorMm(), punto.y() / PixelesPorMm());
    QWidget::mouseMoveEvent(evento);
}

void PicGrafica::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    emit Redimensionado();
}

}  // namespace kelvora
