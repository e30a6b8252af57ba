#include "gui/airehumedo/frmairehumedo.h"

#include "gui/entry/frmdatosentrada.h"
#include "gui/materials/teclasmateriales.h"
#include "gui/platform/texto.h"
#include "ui_frmairehumedo.h"

#include <QButtonGroup>
#include <QCoreApplication>
#include <QKeyEvent>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QShortcut>

namespace kelvora {

namespace {

const QColor kFondoResultado(255, 255, 192);

constexpr CampoAire kCampos[] = {CampoAire::Seco,  CampoAire::Humedad, CampoAire::BulboHumedo,
                                 CampoAire::Rocio, CampoAire::Altitud, CampoAire::Presion,
                                 CampoAire::Razon, CampoAire::Entalpia};

// Boxes 2 to 5 of a cold data entry window: dry bulb, wet bulb, dew point, relative humidity.
constexpr int kCajasFrio[] = {2, 3, 4, 5};

bool EsVentanaFria(const frmDatosEntrada& ventana) {
    const Analisis analisis = ventana.Modelo().Ventana().analisis;
    return analisis == Analisis::SPFrio || analisis == Analisis::SCFrio;
}

}  // namespace

frmAireHumedo::frmAireHumedo(const classUnidades& unidades, Prompter& prompter, QWidget* padre)
    : QWidget(padre),
      mModelo(unidades, prompter),
      mUi(std::make_unique<Ui::frmAireHumedo>()),
      mHumedad(new QButtonGroup(this)),
      mPresion(new QButtonGroup(this)) {
    mUi->setupUi(this);
    setObjectName(QStringLiteral("frmAireHumedo"));
    mHumedad->addButton(mUi->optHumedad, static_cast<int>(CampoAire::Humedad));
    mHumedad->addButton(mUi->optBulboHumedo, static_cast<int>(CampoAire::BulboHumedo));
    mHumedad->addButton(mUi->optRocio, static_cast<int>(CampoAire::Rocio));
    mPresion->addButton(mUi->optAltitud, static_cast<int>(CampoAire::Altitud));
    mPresion->addButton(mUi->optPresion, static_cast<int>(CampoAire::Presion));
    for (const CampoAire campo : kCampos) {
        if (QComboBox* lista = Lista(campo)) {
            const CajaAire& caja = mModelo.Caja(campo);
            for (const std::string& unidad : caja.unidades) {
                lista->addItem(Q(unidad));
            }
            lista->setCurrentIndex(caja.ListIndex);
        }
    }
    Conectar();
    PonerDestino(nullptr);
}

frmAireHumedo::~frmAireHumedo() = default;

QLineEdit* frmAireHumedo::Caja(CampoAire campo) const {
    QLineEdit* const cajas[] = {mUi->txtSeco,  mUi->txtHumedad, mUi->txtBulboHumedo,
                                mUi->txtRocio, mUi->txtAltitud, mUi->txtPresion,
                                mUi->txtRazon, mUi->txtEntalpia};
    return cajas[static_cast<int>(campo)];
}

QComboBox* frmAireHumedo::Lista(CampoAire campo) const {
    QComboBox* const listas[] = {mUi->cboSeco,  nullptr,         mUi->cboBulboHumedo,
                                 mUi->cboRocio, mUi->cboAltitud, mUi->cboPresion,
                                 mUi->cboRazon, mUi->cboEntalpia};
    return listas[static_cast<int>(campo)];
}

void frmAireHumedo::Conectar() {
    for (const CampoAire campo : kCampos) {
        ConectarCampo(campo);
    }
    connect(mHumedad, &QButtonGroup::idClicked, this, [this](int id) {
        mModelo.ElegirHumedad(static_cast<CampoAire>(id));
        Refrescar();
        Caja(mModelo.DatoHumedad())->setFocus();
    });
    connect(mPresion, &QButtonGroup::idClicked, this, [this](int id) {
        mModelo.ElegirPresion(static_cast<CampoAire>(id));
        Refrescar();
        Caja(mModelo.DatoPresion())->setFocus();
    });
    connect(mUi->cmdAplicar, &QPushButton::clicked, this, &frmAireHumedo::cmdAplicar_Click);
    connect(mUi->cmdCerrar, &QPushButton::clicked, this, &QWidget::close);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, mUi->cmdCerrar, &QPushButton::click);
}

