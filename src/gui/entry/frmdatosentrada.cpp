#include "gui/entry/frmdatosentrada.h"

#include "core/thermal/productos.h"
#include "gui/app/ventanahija.h"
#include "gui/charts/aperturagraficas.h"
#include "gui/economics/analisiseconomico.h"
#include "gui/entry/cajavalor.h"
#include "gui/entry/destinoventanas.h"
#include "gui/platform/texto.h"
#include "gui/thermal/frmresultados.h"

#include <QApplication>
#include <QCloseEvent>
#include <QComboBox>
#include <QKeyEvent>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QShortcut>
#include <QToolButton>

#include <algorithm>

namespace kelvora {

namespace {

constexpr int kEnter = 13;

bool EsEnter(const QKeyEvent& tecla) {
    return tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
}

bool EsTeclaDeAcceso(const QKeyEvent& tecla) {
    return tecla.modifiers() == Qt::AltModifier && tecla.key() >= Qt::Key_A &&
           tecla.key() <= Qt::Key_Z;
}

bool TieneTecla(const QString& caption, const QKeyEvent& tecla) {
    return QKeySequence::mnemonic(caption) == QKeySequence(Qt::ALT | Qt::Key(tecla.key()));
}

template <class T>
int IndiceEn(const std::vector<T*>& controles, const QObject* objeto) {
    for (size_t i = 1; i < controles.size(); ++i) {
        if (controles[i] != nullptr && controles[i] == objeto) {
            return static_cast<int>(i);
        }
    }
    return 0;
}

}  // namespace

frmDatosEntrada::frmDatosEntrada(const DescripcionEntrada& descripcion, EntornoVentanas entorno,
                                 QWidget* padre)
    : VentanaActivable(padre),
      mEntorno(std::move(entorno)),
      mMateriales(mEntorno.contexto),
      mModelo(descripcion, EntornoModelo()),
      mFormulario(CrearFormulario(*this, mModelo)) {
    setObjectName(QString::fromUtf8(descripcion.nombre));
    Conectar();
    mPublicar = true;
    Refrescar();
}

EntornoEntrada frmDatosEntrada::EntornoModelo() {
    std::function<void(int)> consultar;
    if (mEntorno.ConsultarMateriales) {
        consultar = [this](int cajaCodigo) { mEntorno.ConsultarMateriales(this, cajaCodigo); };
    }
    return {mEntorno.prompter, mEntorno.contexto, mMateriales, mBomba, [this] { PublicarEstado(); },
            consultar};
}

void frmDatosEntrada::Conectar() {
    for (CajaValor* caja : mFormulario.txtValor) {
        if (caja != nullptr) {
            ConectarCaja(caja);
        }
    }
    for (size_t i = 1; i < mFormulario.cboUnidad.size(); ++i) {
        QComboBox* lista = mFormulario.cboUnidad[i];
        if (lista != nullptr) {
            lista->installEventFilter(this);
            connect(lista, &QComboBox::activated, this, [this, i](int indice) {
                mModelo.SeleccionarUnidad(static_cast<int>(i), indice);
                Refrescar();
            });
        }
    }
    for (size_t k = 1; k < mFormulario.cmdConsultarMaterial.size(); ++k) {
        QPushButton* boton = mFormulario.cmdConsultarMaterial[k];
        boton->installEventFilter(this);
        connect(boton, &QPushButton::clicked, this,
                [this, k] { cmdConsultarMaterial_Click(static_cast<int>(k)); });
    }
    for (QPushButton* boton :
         {mFormulario.cmdAceptar, mFormulario.cmdCancelar, mFormulario.cmdGraficar}) {
        boton->installEventFilter(this);
    }
    connect(mFormulario.cmdAceptar, &QPushButton::clicked, this,
            &frmDatosEntrada::cmdAceptar_Click);
    connect(mFormulario.cmdCancelar, &QPushButton::clicked, this, &QWidget::close);
    connect(mFormulario.cmdGraficar, &QPushButton::clicked, this,
            [this] { MostrarMenuGraficar(*mFormulario.cmdGraficar); });
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, mFormulario.cmdCancelar, &QPushButton::click);
    connect(mFormulario.mnuProductos, &QMenu::triggered, this, [this](QAction* accion) {
        mModelo.tbrProducto_ButtonMenuClick(S(accion->data().toString()));
        Refrescar();
    });
    mFormulario.lblProducto->installEventFilter(this);
}

