#include "gui/charts/frmgraficas.h"

#include "core/app/contexto.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "gui/app/ventanahija.h"
#include "gui/charts/picgrafica.h"
#include "gui/entry/frmdatosentrada.h"
#include "gui/platform/qtsurfaceimagen.h"
#include "gui/platform/texto.h"
#include "gui/thermal/fuentefija.h"
#include "gui/thermal/membrete.h"
#include "gui/thermal/ruedagrilla.h"
#include "gui/thermal/tablagrilla.h"

#include <QApplication>
#include <QCloseEvent>
#include <QCursor>
#include <QHBoxLayout>
#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QTabWidget>
#include <QTableWidget>
#include <QToolTip>
#include <QVBoxLayout>

namespace kelvora {

namespace {

constexpr int kPestanaGrafica = 0;
const std::vector<double> kProporciones = {0.5, 0.5};
constexpr const char* kSinGrafica =
        "Las gráficas existen solo para los análisis de pérdida de calor (en caliente). Este "
        "producto es de ganancia de calor (en frío) y no tiene gráfica.";

// The number in the square brackets that end a window's caption; 0 when there is none.
int NumeroVentana(const std::string& caption) {
    const size_t corchete = caption.rfind('[');
    return corchete == std::string::npos ? 0 : static_cast<int>(Val(caption.substr(corchete + 1)));
}

Qt::Alignment AlineacionFormato(QChar marca) {
    if (marca == QLatin1Char('^')) {
        return Qt::AlignCenter;
    }
    return marca == QLatin1Char('>') ? Qt::AlignRight | Qt::AlignVCenter
                                     : Qt::AlignLeft | Qt::AlignVCenter;
}

// A grid's header format: one column per "|", each text after the alignment mark ("<", "^",
// ">") of its heading and of its cells.
void AplicarFormato(QTableWidget& tabla, const std::string& formato) {
    const QStringList columnas = Q(formato).split(QLatin1Char('|'));
    for (int c = 0; c < columnas.size() && c < tabla.columnCount(); ++c) {
        QString texto = columnas[c];
        Qt::Alignment alineacion = Qt::AlignLeft | Qt::AlignVCenter;
        if (!texto.isEmpty() && QStringLiteral("<^>").contains(texto.front())) {
            alineacion = AlineacionFormato(texto.front());
            texto.remove(0, 1);
        }
        auto* celda = new QTableWidgetItem(texto.trimmed());
        celda->setTextAlignment(alineacion);
        tabla.setHorizontalHeaderItem(c, celda);
        for (int fila = 0; fila < tabla.rowCount(); ++fila) {
            tabla.item(fila, c)->setTextAlignment(alineacion);
        }
    }
}

}  // namespace

frmGraficas::frmGraficas(ContextoAplicacion& contexto, Prompter& prompter, FuenteTubos& tubos,
                         QWidget* padre)
    : VentanaActivable(padre),
      mContexto(contexto),
      mTestigo(new QObject(this)),
      mBomba(mTestigo),
      mModelo(contexto.Unidades, prompter, mBomba, tubos) {
    setObjectName(QStringLiteral("frmGraficas"));
    setWindowTitle(Q(mModelo.Caption()));
    setProperty(kPropiedadTag, Q(mModelo.Tag()));
    setProperty(kPropiedadFileName, QString());
    setProperty(kPropiedadFileState, 0);
    CrearControles();
}

void frmGraficas::CrearControles() {
    mTbs = new QTabWidget(this);
    mTbs->setObjectName(QStringLiteral("tbs"));
    mTbs->addTab(PestanaGrafica(), QStringLiteral("Gráfica"));
    mTbs->addTab(PestanaTabla(), QStringLiteral("Tabla"));
    connect(mTbs, &QTabWidget::currentChanged, this, &frmGraficas::tbs_Click);

    auto* cerrar = new QPushButton(QStringLiteral("&Cerrar"), this);
    cerrar->setObjectName(QStringLiteral("cmdCancelar"));
    cerrar->setToolTip(QStringLiteral("Cerrar la Ventana"));
    connect(cerrar, &QPushButton::clicked, this, &QWidget::close);
    auto* botones = new QHBoxLayout;
    botones->addStretch(1);
    botones->addWidget(cerrar);

    auto* columna = new QVBoxLayout(this);
    columna->addWidget(new Membrete(this));
    columna->addWidget(mTbs, 1);
    columna->addLayout(botones);
}

QWidget* frmGraficas::PestanaGrafica() {
    mPicGrafica = new PicGrafica(this);
    mPicGrafica->setFont(FuenteFija(10));
    connect(mPicGrafica, &PicGrafica::Movido, this, &frmGraficas::picGrafica_MouseMove);
    connect(mPicGrafica, &PicGrafica::Redimensionado, this, &frmGraficas::Redibujar);
    return mPicGrafica;
}

QWidget* frmGraficas::PestanaTabla() {
    mMSFG = new QTableWidget(this);
    mMSFG->setObjectName(QStringLiteral("MSFG"));
    mMSFG->setFont(FuenteFija());
    mMSFG->verticalHeader()->hide();
    mMSFG->verticalHeader()->setDefaultSectionSize(mMSFG->fontMetrics().height() + 6);
    mMSFG->setHorizontalScrollBarPolicy(Qt::ScrollBarAlwaysOff);
    mMSFG->setVerticalScrollMode(QAbstractItemView::ScrollPerItem);
    mMSFG->setEditTriggers(QAbstractItemView::NoEditTriggers);
    new RuedaGrilla(*mMSFG);
    MostrarTabla();
    return mMSFG;
}

void frmGraficas::setTipoGrafica(int16_t tipo, frmDatosEntrada& ventana) {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    mModelo.setTipoGrafica(tipo, ventana.Modelo(), NumeroVentana(ventana.Caption()));
    QApplication::restoreOverrideCursor();
    connect(&ventana, &QObject::destroyed, this, [this] { mModelo.Descargar(); });
    setWindowTitle(Q(mModelo.Caption()));
}

bool frmGraficas::Graficar() {
    if (mModelo.Ocupado()) {
        return false;
    }
    QApplication::setOverrideCursor(Qt::WaitCursor);
    const QSize tamano = mPicGrafica->size();
    bool dibujada = mModelo.CalcularSerie();
    QApplication::restoreOverrideCursor();
    if (dibujada) {
        dibujada = Pintar();
        MostrarTabla();
    }
    if (dibujada && mPicGrafica->size() != tamano) {
        Pintar();
    }
    if (mCerrarAlTerminar) {
        mCerrarAlTerminar = false;
        close();
    }
    return dibujada;
}

// A picture of no size is not drawn on: a later size change draws it.
bool frmGraficas::Pintar() {
    if (!mModelo.SerieLista() || mModelo.Ocupado()) {
        return false;
    }
    const double ppm = mPicGrafica->PixelesPorMm();
    QtSurfaceImagen superficie(mPicGrafica->AnchoMm(), mPicGrafica->AltoMm(), ppm);
    if (!mModelo.Graficar(superficie, mPicGrafica->AnchoMm(), mPicGrafica->AltoMm())) {
        return false;
    }
    if (!mPicGrafica->size().isEmpty()) {
        mPicGrafica->PonerImagen(superficie.Imagen());
    }
    mPicGrafica->PonerMensaje(mModelo.Serie().Vacia() ? QString::fromUtf8(kSinGrafica) : QString());
    return true;
}

// After a size change the ready series is drawn again; a series not ready is not computed.
void frmGraficas::Redibujar() {
    Pintar();
}

void frmGraficas::MostrarTabla() {
    MostrarGrilla(*mMSFG, mModelo.MSFG(), mContexto.Colores);
    AplicarFormato(*mMSFG, mModelo.FormatoEncabezado());
    if (mMSFG->rowCount() > 0) {
        mMSFG->hideRow(0);
    }
    AjustarColumnas(*mMSFG, kProporciones);
}

void frmGraficas::tbs_Click(int pestana) {
    mModelo.tbs_Click(pestana);
    setProperty(kPropiedadTag, Q(mModelo.Tag()));
    if (pestana == kPestanaGrafica) {
        Pintar();
    } else {
        AjustarColumnas(*mMSFG, kProporciones);
    }
}

void frmGraficas::picGrafica_MouseMove(double xMm, double yMm) {
    const EscalaGrafica& escala = mModelo.Escala();
    const LecturaRaton lectura =
            mModelo.picGrafica_MouseMove(escala.XGrafica(xMm), escala.YGrafica(yMm));
    if (lectura.toolTip) {
        mPicGrafica->setToolTip(Q(*lectura.toolTip));
        if (QToolTip::isVisible() && !lectura.toolTip->empty()) {
            QToolTip::showText(QCursor::pos(), mPicGrafica->toolTip(), mPicGrafica);
        }
    }
    PonerPanel(Q(lectura.panel));
}

void frmGraficas::PonerPanel(const QString& texto) {
    if (auto* panel = window()->findChild<QLabel*>(QStringLiteral("stbStatusBar_2"))) {
        panel->setText(texto);
    }
}

void frmGraficas::Activar() {
    PonerPanel({});
}

// Leaving the active place empties the status panel that the read-out writes.
void frmGraficas::AlEntrarEnMarco(QMdiSubWindow* marco) {
    VentanaActivable::AlEntrarEnMarco(marco);
    connect(marco, &QMdiSubWindow::windowStateChanged, this,
            [this](Qt::WindowStates antes, Qt::WindowStates ahora) {
                if ((antes & Qt::WindowActive) && !(ahora & Qt::WindowActive)) {
                    PonerPanel({});
                }
            });
}

// A series still running holds this window: it is told to stop, and the window closes once it
// has.
void frmGraficas::closeEvent(QCloseEvent* evento) {
    if (mModelo.Ocupado()) {
        mCerrarAlTerminar = true;
        delete mTestigo;
        mTestigo = nullptr;
        evento->ignore();
        return;
    }
    mModelo.Descargar();
    PonerPanel({});
    evento->accept();
}

std::string frmGraficas::Tag() const {
    return mModelo.Tag();
}

std::string frmGraficas::Caption() const {
    return S(windowTitle());
}

std::string frmGraficas::FileName() const {
    return S(FileNameDe(this));
}

void frmGraficas::SetFileName(const std::string& nombre) {
    setProperty(kPropiedadFileName, Q(nombre));
}

int16_t frmGraficas::FileState() const {
    return static_cast<int16_t>(FileStateDe(this));
}

void frmGraficas::SetFileState(int16_t estado) {
    setProperty(kPropiedadFileState, static_cast<int>(estado));
}

Grilla frmGraficas::GrillaListado() const {
    Grilla grilla = mModelo.MSFG();
    grilla.Caption = Caption();
    return grilla;
}

// What the picture shows, as a bitmap.
void frmGraficas::GuardarImagen(const std::string& archivo) const {
    if (!mPicGrafica->grab().toImage().save(Q(archivo), "BMP")) {
        throw RuntimeError(75, "Error de acceso a la ruta o el archivo");
    }
}

QSize frmGraficas::sizeHint() const {
    return {820, 640};
}

}  // namespace kelvora
