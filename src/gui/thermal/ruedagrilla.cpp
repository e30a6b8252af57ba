#include "gui/thermal/ruedagrilla.h"

#include <QAbstractScrollArea>
#include <QScrollBar>
#include <QWheelEvent>

namespace kelvora {

namespace {

constexpr int kMuesca = 120;

}  // namespace

RuedaGrilla::RuedaGrilla(QAbstractScrollArea& grilla) : QObject(&grilla), mGrilla(grilla) {
    grilla.viewport()->installEventFilter(this);
}

bool RuedaGrilla::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() != QEvent::Wheel) {
        return QObject::eventFilter(objeto, evento);
    }
    const int lineas = static_cast<QWheelEvent*>(evento)->angleDelta().y() / kMuesca;
    const auto accion = lineas > 0 ? QAbstractSlider::SliderSingleStepSub
                                   : QAbstractSlider::SliderSingleStepAdd;
    for (int i = 0; i < std::abs(lineas); ++i) {
        mGrilla.verticalScrollBar()->triggerAction(accion);
    }
    return true;
}

}  // namespace kelvora
