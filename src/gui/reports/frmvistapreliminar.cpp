#include "gui/reports/frmvistapreliminar.h"

#include "core/reports/imprimirdocumento.h"
#include "gui/app/ventanahija.h"
#include "gui/platform/qtsurfacepaginas.h"
#include "gui/platform/texto.h"

#include <QAction>
#include <QGridLayout>
#include <QKeyEvent>
#include <QMenu>
#include <QPainter>
#include <QScrollBar>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>
#include <QWheelEvent>

#include <algorithm>
#include <cmath>

namespace kelvora {

namespace {

constexpr int kSeparacion = 16;
constexpr int kPaso = 24;

// One page of the preview, painted from the recorded page at the screen's size.
class Hoja : public QWidget {
public:
    Hoja(const QtSurfacePaginas& paginas, int pagina, QWidget* padre)
        : QWidget(padre), mPaginas(paginas), mPagina(pagina) {
        setObjectName(QStringLiteral("picHoja_%1").arg(pagina + 1));
        const Tamano tamano = paginas.TamanoDe(pagina);
        setFixedSize(static_cast<int>(std::lround(tamano.ancho * PixelesPorMm())),
                     static_cast<int>(std::lround(tamano.alto * PixelesPorMm())));
    }

    double PixelesPorMm() const { return logicalDpiX() / 25.4; }

protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        pintor.setRenderHint(QPainter::Antialiasing);
        pintor.setRenderHint(QPainter::TextAntialiasing);
        pintor.fillRect(rect(), Qt::white);
        pintor.scale(PixelesPorMm(), PixelesPorMm());
        mPaginas.Pintar(pintor, mPagina);
    }

private:
    const QtSurfacePaginas& mPaginas;
    int mPagina;
};

int Acotado(const QScrollBar& barra, int valor) {
    return std::clamp(valor, barra.minimum(), barra.maximum());
}

void Paso(QScrollBar& barra, int cambio) {
    barra.setValue(Acotado(barra, barra.value() + cambio));
}

}  // namespace

frmVistaPreliminar::frmVistaPreliminar(std::unique_ptr<QtSurfacePaginas> paginas,
                                       const EntornoImpresion& entorno, const std::string& caption,
                                       QWidget* padre)
    : QDialog(padre), mPaginas(std::move(paginas)), mEntorno(entorno) {
    setObjectName(QStringLiteral("frmVistaPreliminar"));
    setWindowTitle(Q(TituloVistaPreliminar(caption)));
    CrearBarra();
    mPicContainer = new QWidget(this);
    mPicContainer->setObjectName(QStringLiteral("picContainer"));
    mPicContainer->setAutoFillBackground(true);
    mPicContainer->setBackgroundRole(QPalette::Dark);
    mPicContenedor = new QWidget(mPicContainer);
    mPicContenedor->setObjectName(QStringLiteral("picContenedor"));
    mHsb = new QScrollBar(Qt::Horizontal, this);
    mHsb->setObjectName(QStringLiteral("hsb"));
    mVsb = new QScrollBar(Qt::Vertical, this);
    mVsb->setObjectName(QStringLiteral("vsb"));
    for (QScrollBar* barra : {mHsb, mVsb}) {
        barra->setSingleStep(kPaso);
        connect(barra, &QScrollBar::valueChanged, this, &frmVistaPreliminar::Mover);
    }
    auto* rejilla = new QGridLayout;
    rejilla->setSpacing(0);
    rejilla->addWidget(mPicContainer, 0, 0);
    rejilla->addWidget(mVsb, 0, 1);
    rejilla->addWidget(mHsb, 1, 0);
    auto* columna = new QVBoxLayout(this);
    columna->setContentsMargins(0, 0, 0, 0);
    columna->setSpacing(0);
    columna->addWidget(mTbr);
    columna->addLayout(rejilla, 1);
    CrearHojas();
    resize(900, 700);
}

frmVistaPreliminar::~frmVistaPreliminar() = default;