void frmDatosEntrada::ConectarCaja(CajaValor* caja) {
    caja->installEventFilter(this);
    connect(caja, &CajaValor::Tecla, this, &frmDatosEntrada::txtValor_KeyPress);
    connect(caja, &QLineEdit::textEdited, this, [this, caja] { txtValor_Editada(caja->Indice()); });
}

void frmDatosEntrada::PonerProducto(int16_t tipo) {
    mModelo.SetTipoAnalisis(tipo);
    mModelo.SetLblProducto(NombreProducto(tipo, false));
    Refrescar();
}

void frmDatosEntrada::Activar() {
    mModelo.Activar();
    Refrescar();
}

void frmDatosEntrada::txtValor_KeyPress(int i, int KeyAscii) {
    const CajaValor* caja = mFormulario.txtValor[static_cast<size_t>(i)];
    const int inicio = caja->hasSelectedText() ? caja->selectionStart() : caja->cursorPosition();
    mModelo.SetSeleccion(i, inicio, static_cast<int>(caja->selectedText().size()));
    mModelo.txtValor_KeyPress(i, KeyAscii);
    Refrescar();
}

// Delete and cut change a box without a key for the filter; the model takes the text as it is.
void frmDatosEntrada::txtValor_Editada(int i) {
    const CajaValor* caja = mFormulario.txtValor[static_cast<size_t>(i)];
    const int caret = caja->cursorPosition();
    mModelo.SetTexto(i, S(caja->text()));
    mModelo.SetSeleccion(i, caret);
    Refrescar();
}

void frmDatosEntrada::cmdAceptar_Click() {
    ++mCalculos;
    QApplication::setOverrideCursor(Qt::WaitCursor);
    bool bien = false;
    {
        DestinoVentanas destino(mEntorno);
        bien = mModelo.cmdAceptar_Click(destino) && destino.Ventana() != nullptr;
        if (bien) {
            destino.Ventana()->MostrarGrilla();
            ConectarAnalisisEconomico(*destino.Ventana(), mEntorno);
        }
    }
    QApplication::restoreOverrideCursor();
    --mCalculos;
    // With no results window standing, the focus comes back to the control the model holds.
    if (!bien) {
        mFocoMostrado = {};
    }
    Refrescar();
    if (mCerrarAlTerminar && mCalculos == 0) {
        mCerrarAlTerminar = false;
        close();
    }
}

void frmDatosEntrada::cmdConsultarMaterial_Click(int k) {
    mModelo.cmdConsultarMaterial_Click(k);
    Refrescar();
}

void frmDatosEntrada::DesplegarProductos() {
    mFormulario.tbrProducto->showMenu();
}

void frmDatosEntrada::Refrescar() {
    if (windowTitle() != Q(mModelo.Caption())) {
        setWindowTitle(Q(mModelo.Caption()));
    }
    for (int i = 1; i <= mModelo.Ventana().Cajas(); ++i) {
        RefrescarCaja(i);
        if (QComboBox* lista = mFormulario.cboUnidad[static_cast<size_t>(i)]) {
            const QSignalBlocker bloqueo(lista);
            lista->setCurrentIndex(mModelo.Lista(i).ListIndex);
        }
    }
    mFormulario.lblEstado->setText(Q(mModelo.lblEstado()));
    mFormulario.lblProducto->setText(Q(mModelo.lblProducto()));
    mFormulario.tbrProducto->setText(Q(mModelo.lblProducto()));
    RefrescarBotones();
    PublicarEstado();
    LlevarFoco();
}

