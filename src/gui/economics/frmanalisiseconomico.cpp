#include "gui/economics/frmanalisiseconomico.h"

#include "gui/app/ventanahija.h"
#include "gui/entry/cajavalor.h"
#include "gui/platform/texto.h"

#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QShortcut>

namespace kelvora {

namespace {

constexpr char32_t kRetroceso = 8;
constexpr char32_t kEnter = 13;

bool EsTeclaDeAcceso(const QKeyEvent& tecla) {
    return tecla.modifiers() == Qt::AltModifier && tecla.key() >= Qt::Key_A &&
           tecla.key() <= Qt::Key_Z;
}

bool TieneTecla(const QString& caption, const QKeyEvent& tecla) {
    return QKeySequence::mnemonic(caption) == QKeySequence(Qt::ALT | Qt::Key(tecla.key()));
}

// The key that a key press hands to a key filter: a character, Backspace or Enter; 0 for the
// keys that move, delete or command, which the control keeps.
char32_t CodigoTecla(const QKeyEvent& tecla) {
    const auto ordenes = Qt::ControlModifier | Qt::AltModifier | Qt::MetaModifier;
    if ((tecla.modifiers() & ordenes) != 0) {
        return 0;
    }
    if (tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter) {
        return kEnter;
    }
    if (tecla.key() == Qt::Key_Backspace) {
        return kRetroceso;
    }
    const QList<uint> texto = tecla.text().toUcs4();
    return !texto.isEmpty() && QChar::isPrint(texto.front()) ? texto.front() : 0;
}

void PonerTexto(QLineEdit& caja, const std::string& texto) {
    if (caja.text() != Q(texto)) {
        caja.setText(Q(texto));
    }
}

}  // namespace

frmAnalisisEconomico::frmAnalisisEconomico(TipoEconomico tipo, ContextoAplicacion& contexto,
                                           Prompter& prompter, std::unique_ptr<Clock> reloj,
                                           QWidget* padre)
    : VentanaActivable(padre),
      mBomba(this),
      mReloj(std::move(reloj)),
      mModelo(tipo, contexto, prompter, mBomba, *mReloj),
      mFormulario(CrearFormularioEconomico(*this, mModelo)) {
    setObjectName(QString::fromUtf8(mModelo.Ventana().nombre));
    setWindowTitle(QString::fromUtf8(mModelo.Ventana().caption));
    setProperty(kPropiedadFileName, QString());
    setProperty(kPropiedadFileState, 0);
    mModelo.SetActualizar([this] { PublicarEstado(); });
    Conectar();
    Refrescar();
}

frmAnalisisEconomico::~frmAnalisisEconomico() {
    for (QObject* control : findChildren<QObject*>()) {
        control->removeEventFilter(this);
        disconnect(control, nullptr, this, nullptr);
    }
}

void frmAnalisisEconomico::Conectar() {
    for (const auto& [indice, caja] : mFormulario.txtValor) {
        const int i = indice;
        connect(caja, &CajaValor::Tecla, this, &frmAnalisisEconomico::txtValor_KeyPress);
        connect(caja, &QLineEdit::textEdited, this, [this, i](const QString& texto) {
            Paso([this, i, &texto] { mModelo.SetText(i, S(texto)); });
        });
    }
    ConectarListas();
    connect(mFormulario.cmdAceptar, &QPushButton::clicked, this,
            &frmAnalisisEconomico::cmdAceptar_Click);
    connect(mFormulario.cmdCancelar, &QPushButton::clicked, this, &QWidget::close);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, mFormulario.cmdCancelar, &QPushButton::click);
    for (QWidget* control : mFormulario.ordenTabulacion) {
        control->installEventFilter(this);
    }
}

void frmAnalisisEconomico::ConectarListas() {
    for (const auto& [indice, lista] : mFormulario.cboUnidad) {
        const int i = indice;
        connect(lista, &QComboBox::activated, this, [this, i](int entrada) {
            Paso([=, this] { mModelo.SeleccionarUnidad(i, entrada); });
        });
    }
    QComboBox* horas = mFormulario.cboHorasTrabajadas;
    connect(horas, &QComboBox::activated, this,
            [this](int entrada) { Paso([=, this] { mModelo.SeleccionarHoras(entrada); }); });
    connect(horas->lineEdit(), &QLineEdit::textEdited, this,
            [this](const QString& texto) { Paso([this, &texto] { mModelo.SetHoras(S(texto)); }); });
    connect(mFormulario.cboCombustibleUtilizado, &QComboBox::activated, this,
            [this](int entrada) { Paso([=, this] { mModelo.SeleccionarCombustible(entrada); }); });
}

