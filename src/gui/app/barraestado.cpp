#include "gui/app/barraestado.h"

#include "core/platform/clock.h"
#include "core/runtime/formato.h"
#include "gui/platform/texto.h"

#include <QCoreApplication>
#include <QKeyEvent>
#include <QLabel>
#include <QTime>
#include <QTimer>

namespace kelvora {

namespace {

constexpr int kPanelNum = 2;
constexpr int kPanelMayus = 3;
constexpr int kPanelIns = 4;
constexpr int kPanelHora = 5;
constexpr char kPropiedadActiva[] = "activa";

}  // namespace

BarraEstado::BarraEstado(Clock& reloj, QWidget* padre) : QStatusBar(padre), mReloj(reloj) {
    setObjectName(QStringLiteral("stbStatusBar"));
    addWidget(NuevoPanel(1, {}), 3);
    addWidget(NuevoPanel(2, {}), 1);
    addPermanentWidget(NuevoPanel(3, QStringLiteral("NÚM")));
    addPermanentWidget(NuevoPanel(4, QStringLiteral("MAYÚS")));
    addPermanentWidget(NuevoPanel(5, QStringLiteral("INS")));
    addPermanentWidget(NuevoPanel(6, {}));
    // The lock states cannot be read from the system here: they start as on a fresh
    // keyboard and follow the key presses that reach the program.
    PonerEstadoTecla(mPaneles[kPanelNum], true);
    PonerEstadoTecla(mPaneles[kPanelMayus], false);
    PonerEstadoTecla(mPaneles[kPanelIns], false);
    ActualizarHora();
    auto* reloj1s = new QTimer(this);
    connect(reloj1s, &QTimer::timeout, this, &BarraEstado::ActualizarHora);
    reloj1s->start(1000);
    QCoreApplication::instance()->installEventFilter(this);
}

QLabel* BarraEstado::NuevoPanel(int numero, const QString& texto) {
    auto* panel = new QLabel(texto, this);
    panel->setObjectName(QStringLiteral("stbStatusBar_%1").arg(numero));
    panel->setFrameShape(QFrame::Panel);
    panel->setFrameShadow(QFrame::Sunken);
    panel->setMinimumWidth(numero <= 2 ? 80 : 48);
    panel->setAlignment(numero <= 2 ? Qt::AlignLeft | Qt::AlignVCenter : Qt::AlignCenter);
    mPaneles[static_cast<size_t>(numero - 1)] = panel;
    return panel;
}

void BarraEstado::PonerEstadoTecla(QLabel* panel, bool activa) {
    panel->setProperty(kPropiedadActiva, activa);
    panel->setEnabled(activa);
}

void BarraEstado::AlternarTecla(QLabel* panel) {
    PonerEstadoTecla(panel, !panel->property(kPropiedadActiva).toBool());
}

void BarraEstado::ActualizarHora() {
    mPaneles[kPanelHora]->setText(QTime::currentTime().toString(QStringLiteral("H:mm")));
}

void BarraEstado::ActualizarFecha() {
    mPaneles[kPanelHora]->setToolTip(Q(Format(mReloj.Hoy(), "Long Date")));
}

bool BarraEstado::event(QEvent* evento) {
    if (evento->type() == QEvent::Enter || evento->type() == QEvent::ToolTip) {
        ActualizarFecha();
    }
    return QStatusBar::event(evento);
}

bool BarraEstado::eventFilter(QObject* objeto, QEvent* evento) {
    // A key press reaches its top-level window once, then each widget it propagates to.
    if (evento->type() == QEvent::KeyPress && objeto->isWindowType() &&
        !static_cast<QKeyEvent*>(evento)->isAutoRepeat()) {
        switch (static_cast<QKeyEvent*>(evento)->key()) {
            case Qt::Key_NumLock:
                AlternarTecla(mPaneles[kPanelNum]);
                break;
            case Qt::Key_CapsLock:
                AlternarTecla(mPaneles[kPanelMayus]);
                break;
            case Qt::Key_Insert:
                AlternarTecla(mPaneles[kPanelIns]);
                break;
            default:
                break;
        }
    }
    return QStatusBar::eventFilter(objeto, evento);
}

}  // namespace kelvora