void frmAireHumedo::ConectarCampo(CampoAire campo) {
    QLineEdit* caja = Caja(campo);
    caja->installEventFilter(this);
    connect(caja, &QLineEdit::textEdited, this, [this, campo](const QString& texto) {
        mModelo.SetTexto(campo, S(texto));
        Refrescar();
    });
    if (QComboBox* lista = Lista(campo)) {
        connect(lista, &QComboBox::activated, this, [this, campo](int indice) {
            mModelo.SeleccionarUnidad(campo, indice);
            Refrescar();
        });
    }
}

bool frmAireHumedo::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        for (const CampoAire campo : kCampos) {
            if (objeto == Caja(campo)) {
                return TeclaCaja(campo, static_cast<const QKeyEvent&>(*evento));
            }
        }
    }
    return QWidget::eventFilter(objeto, evento);
}

// Numbers only, with a sign for temperatures and altitudes; Enter moves on.
bool frmAireHumedo::TeclaCaja(CampoAire campo, const QKeyEvent& tecla) {
    const std::optional<int> KeyAscii = KeyAsciiDe(tecla);
    QLineEdit& caja = *Caja(campo);
    if (!KeyAscii || caja.isReadOnly()) {
        return false;
    }
    const bool menos = campo != CampoAire::Humedad && campo != CampoAire::Presion;
    const ResultadoTeclaNumerica resultado = FiltrarTeclaNumerica(
            S(caja.text()), CaretDe(caja), SeleccionDe(caja), *KeyAscii, menos);
    MostrarTecla(caja, resultado);
    mModelo.SetTexto(campo, resultado.texto);
    Refrescar();
    if (resultado.tab) {
        focusNextChild();
    }
    return true;
}

void frmAireHumedo::Refrescar() {
    for (const CampoAire campo : kCampos) {
        const CajaAire& modelo = mModelo.Caja(campo);
        QLineEdit* caja = Caja(campo);
        if (caja->text() != Q(modelo.Text)) {
            caja->setText(Q(modelo.Text));
        }
        caja->setReadOnly(!modelo.dato);
        caja->setFocusPolicy(modelo.dato ? Qt::StrongFocus : Qt::ClickFocus);
        QPalette paleta = palette();
        if (!modelo.dato) {
            paleta.setColor(QPalette::Base, kFondoResultado);
        }
        caja->setPalette(paleta);
        caja->setToolTip(QString::fromUtf8(NombreCampoAire(campo)));
    }
    mHumedad->button(static_cast<int>(mModelo.DatoHumedad()))->setChecked(true);
    mPresion->button(static_cast<int>(mModelo.DatoPresion()))->setChecked(true);
    mUi->lblEstado->setText(Q(mModelo.lblEstado()));
    mUi->cmdAplicar->setEnabled(mDestino != nullptr && mModelo.Estado().has_value());
}

void frmAireHumedo::PonerDestino(frmDatosEntrada* destino) {
    mDestino = destino != nullptr && EsVentanaFria(*destino) ? destino : nullptr;
    mUi->lblDestino->setText(
            mDestino != nullptr
                    ? QStringLiteral("Destino: %1").arg(mDestino->windowTitle())
                    : QStringLiteral("Active una ventana de datos de frío para aplicar los "
                                     "valores."));
    Refrescar();
}

void frmAireHumedo::cmdAplicar_Click() {
    if (mDestino == nullptr) {
        return;
    }
    QPointer<frmDatosEntrada> destino = mDestino;
    const ModeloEntrada& entrada = destino->Modelo();
    const auto textos = mModelo.TextosVentanaFria(
            {entrada.Lista(2).Text(), entrada.Lista(3).Text(), entrada.Lista(4).Text()});
    if (!textos) {
        return;
    }
    for (size_t i = 0; i < textos->size() && destino != nullptr; ++i) {
        TeclearEnVentana(*destino, kCajasFrio[i], Q((*textos)[i]));
    }
    for (QWidget* padre = destino; padre != nullptr; padre = padre->parentWidget()) {
        if (auto* marco = qobject_cast<QMdiSubWindow*>(padre)) {
            marco->mdiArea()->setActiveSubWindow(marco);
            break;
        }
    }
}

void TeclearEnVentana(frmDatosEntrada& ventana, int caja, const QString& texto) {
    auto* destino = ventana.findChild<QLineEdit*>(QStringLiteral("txtValor_%1").arg(caja));
    if (destino == nullptr) {
        return;
    }
    // Deleting the whole text is an edit the box tells; each character is then a key.
    destino->selectAll();
    destino->del();
    for (const QChar caracter : texto) {
        QKeyEvent tecla(QEvent::KeyPress, 0, Qt::NoModifier, QString(caracter));
        QCoreApplication::sendEvent(destino, &tecla);
    }
}

}  // namespace kelvora