void frmAnalisisEconomico::setVariables(const ValoresAnalisis& valores) {
    mModelo.setVariables(valores);
}

void frmAnalisisEconomico::Activar() {
    Paso([this] { mModelo.Activar(); });
}

void frmAnalisisEconomico::Paso(const std::function<void()>& paso, bool seguirFoco) {
    const std::string antes = mModelo.Foco();
    paso();
    Refrescar();
    if (seguirFoco || mModelo.Foco() != antes) {
        LlevarFoco();
    }
}

// The model says what goes in: the window inserts it at the caret, over any selection.
void frmAnalisisEconomico::txtValor_KeyPress(int indice, int KeyAscii) {
    CajaValor* caja = mFormulario.txtValor.at(indice);
    bool tabulador = false;
    Paso([&] {
        const TeclaEconomica r = mModelo.txtValor_KeyPress(indice, static_cast<char32_t>(KeyAscii),
                                                           caja->cursorPosition());
        if (caja->text() != Q(r.texto)) {
            caja->setText(Q(r.texto));
            caja->setCursorPosition(r.cursor);
        }
        if (r.tecla == kRetroceso) {
            caja->backspace();
        } else if (r.tecla != 0) {
            const char32_t tecla = r.tecla;
            caja->insert(QString::fromUcs4(&tecla, 1));
        }
        mModelo.SetText(indice, S(caja->text()));
        tabulador = r.tabulador;
    });
    if (tabulador) {
        focusNextChild();
    }
}

void frmAnalisisEconomico::cboHorasTrabajadas_KeyPress(QKeyEvent& tecla) {
    const char32_t codigo = CodigoTecla(tecla);
    if (codigo == 0) {
        return;
    }
    const TeclaEconomica r = mModelo.cboHorasTrabajadas_KeyPress(codigo);
    if (r.tecla == 0) {
        tecla.accept();
    }
    if (r.tabulador) {
        focusNextChild();
    }
}

void frmAnalisisEconomico::cmdAceptar_Click() {
    QApplication::setOverrideCursor(Qt::WaitCursor);
    Paso([this] { mModelo.cmdAceptar_Click(); }, true);
    QApplication::restoreOverrideCursor();
}

void frmAnalisisEconomico::GotFocus(QObject* objeto) {
    for (const auto& [indice, caja] : mFormulario.txtValor) {
        if (caja == objeto) {
            const int i = indice;
            Paso([this, i] { mModelo.txtValor_GotFocus(i); });
            caja->selectAll();
            return;
        }
    }
    if (objeto == mFormulario.cboCombustibleUtilizado) {
        Paso([this] { mModelo.cboCombustibleUtilizado_GotFocus(); });
    } else {
        Paso([this] { mModelo.OtroControl_GotFocus(); });
    }
}

void frmAnalisisEconomico::Refrescar() {
    RefrescarCajas();
    RefrescarListas();
    mFormulario.lblEstado->setText(Q(mModelo.lblEstado()));
    mFormulario.cmdAceptar->setEnabled(mModelo.cmdAceptarEnabled());
    mFormulario.fraResultados->setEnabled(mModelo.fraResultadosEnabled());
    PublicarEstado();
}

void frmAnalisisEconomico::RefrescarCajas() {
    for (const auto& [indice, etiqueta] : mFormulario.lblEtiqueta) {
        const EtiquetaAnalisis& modelo = mModelo.lblEtiqueta(indice);
        if (etiqueta->text() != Q(modelo.Caption)) {
            etiqueta->setText(Q(modelo.Caption));
        }
        etiqueta->setEnabled(modelo.Enabled);
    }
    const auto refrescar = [this](const auto& cajas) {
        for (const auto& [indice, caja] : cajas) {
            const CajaAnalisis& modelo = mModelo.txtValor(indice);
            PonerTexto(*caja, modelo.Text);
            caja->setEnabled(modelo.Enabled);
            caja->setToolTip(Q(modelo.ToolTipText));
        }
    };
    refrescar(mFormulario.txtValor);
    refrescar(mFormulario.txtResultado);
}

