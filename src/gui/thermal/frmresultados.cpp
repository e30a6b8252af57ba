#include "gui/thermal/frmresultados.h"

#include "core/app/contexto.h"
#include "core/thermal/tooltipresultados.h"
#include "gui/app/ventanahija.h"
#include "gui/platform/texto.h"
#include "gui/thermal/fuentefija.h"
#include "gui/thermal/membrete.h"
#include "gui/thermal/ruedagrilla.h"
#include "gui/thermal/tablagrilla.h"

#include <QCloseEvent>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QMouseEvent>
#include <QPushButton>
#include <QTableWidget>
#include <QToolTip>
#include <QVBoxLayout>

namespace kelvora {

namespace {

// Label, value and unit columns.
const std::vector<double> kProporciones = {0.56, 0.2, 0.24};

}  // namespace

frmResultados::frmResultados(TipoResultados tipo, ContextoAplicacion& contexto, Prompter& prompter,
                             QWidget* padre)
    : QWidget(padre),
      mContexto(contexto),
      mTestigo(new QObject(this)),
      mBomba(mTestigo),
      mModelo(tipo, contexto.Unidades, prompter, mBomba) {
    setObjectName(QString::fromUtf8(mModelo.Ventana().nombre));
    setWindowTitle(QString::fromUtf8(mModelo.Ventana().caption));
    setProperty(kPropiedadTag, QString::fromUtf8(mModelo.Ventana().tag));
    setProperty(kPropiedadFileName, QString());
    setProperty(kPropiedadFileState, 0);
    CrearControles();
}

void frmResultados::CrearControles() {
    mMSFG = new QTableWidget(this);
    mMSFG->setObjectName(QStringLiteral("MSFG"));
    mMSFG->setFont(FuenteFija());
    mMSFG->horizontalHeader()->hide();
    mMSFG->verticalHeader()->hide();
    mMSFG->verticalHeader()->setDefaultSectionSize(mMSFG->fontMetrics().height() + 6);
    mMSFG->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mMSFG->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    mMSFG->setWordWrap(true);
    mMSFG->setMouseTracking(true);
    mMSFG->viewport()->installEventFilter(this);
    new RuedaGrilla(*mMSFG);

    auto* botones = new QHBoxLayout;
    botones->addWidget(Boton("cmdInformeTecnico", "Informe &Técnico", "Informe Técnico"));
    if (mModelo.Ventana().analisisEconomico) {
        botones->addWidget(Boton("cmdAnalisisEconomico", "Análisis Económico", ""));
    }
    botones->addWidget(Boton("cmdConceptosTecnicos", "Conceptos &Técnicos", "Conceptos Técnicos"));
    botones->addStretch(1);
    QPushButton* cerrar = Boton("cmdCancelar", mModelo.Ventana().captionCerrar, "");
    cerrar->setEnabled(true);
    cerrar->setAutoDefault(true);
    connect(cerrar, &QPushButton::clicked, this, &QWidget::close);
    botones->addWidget(cerrar);

    auto* columna = new QVBoxLayout(this);
    columna->addWidget(new Membrete(this));
    columna->addWidget(mMSFG, 1);
    columna->addLayout(botones);
}

// The report and help windows are not part of the program yet: their buttons stand disabled.
// The economic window enables its button once a result stands.
QPushButton* frmResultados::Boton(const char* nombre, const char* caption, const char* toolTip) {
    auto* boton = new QPushButton(QString::fromUtf8(caption), this);
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setToolTip(QString::fromUtf8(toolTip));
    boton->setEnabled(false);
    return boton;
}

void frmResultados::EmpezarCalculo() {
    mCalculando = true;
}

void frmResultados::TerminarCalculo() {
    mCalculando = false;
    if (mCerrarAlTerminar) {
        mCerrarAlTerminar = false;
        close();
    }
}

void frmResultados::MostrarGrilla() {
    kelvora::MostrarGrilla(*mMSFG, mModelo.MSFG(), mContexto.Colores);
    AjustarColumnas();
}

void frmResultados::AjustarColumnas() {
    kelvora::AjustarColumnas(*mMSFG, kProporciones);
}

QString frmResultados::ToolTipCelda(int fila, int columna) const {
    const Grilla& grilla = mModelo.MSFG();
    if (fila < 0 || fila >= grilla.Rows() || columna < 0 || columna >= grilla.Cols()) {
        return {};
    }
    QFont fuente = mMSFG->font();
    fuente.setBold(grilla.Estilo(fila, columna).negrita);
    const QFontMetrics medida(fuente);
    const auto ancho = [&medida](const std::string& texto) {
        return static_cast<double>(medida.horizontalAdvance(Q(texto)));
    };
    return Q(ToolTipResultados(grilla, fila, columna, mMSFG->columnWidth(columna), ancho,
                               mModelo.Valores().Texto("MaterialSA")));
}

std::string frmResultados::Tag() const {
    return S(TagDe(this));
}

std::string frmResultados::Caption() const {
    return S(windowTitle());
}

std::string frmResultados::FileName() const {
    return S(FileNameDe(this));
}

void frmResultados::SetFileName(const std::string& nombre) {
    setProperty(kPropiedadFileName, Q(nombre));
}

int16_t frmResultados::FileState() const {
    return static_cast<int16_t>(FileStateDe(this));
}

void frmResultados::SetFileState(int16_t estado) {
    setProperty(kPropiedadFileState, static_cast<int>(estado));
}

Grilla frmResultados::GrillaListado() const {
    Grilla grilla = mModelo.MSFG();
    grilla.Caption = Caption();
    return grilla;
}

QSize frmResultados::sizeHint() const {
    return {800, 620};
}

// A calculation still running holds this window: it is told to stop, and the window closes
// once it has.
void frmResultados::closeEvent(QCloseEvent* evento) {
    if (mCalculando) {
        mCerrarAlTerminar = true;
        delete mTestigo;
        mTestigo = nullptr;
        evento->ignore();
        return;
    }
    evento->accept();
}

void frmResultados::resizeEvent(QResizeEvent* evento) {
    QWidget::resizeEvent(evento);
    AjustarColumnas();
}

bool frmResultados::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::MouseMove) {
        const QPoint punto = static_cast<QMouseEvent*>(evento)->position().toPoint();
        mMSFG->setToolTip(ToolTipCelda(mMSFG->rowAt(punto.y()), mMSFG->columnAt(punto.x())));
    } else if (evento->type() == QEvent::ToolTip) {
        const auto* ayuda = static_cast<QHelpEvent*>(evento);
        if (mMSFG->toolTip().isEmpty()) {
            QToolTip::hideText();
        } else {
            QToolTip::showText(ayuda->globalPos(), mMSFG->toolTip(), mMSFG->viewport());
        }
        return true;
    }
    return QWidget::eventFilter(objeto, evento);
}

}  // namespace kelvora
