#include "gui/reports/frmconfigurarpagina.h"

#include "core/app/contexto.h"
#include "core/app/opciones.h"
#include "core/reports/configurarpagina.h"
#include "core/runtime/numeros.h"
#include "gui/platform/texto.h"
#include "gui/reports/arribaabajo.h"
#include "ui_frmconfigurarpagina.h"

#include <QFontDialog>
#include <QKeyEvent>

#include <cmath>

namespace kelvora {

namespace {

constexpr int kMargenMaximoMm = 100;

}  // namespace

frmConfigurarPagina::frmConfigurarPagina(ContextoAplicacion& contexto, SettingsStore& ajustes,
                                         QWidget* padre)
    : QDialog(padre),
      mUi(std::make_unique<Ui::frmConfigurarPagina>()),
      mContexto(contexto),
      mAjustes(ajustes) {
    mUi->setupUi(this);
    mMargenes = {
            {mUi->txtSuperior, mUi->updSuperior, &ConfiguracionPagina::MargenSuperior},
            {mUi->txtInferior, mUi->updInferior, &ConfiguracionPagina::MargenInferior},
            {mUi->txtDerecho, mUi->updDerecho, &ConfiguracionPagina::MargenDerecho},
            {mUi->txtIzquierdo, mUi->updIzquierdo, &ConfiguracionPagina::MargenIzquierdo},
    };
    Cargar();
    for (const Margen& margen : mMargenes) {
        ConectarMargen(margen);
    }
    for (QRadioButton* opcion :
         {mUi->optCarta, mUi->optOficio, mUi->optVertical, mUi->optHorizontal}) {
        connect(opcion, &QRadioButton::toggled, this, &frmConfigurarPagina::DibujarMuestra);
    }
    connect(mUi->cmdAceptar, &QPushButton::clicked, this, &frmConfigurarPagina::cmdAceptar_Click);
    connect(mUi->cmdCancelar, &QPushButton::clicked, this, &QWidget::close);
    connect(mUi->cmdFormatoFuente, &QPushButton::clicked, this,
            &frmConfigurarPagina::cmdFormatoFuente_Click);
    DibujarMuestra();
}

frmConfigurarPagina::~frmConfigurarPagina() = default;

void frmConfigurarPagina::Cargar() {
    const ConfiguracionPagina& p = mContexto.Pagina;
    for (const Margen& margen : mMargenes) {
        margen.upd->SetLimites(0, kMargenMaximoMm);
        margen.upd->SetValue(static_cast<int>(std::lround(p.*margen.valor)));
        margen.txt->setText(Q(TextoMargen(p.*margen.valor)));
    }
    (p.Orientacion == 2 ? mUi->optHorizontal : mUi->optVertical)->setChecked(true);
    (p.TamanoPapel == 1 ? mUi->optCarta : mUi->optOficio)->setChecked(true);
    mUi->cboAlineacion->setCurrentIndex(p.Justificar >= 0 && p.Justificar <= 2 ? p.Justificar : -1);
}

// The up-down control writes its box and its margin at once; a value typed in the box moves it.
void frmConfigurarPagina::ConectarMargen(const Margen& margen) {
    margen.txt->installEventFilter(this);
    connect(margen.upd, &ArribaAbajo::Change, this, [this, margen](int valor) {
        margen.txt->setText(Q(TextoMargen(valor)));
        mContexto.Pagina.*margen.valor = static_cast<float>(valor);
        DibujarMuestra();
    });
    connect(margen.txt, &QLineEdit::editingFinished, this, [margen] {
        margen.upd->SetValue(static_cast<int>(std::lround(Val(S(margen.txt->text())) * 10)));
        margen.txt->setText(Q(TextoMargen(margen.upd->Value())));
    });
    connect(margen.txt, &QLineEdit::textEdited, this, &frmConfigurarPagina::DibujarMuestra);
}

bool frmConfigurarPagina::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress) {
        const int tecla = static_cast<QKeyEvent*>(evento)->key();
        for (const Margen& margen : mMargenes) {
            if (objeto == margen.txt && (tecla == Qt::Key_Up || tecla == Qt::Key_Down)) {
                margen.upd->SetValue(margen.upd->Value() + (tecla == Qt::Key_Up ? 1 : -1));
                return true;
            }
        }
    }
    return QDialog::eventFilter(objeto, evento);
}

ConfiguracionPagina frmConfigurarPagina::DeLosControles() const {
    ConfiguracionPagina p = mContexto.Pagina;
    for (const Margen& margen : mMargenes) {
        p.*margen.valor = static_cast<float>(margen.upd->Value());
    }
    p.Orientacion = mUi->optVertical->isChecked() ? 1 : 2;
    p.TamanoPapel = mUi->optCarta->isChecked() ? 1 : 2;
    p.Justificar = mUi->cboAlineacion->currentIndex();
    return p;
}

void frmConfigurarPagina::DibujarMuestra() {
    mUi->picVistaPrevia->Dibujar(DeLosControles());
}

void frmConfigurarPagina::cmdAceptar_Click() {
    mContexto.Pagina = DeLosControles();
    GuardarOpciones(mContexto, mAjustes);
    accept();
}

void frmConfigurarPagina::cmdFormatoFuente_Click() {
    ConfiguracionPagina& p = mContexto.Pagina;
    QFont actual(Q(p.FuenteNombre));
    actual.setPointSizeF(p.FuenteTamano > 0 ? p.FuenteTamano : 10);
    actual.setBold(p.FuenteNegrita);
    actual.setItalic(p.FuenteCursiva);
    bool aceptada = false;
    const QFont fuente = QFontDialog::getFont(&aceptada, actual, this, QStringLiteral("Fuente"));
    if (aceptada) {
        p.FuenteNombre = S(fuente.family());
        p.FuenteTamano = static_cast<float>(fuente.pointSizeF());
        p.FuenteNegrita = fuente.bold();
        p.FuenteCursiva = fuente.italic();
    }
}

}  // namespace kelvora
