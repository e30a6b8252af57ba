#include "gui/materials/frminsertarmaterial.h"

#include "gui/materials/teclasmateriales.h"
#include "gui/platform/texto.h"
#include "ui_frminsertarmaterial.h"

#include <QKeyEvent>

namespace kelvora {

frmInsertarMaterial::frmInsertarMaterial(EntornoInsertar entorno, QWidget* padre)
    : QDialog(padre),
      mModelo(std::move(entorno)),
      mUi(std::make_unique<Ui::frmInsertarMaterial>()) {
    mUi->setupUi(this);
    setWindowFlag(Qt::WindowContextHelpButtonHint, false);
    Conectar();
}

frmInsertarMaterial::~frmInsertarMaterial() = default;

QLineEdit* frmInsertarMaterial::Caja(int i) const {
    return i == 1 ? mUi->txtValor_1 : i == 3 ? mUi->txtValor_3 : mUi->txtValor_4;
}

QWidget* frmInsertarMaterial::Control(int i) const {
    return i == 2 ? static_cast<QWidget*>(mUi->txtValor_2) : Caja(i);
}

void frmInsertarMaterial::Conectar() {
    connect(mUi->txtValor_2, &QPlainTextEdit::textChanged, this,
            &frmInsertarMaterial::DescripcionCambiada);
    for (int i : {3, 4}) {
        QLineEdit* caja = Caja(i);
        caja->installEventFilter(this);
        connect(caja, &QLineEdit::textEdited, this, [this, i](const QString& texto) {
            mModelo.SetTexto(i, S(texto));
            Refrescar();
        });
    }
    connect(mUi->cmdAceptar, &QPushButton::clicked, this, &frmInsertarMaterial::cmdAceptar_Click);
    connect(mUi->cmdCancelar, &QPushButton::clicked, this, &QDialog::reject);
}

void frmInsertarMaterial::showEvent(QShowEvent* evento) {
    QDialog::showEvent(evento);
    mModelo.Activar();
    Refrescar();
}

// The description is upper-cased as it is typed; the caret stays where it was.
void frmInsertarMaterial::DescripcionCambiada() {
    mModelo.SetTexto(2, S(mUi->txtValor_2->toPlainText()));
    Refrescar();
}

bool frmInsertarMaterial::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::KeyPress && (objeto == Caja(3) || objeto == Caja(4))) {
        return TeclaCajaNumero(objeto == Caja(3) ? 3 : 4, static_cast<const QKeyEvent&>(*evento));
    }
    return QDialog::eventFilter(objeto, evento);
}

bool frmInsertarMaterial::TeclaCajaNumero(int i, const QKeyEvent& tecla) {
    const std::optional<int> KeyAscii = KeyAsciiDe(tecla);
    if (!KeyAscii) {
        return false;
    }
    QLineEdit& caja = *Caja(i);
    const ResultadoTeclaNumerica resultado =
            mModelo.txtValor_KeyPress(i, CaretDe(caja), SeleccionDe(caja), *KeyAscii);
    MostrarTecla(caja, resultado);
    Refrescar();
    if (resultado.tab) {
        focusNextChild();
    }
    return true;
}

void frmInsertarMaterial::cmdAceptar_Click() {
    mModelo.cmdAceptar_Click();
    Refrescar();
}

void frmInsertarMaterial::Refrescar() {
    for (int i : {1, 3, 4}) {
        const QString texto = Q(mModelo.Texto(i));
        if (Caja(i)->text() != texto) {
            Caja(i)->setText(texto);
        }
    }
    QPlainTextEdit& descripcion = *mUi->txtValor_2;
    const QString texto = Q(mModelo.Texto(2));
    if (descripcion.toPlainText() != texto) {
        const QSignalBlocker bloqueo(&descripcion);
        const int caret = descripcion.textCursor().position();
        descripcion.setPlainText(texto);
        QTextCursor cursor = descripcion.textCursor();
        cursor.setPosition(std::min(caret, static_cast<int>(texto.size())));
        descripcion.setTextCursor(cursor);
    }
    setWindowTitle(Q(mModelo.Caption()));
    mUi->cmdAceptar->setText(Q(mModelo.cmdAceptarCaption()));
    mUi->cmdAceptar->setToolTip(Q(mModelo.cmdAceptarToolTipText()));
    mUi->cmdAceptar->setEnabled(mModelo.cmdAceptarEnabled());
    if (mModelo.Foco() != 0) {
        Control(mModelo.Foco())->setFocus(Qt::OtherFocusReason);
        mModelo.FocoTomado();
    }
}

}  // namespace kelvora