// The caret of a box is the model's when its text changed or when it has the focus; the
// others keep where the user left it.
void frmDatosEntrada::RefrescarCaja(int i) {
    CajaValor* caja = mFormulario.txtValor[static_cast<size_t>(i)];
    const CajaTexto& modelo = mModelo.Caja(i);
    const QString texto = Q(modelo.Text);
    const bool cambio = caja->text() != texto;
    if (cambio) {
        caja->setText(texto);
    }
    if (cambio || mModelo.ControlActivo() == Control{TipoControl::Caja, i}) {
        if (modelo.SelLength > 0) {
            caja->setSelection(modelo.SelStart, modelo.SelLength);
        } else {
            caja->setCursorPosition(modelo.SelStart);
        }
    }
    caja->setToolTip(Q(modelo.ToolTipText));
}

void frmDatosEntrada::RefrescarBotones() {
    mFormulario.cmdAceptar->setEnabled(mModelo.cmdAceptarEnabled());
    mFormulario.cmdGraficar->setEnabled(mModelo.cmdGraficarEnabled());
    for (size_t k = 1; k < mFormulario.cmdConsultarMaterial.size(); ++k) {
        const BotonConsultar& boton = mModelo.cmdConsultarMaterial(static_cast<int>(k));
        mFormulario.cmdConsultarMaterial[k]->setText(Q(boton.Caption));
        mFormulario.cmdConsultarMaterial[k]->setToolTip(Q(boton.ToolTipText));
    }
}

void frmDatosEntrada::PublicarEstado() {
    if (!mPublicar) {
        return;
    }
    const QString tag = Q(mModelo.Tag());
    if (TagDe(this) != tag) {
        setProperty(kPropiedadTag, tag);
    }
    const QString archivo = Q(mModelo.FileName());
    if (FileNameDe(this) != archivo || !property(kPropiedadFileName).isValid()) {
        setProperty(kPropiedadFileName, archivo);
    }
    if (FileStateDe(this) != mModelo.FileState() || !property(kPropiedadFileState).isValid()) {
        setProperty(kPropiedadFileState, static_cast<int>(mModelo.FileState()));
    }
}

// The model moves the focus with its {TAB}s and its checks; the window follows it.
void frmDatosEntrada::LlevarFoco() {
    const Control activo = mModelo.ControlActivo();
    if (activo == mFocoMostrado) {
        return;
    }
    mFocoMostrado = activo;
    QWidget* control = mFormulario.Widget(activo);
    if (control != nullptr && control->isEnabled() && !control->hasFocus()) {
        control->setFocus(Qt::OtherFocusReason);
    }
}

Control frmDatosEntrada::ControlDe(const QObject* objeto) const {
    if (const int i = IndiceEn(mFormulario.txtValor, objeto)) {
        return {TipoControl::Caja, i};
    }
    if (const int i = IndiceEn(mFormulario.cboUnidad, objeto)) {
        return {TipoControl::Lista, i};
    }
    if (const int k = IndiceEn(mFormulario.cmdConsultarMaterial, objeto)) {
        return {TipoControl::Consultar, k};
    }
    if (objeto == mFormulario.cmdAceptar) {
        return {TipoControl::Aceptar};
    }
    if (objeto == mFormulario.cmdCancelar) {
        return {TipoControl::Cancelar};
    }
    if (objeto == mFormulario.cmdGraficar) {
        return {TipoControl::Graficar};
    }
    return {};
}

void frmDatosEntrada::GotFocus(const QObject* objeto) {
    const Control control = ControlDe(objeto);
    if (control.tipo == TipoControl::Ninguno || control == mModelo.ControlActivo()) {
        return;
    }
    mModelo.EstablecerFoco(control);
    mFocoMostrado = control;
    Refrescar();
}

bool frmDatosEntrada::TeclaDeLista(const QObject* objeto, const QKeyEvent& tecla) {
    const Control control = ControlDe(objeto);
    if (control.tipo == TipoControl::Lista && EsEnter(tecla)) {
        mModelo.cboUnidad_KeyPress(control.indice, kEnter);
        Refrescar();
    }
    return false;
}

