#include "gui/reports/muestrapagina.h"

#include "core/reports/configurarpagina.h"
#include "gui/platform/texto.h"

#include <QMouseEvent>
#include <QPainter>

#include <algorithm>

namespace kelvora {

namespace {

constexpr double kMedioLado = 200;

}  // namespace

MuestraPagina::MuestraPagina(QWidget* padre) : QWidget(padre) {
    setMouseTracking(true);
    setMinimumSize(200, 200);
}

void MuestraPagina::Dibujar(const ConfiguracionPagina& pagina) {
    mPagina = pagina;
    update();
}

double MuestraPagina::Escala() const {
    return std::min(width(), height()) / (2 * kMedioLado);
}

QPointF MuestraPagina::Centro() const {
    return {width() / 2.0, height() / 2.0};
}

void MuestraPagina::paintEvent(QPaintEvent*) {
    QPainter pintor(this);
    pintor.fillRect(rect(), palette().color(QPalette::Mid));
    pintor.translate(Centro());
    pintor.scale(Escala(), -Escala());
    const std::vector<LineaMuestra> lineas = DibujoMuestra(mPagina);
    if (lineas.size() >= 4) {
        pintor.fillRect(
                QRectF(QPointF(lineas[0].x1, lineas[0].y1), QPointF(lineas[1].x2, lineas[1].y2)),
                Qt::white);
    }
    pintor.setPen(QPen(Qt::darkGray, 0));
    for (const LineaMuestra& l : lineas) {
        pintor.drawLine(QLineF(l.x1, l.y1, l.x2, l.y2));
    }
}

void MuestraPagina::mouseMoveEvent(QMouseEvent* evento) {
    const QPointF p = (evento->position() - Centro()) / Escala();
    setToolTip(Q(ToolTipMuestra(p.x(), -p.y())));
}

}  // namespace kelvora