void frmVistaPreliminar::CrearBarra() {
    mTbr = new QToolBar(this);
    mTbr->setObjectName(QStringLiteral("tbr"));
    mTbr->setToolButtonStyle(Qt::ToolButtonTextBesideIcon);
    QAction* imprimir = mTbr->addAction(QIcon(QStringLiteral(":/imagenes/imprimir.svg")),
                                        QStringLiteral("Imprimir"));
    imprimir->setObjectName(QStringLiteral("Imprimir"));
    connect(imprimir, &QAction::triggered, this, [this] {
        close();
        emit Imprimir();
    });
    QAction* cerrar = mTbr->addAction(QStringLiteral("Cerrar"));
    cerrar->setObjectName(QStringLiteral("Cerrar"));
    connect(cerrar, &QAction::triggered, this, &QWidget::close);
    auto* zoom = new QToolButton(mTbr);
    zoom->setObjectName(QStringLiteral("Zoom"));
    zoom->setText(QStringLiteral("Zoom"));
    zoom->setPopupMode(QToolButton::InstantPopup);
    auto* menu = new QMenu(zoom);
    menu->addAction(QStringLiteral("100%"))->setObjectName(QStringLiteral("K100"));
    menu->addAction(QStringLiteral("Ver Todas"))->setObjectName(QStringLiteral("ViewFull"));
    zoom->setMenu(menu);
    mTbr->addWidget(zoom);
}

void frmVistaPreliminar::CrearHojas() {
    for (int i = 0; i < mPaginas->Paginas(); ++i) {
        mPicHoja.push_back(new Hoja(*mPaginas, i, mPicContenedor));
    }
}

void frmVistaPreliminar::CopiarImprimir(const QString& toolTip) {
    mTbr->findChild<QAction*>(QStringLiteral("Imprimir"))->setToolTip(toolTip);
}

int frmVistaPreliminar::Paginas() const {
    return static_cast<int>(mPicHoja.size());
}

// The pages stand centred one under the other; the bars reach the part that does not fit.
void frmVistaPreliminar::ColocarHojas() {
    if (!mNumeradas) {
        mNumeradas = true;
        for (int i = 0; i < Paginas(); ++i) {
            mPaginas->IrAPagina(i);
            ImprimirNumeroPagina(*mPaginas, mEntorno, TextoNumeroPagina(i + 1, Paginas()));
        }
    }
    int ancho = 0;
    for (QWidget* hoja : mPicHoja) {
        ancho = std::max(ancho, hoja->width());
    }
    ancho = std::max(ancho + 2 * kSeparacion, mPicContainer->width());
    int y = kSeparacion;
    for (QWidget* hoja : mPicHoja) {
        hoja->move((ancho - hoja->width()) / 2, y);
        y += hoja->height() + kSeparacion;
    }
    mPicContenedor->resize(ancho, std::max(y, mPicContainer->height()));
    mHsb->setRange(0, std::max(0, ancho - mPicContainer->width()));
    mHsb->setPageStep(mPicContainer->width());
    mHsb->setVisible(mHsb->maximum() > 0);
    mVsb->setRange(0, std::max(0, mPicContenedor->height() - mPicContainer->height()));
    mVsb->setPageStep(mPicContainer->height());
    mVsb->setVisible(mVsb->maximum() > 0);
    Mover();
}

void frmVistaPreliminar::Mover() {
    mPicContenedor->move(-mHsb->value(), -mVsb->value());
}

void frmVistaPreliminar::resizeEvent(QResizeEvent* evento) {
    QDialog::resizeEvent(evento);
    ColocarHojas();
}

void frmVistaPreliminar::MouseWheel(int cantidad, bool horizontal) {
    QScrollBar& barra = horizontal ? *mHsb : *mVsb;
    if (!barra.isVisible()) {
        return;
    }
    Paso(barra, cantidad > 0 ? -barra.singleStep() : barra.singleStep());
}

void frmVistaPreliminar::wheelEvent(QWheelEvent* evento) {
    const QPoint giro = evento->angleDelta();
    const bool horizontal = giro.y() == 0 || evento->modifiers().testFlag(Qt::ShiftModifier);
    MouseWheel(horizontal ? giro.x() + giro.y() : giro.y(), horizontal);
    evento->accept();
}

// Home, End and the page keys move the horizontal bar, as they are bound.
void frmVistaPreliminar::keyPressEvent(QKeyEvent* evento) {
    switch (evento->key()) {
        case Qt::Key_Left:
            Paso(*mHsb, -mHsb->singleStep());
            break;
        case Qt::Key_Right:
            Paso(*mHsb, mHsb->singleStep());
            break;
        case Qt::Key_Up:
            Paso(*mVsb, -mVsb->singleStep());
            break;
        case Qt::Key_Down:
            Paso(*mVsb, mVsb->singleStep());
            break;
        case Qt::Key_Home:
            mHsb->setValue(mHsb->minimum());
            break;
        case Qt::Key_End:
            mHsb->setValue(mHsb->maximum());
            break;
        case Qt::Key_PageUp:
            Paso(*mHsb, -mHsb->pageStep());
            break;
        case Qt::Key_PageDown:
            Paso(*mHsb, mHsb->pageStep());
            break;
        default:
            QDialog::keyPressEvent(evento);
            return;
    }
    evento->accept();
}

}  // namespace kelvora