// The window's own access keys win over the frame's menus while the focus is in it.
QWidget* frmDatosEntrada::DestinoTeclaAcceso(const QKeyEvent& tecla) const {
    if (!EsTeclaDeAcceso(tecla)) {
        return nullptr;
    }
    for (QLabel* etiqueta : mFormulario.lblEtiqueta) {
        if (etiqueta != nullptr && etiqueta->buddy() != nullptr && etiqueta->buddy()->isEnabled() &&
            TieneTecla(etiqueta->text(), tecla)) {
            return etiqueta->buddy();
        }
    }
    std::vector<QPushButton*> botones = {mFormulario.cmdAceptar, mFormulario.cmdCancelar,
                                         mFormulario.cmdGraficar};
    botones.insert(botones.end(), mFormulario.cmdConsultarMaterial.begin() + 1,
                   mFormulario.cmdConsultarMaterial.end());
    for (QPushButton* boton : botones) {
        if (boton->isEnabled() && TieneTecla(boton->text(), tecla)) {
            return boton;
        }
    }
    return nullptr;
}

bool frmDatosEntrada::eventFilter(QObject* objeto, QEvent* evento) {
    switch (evento->type()) {
        case QEvent::FocusIn:
            GotFocus(objeto);
            break;
        case QEvent::MouseButtonRelease:
            if (objeto == mFormulario.lblProducto) {
                DesplegarProductos();
                return true;
            }
            break;
        case QEvent::ShortcutOverride:
            if (DestinoTeclaAcceso(*static_cast<QKeyEvent*>(evento)) != nullptr) {
                evento->accept();
                return true;
            }
            break;
        case QEvent::KeyPress: {
            const auto* tecla = static_cast<QKeyEvent*>(evento);
            if (QWidget* destino = DestinoTeclaAcceso(*tecla)) {
                destino->setFocus(Qt::ShortcutFocusReason);
                if (auto* boton = qobject_cast<QPushButton*>(destino)) {
                    boton->click();
                }
                return true;
            }
            return TeclaDeLista(objeto, *tecla);
        }
        default:
            break;
    }
    return QWidget::eventFilter(objeto, evento);
}

// Tab walks the controls in the window's order and wraps within the window.
bool frmDatosEntrada::focusNextPrevChild(bool siguiente) {
    const std::vector<Control>& orden = mModelo.OrdenTabulacion();
    const Control actual = ControlDe(QApplication::focusWidget());
    const auto encontrado =
            std::find(orden.begin(), orden.end(),
                      actual.tipo == TipoControl::Ninguno ? mModelo.ControlActivo() : actual);
    const size_t n = orden.size();
    size_t posicion =
            encontrado == orden.end() ? n - 1 : static_cast<size_t>(encontrado - orden.begin());
    for (size_t paso = 0; paso < n; ++paso) {
        posicion = siguiente ? (posicion + 1) % n : (posicion + n - 1) % n;
        QWidget* control = mFormulario.Widget(orden[posicion]);
        if (control != nullptr && control->isEnabled() && control->isVisible()) {
            control->setFocus(siguiente ? Qt::TabFocusReason : Qt::BacktabFocusReason);
            return true;
        }
    }
    return false;
}

void frmDatosEntrada::closeEvent(QCloseEvent* evento) {
    if (mCalculos > 0) {
        mCerrarAlTerminar = true;
        evento->ignore();
        return;
    }
    if (mEntorno.PreguntarGuardar && !mEntorno.PreguntarGuardar(this)) {
        evento->ignore();
        return;
    }
    mModelo.Form_Unload();
    evento->accept();
}

std::string frmDatosEntrada::Tag() const {
    return mModelo.Tag();
}

std::string frmDatosEntrada::Caption() const {
    return mModelo.Caption();
}

std::string frmDatosEntrada::FileName() const {
    return mModelo.FileName();
}

void frmDatosEntrada::SetFileName(const std::string& nombre) {
    mModelo.SetFileName(nombre);
    PublicarEstado();
}

int16_t frmDatosEntrada::FileState() const {
    return static_cast<int16_t>(mModelo.FileState());
}

void frmDatosEntrada::SetFileState(int16_t estado) {
    mModelo.SetFileState(estado);
    PublicarEstado();
}

int16_t frmDatosEntrada::TipoAnalisis() const {
    return static_cast<int16_t>(mModelo.TipoAnalisis());
}

classUnidades* frmDatosEntrada::Unit() {
    return &mModelo.Unit();
}

void frmDatosEntrada::ShowVariables() {
    mModelo.ShowVariables();
    Refrescar();
}

}  // namespace kelvora
