#include "gui/app/frmsplash.h"

#include "core/app/acercade.h"
#include "core/app/contexto.h"
#include "gui/app/imagenes.h"
#include "gui/platform/texto.h"
#include "ui_frmsplash.h"

#include <QCloseEvent>
#include <QKeyEvent>
#include <QTimer>

namespace kelvora {

frmSplash::frmSplash(ContextoAplicacion& contexto, int intervaloMs, QWidget* padre)
    : QWidget(padre, Qt::Window | Qt::FramelessWindowHint | Qt::WindowStaysOnTopHint),
      mUi(std::make_unique<Ui::frmSplash>()),
      mContexto(contexto),
      mTimUnload(new QTimer(this)) {
    mUi->setupUi(this);
    // Its closing must not end the program, nor keep it alive once the frame is gone.
    setAttribute(Qt::WA_QuitOnClose, false);
    mUi->lblVersion->setText(Q(TextoVersion(VersionActual())));
    mUi->lblFabricante->setText(Q(TextoFabricante()));
    mUi->picLogo->setPixmap(Logotipo(160));
    mTimUnload->setObjectName(QStringLiteral("timUnload"));
    connect(mTimUnload, &QTimer::timeout, this, &frmSplash::timUnload_Timer);
    connect(mUi->cmdAceptar, &QPushButton::clicked, this, &QWidget::close);
    mTimUnload->start(intervaloMs);
    mContexto.SplashVisible = true;
}

frmSplash::~frmSplash() = default;

void frmSplash::keyPressEvent(QKeyEvent* evento) {
    if (evento->key() == Qt::Key_Escape) {
        close();
        return;
    }
    QWidget::keyPressEvent(evento);
}

void frmSplash::closeEvent(QCloseEvent* evento) {
    mTimUnload->stop();
    mContexto.SplashVisible = false;
    QWidget::closeEvent(evento);
}

void frmSplash::timUnload_Timer() {
    ++mTics;
    if (mTics >= 2) {
        close();
    }
}

}  // namespace kelvora
