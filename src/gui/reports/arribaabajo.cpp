#include "gui/reports/arribaabajo.h"

#include <QToolButton>
#include <QVBoxLayout>

#include <algorithm>

namespace kelvora {

namespace {

QToolButton* Flecha(Qt::ArrowType flecha, QWidget* padre) {
    auto* boton = new QToolButton(padre);
    boton->setArrowType(flecha);
    boton->setAutoRepeat(true);
    boton->setFocusPolicy(Qt::NoFocus);
    boton->setFixedSize(18, 12);
    return boton;
}

}  // namespace

ArribaAbajo::ArribaAbajo(QWidget* padre) : QWidget(padre) {
    auto* arriba = Flecha(Qt::UpArrow, this);
    auto* abajo = Flecha(Qt::DownArrow, this);
    connect(arriba, &QToolButton::clicked, this, [this] { SetValue(mValor + 1); });
    connect(abajo, &QToolButton::clicked, this, [this] { SetValue(mValor - 1); });
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    columna->addWidget(arriba);
    columna->addWidget(abajo);
}

void ArribaAbajo::SetValue(int valor) {
    const int acotado = std::clamp(valor, mMinimo, mMaximo);
    if (acotado != mValor) {
        mValor = acotado;
        emit Change(mValor);
    }
}

void ArribaAbajo::SetLimites(int minimo, int maximo) {
    mMinimo = minimo;
    mMaximo = maximo;
    SetValue(mValor);
}

}  // namespace kelvora