void frmAnalisisEconomico::RefrescarListas() {
    for (const auto& [indice, lista] : mFormulario.cboUnidad) {
        const QSignalBlocker bloqueo(lista);
        lista->setCurrentIndex(mModelo.cboUnidad(indice).ListIndex);
    }
    const ListaAnalisis& horas = mModelo.cboHorasTrabajadas();
    QComboBox* cboHoras = mFormulario.cboHorasTrabajadas;
    {
        const QSignalBlocker bloqueo(cboHoras);
        if (horas.ListIndex >= 0 && cboHoras->currentIndex() != horas.ListIndex) {
            cboHoras->setCurrentIndex(horas.ListIndex);
        }
        if (cboHoras->currentText() != Q(horas.Text)) {
            cboHoras->setEditText(Q(horas.Text));
        }
    }
    const QSignalBlocker bloqueo(mFormulario.cboCombustibleUtilizado);
    mFormulario.cboCombustibleUtilizado->setCurrentIndex(
            mModelo.cboCombustibleUtilizado().ListIndex);
}

void frmAnalisisEconomico::PublicarEstado() {
    const QString tag = Q(mModelo.Tag());
    if (TagDe(this) != tag) {
        setProperty(kPropiedadTag, tag);
    }
}

// The model moves the focus with its checks and the typed fuel; the window follows it.
void frmAnalisisEconomico::LlevarFoco() {
    auto* control = findChild<QWidget*>(Q(mModelo.Foco()));
    if (control != nullptr && control->isEnabled() && !control->hasFocus()) {
        control->setFocus(Qt::OtherFocusReason);
    }
}

// The window's own access keys win over the frame's menus while the focus is in it.
QWidget* frmAnalisisEconomico::DestinoTeclaAcceso(const QKeyEvent& tecla) const {
    if (!EsTeclaDeAcceso(tecla)) {
        return nullptr;
    }
    for (const auto& [indice, etiqueta] : mFormulario.lblEtiqueta) {
        if (etiqueta->buddy() != nullptr && etiqueta->buddy()->isEnabled() &&
            TieneTecla(etiqueta->text(), tecla)) {
            return etiqueta->buddy();
        }
    }
    for (QPushButton* boton : {mFormulario.cmdAceptar, mFormulario.cmdCancelar}) {
        if (boton->isEnabled() && TieneTecla(boton->text(), tecla)) {
            return boton;
        }
    }
    return nullptr;
}

bool frmAnalisisEconomico::TeclaDeAcceso(QKeyEvent& tecla) {
    QWidget* destino = DestinoTeclaAcceso(tecla);
    if (destino == nullptr) {
        return false;
    }
    destino->setFocus(Qt::ShortcutFocusReason);
    if (auto* boton = qobject_cast<QPushButton*>(destino)) {
        boton->click();
    }
    return true;
}

bool frmAnalisisEconomico::eventFilter(QObject* objeto, QEvent* evento) {
    switch (evento->type()) {
        case QEvent::FocusIn:
            GotFocus(objeto);
            break;
        case QEvent::ShortcutOverride:
            if (DestinoTeclaAcceso(*static_cast<QKeyEvent*>(evento)) != nullptr) {
                evento->accept();
                return true;
            }
            break;
        case QEvent::KeyPress: {
            auto* tecla = static_cast<QKeyEvent*>(evento);
            if (TeclaDeAcceso(*tecla)) {
                return true;
            }
            if (objeto == mFormulario.cboHorasTrabajadas) {
                tecla->ignore();
                cboHorasTrabajadas_KeyPress(*tecla);
                return tecla->isAccepted();
            }
            break;
        }
        default:
            break;
    }
    return QWidget::eventFilter(objeto, evento);
}

std::string frmAnalisisEconomico::Tag() const {
    return mModelo.Tag();
}

std::string frmAnalisisEconomico::Caption() const {
    return S(windowTitle());
}

std::string frmAnalisisEconomico::FileName() const {
    return S(FileNameDe(this));
}

void frmAnalisisEconomico::SetFileName(const std::string& nombre) {
    setProperty(kPropiedadFileName, Q(nombre));
}

int16_t frmAnalisisEconomico::FileState() const {
    return static_cast<int16_t>(FileStateDe(this));
}

void frmAnalisisEconomico::SetFileState(int16_t estado) {
    setProperty(kPropiedadFileState, static_cast<int>(estado));
}

}  // namespace kelvora
