#include "gui/materials/frmconsultarmateriales.h"

#include "gui/materials/teclasmateriales.h"
#include "gui/platform/texto.h"
#include "gui/thermal/tablagrilla.h"
#include "ui_frmconsultarmateriales.h"

#include <QHeaderView>
#include <QKeyEvent>
#include <QScopedValueRollback>
#include <QShortcut>

#include <algorithm>

namespace kelvora {

namespace {

bool EsEnter(const QKeyEvent& tecla) {
    return tecla.key() == Qt::Key_Return || tecla.key() == Qt::Key_Enter;
}

bool MismasCeldas(const Grilla& a, const Grilla& b) {
    if (a.Rows() != b.Rows() || a.Cols() != b.Cols()) {
        return false;
    }
    for (int f = 0; f < a.Rows(); ++f) {
        for (int c = 0; c < a.Cols(); ++c) {
            if (a.TextMatrix(f, c) != b.TextMatrix(f, c)) {
                return false;
            }
        }
    }
    return true;
}

void LlenarLista(QComboBox& lista, const std::vector<std::string>& entradas, int indice) {
    const QSignalBlocker bloqueo(&lista);
    QStringList textos;
    for (const std::string& entrada : entradas) {
        textos.append(Q(entrada));
    }
    QStringList actuales;
    for (int i = 0; i < lista.count(); ++i) {
        actuales.append(lista.itemText(i));
    }
    if (actuales != textos) {
        lista.clear();
        lista.addItems(textos);
    }
    lista.setCurrentIndex(indice);
}

}  // namespace

frmConsultarMateriales::frmConsultarMateriales(ModeloConsultaMateriales& modelo, QWidget* padre)
    : QWidget(padre), mModelo(modelo), mUi(std::make_unique<Ui::frmConsultarMateriales>()) {
    mUi->setupUi(this);
    ConectarFormulario();
    ConectarGrilla();
    ConectarBotones();
    Refrescar();
}

frmConsultarMateriales::~frmConsultarMateriales() = default;

QLineEdit* frmConsultarMateriales::Caja(int i) const {
    QLineEdit* cajas[] = {mUi->txtValor_1, mUi->txtValor_2, mUi->txtValor_3};
    return cajas[i - 1];
}

void frmConsultarMateriales::ConectarFormulario() {
    connect(mUi->cboTipoConsulta, &QComboBox::currentIndexChanged, this, [this](int indice) {
        mModelo.Formulario().cboTipoConsulta_Click(indice);
        Refrescar();
    });
    connect(mUi->cboRelacion, &QComboBox::currentIndexChanged, this, [this](int indice) {
        mModelo.Formulario().cboRelacion_Click(indice);
        Refrescar();
    });
    for (int i = 1; i <= 3; ++i) {
        QLineEdit* caja = Caja(i);
        caja->installEventFilter(this);
        connect(caja, &QLineEdit::textEdited, this, [this, i](const QString& texto) {
            mModelo.Formulario().SetTexto(i, S(texto));
            Refrescar();
        });
    }
    mUi->cboTipoConsulta->installEventFilter(this);
    mUi->cboRelacion->installEventFilter(this);
}

void frmConsultarMateriales::ConectarGrilla() {
    QTableWidget* grilla = mUi->MSFGResultados;
    // Rows as tight as a flexible grid's: one line of text and a small margin.
    const int alto = grilla->fontMetrics().height() + 6;
    grilla->verticalHeader()->setMinimumSectionSize(alto);
    grilla->verticalHeader()->setDefaultSectionSize(alto);
    grilla->installEventFilter(this);
    connect(grilla, &QTableWidget::itemSelectionChanged, this,
            &frmConsultarMateriales::TomarSeleccion);
    connect(grilla, &QTableWidget::cellDoubleClicked, this,
            [this] { Ejecutar(&ModeloConsultaMateriales::Aceptar); });
    auto* modificar = new QShortcut(QKeySequence(Qt::CTRL | Qt::Key_M), this);
    modificar->setContext(Qt::WidgetWithChildrenShortcut);
    connect(modificar, &QShortcut::activated, this,
            [this] { Ejecutar(&ModeloConsultaMateriales::Modificar); });
}

void frmConsultarMateriales::ConectarBotones() {
    connect(mUi->cmdConsultar, &QPushButton::clicked, this,
            [this] { Ejecutar(&ModeloConsultaMateriales::cmdConsultar_Click); });
    connect(mUi->cmdMostrarTodo, &QPushButton::clicked, this,
            [this] { Ejecutar(&ModeloConsultaMateriales::cmdMostrarTodo_Click); });
    connect(mUi->cmdAceptar, &QPushButton::clicked, this,
            [this] { Ejecutar(&ModeloConsultaMateriales::Aceptar); });
    connect(mUi->cmdNuevo, &QPushButton::clicked, this,
            [this] { Ejecutar(&ModeloConsultaMateriales::cmdNuevo_Click); });
    connect(mUi->cmdCancelar, &QPushButton::clicked, this, &QWidget::close);
    auto* escape = new QShortcut(QKeySequence(Qt::Key_Escape), this);
    escape->setContext(Qt::WidgetWithChildrenShortcut);
    connect(escape, &QShortcut::activated, mUi->cmdCancelar, &QPushButton::click);
}

void frmConsultarMateriales::Ejecutar(void (ModeloConsultaMateriales::*comando)()) {
    (mModelo.*comando)();
    Refrescar();
}

// A message box of the activation may hand the activation back when it closes.
void frmConsultarMateriales::Activar() {
    if (mActivando) {
        return;
    }
    const QScopedValueRollback activando(mActivando, true);
    Ejecutar(&ModeloConsultaMateriales::Activar);
    mUi->MSFGResultados->setFocus(Qt::OtherFocusReason);
    focusNextChild();
}

bool frmConsultarMateriales::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::FocusIn) {
        SeleccionarAlEntrar(objeto);
    }
    if (evento->type() != QEvent::KeyPress) {
        return QWidget::eventFilter(objeto, evento);
    }
    const auto& tecla = static_cast<const QKeyEvent&>(*evento);
    if (objeto == mUi->txtValor_1 || objeto == mUi->txtValor_2) {
        return TeclaCajaNumero(objeto == mUi->txtValor_1 ? 1 : 2, tecla);
    }
    if (objeto == mUi->MSFGResultados) {
        return TeclaGrilla(tecla);
    }
    if ((objeto == mUi->cboTipoConsulta || objeto == mUi->cboRelacion) && EsEnter(tecla)) {
        focusNextChild();
        return true;
    }
    return QWidget::eventFilter(objeto, evento);
}

// A box takes the focus with its text selected, after the click that brought it there.
void frmConsultarMateriales::SeleccionarAlEntrar(QObject* objeto) {
    for (int i = 1; i <= 3; ++i) {
        if (objeto == Caja(i)) {
            QMetaObject::invokeMethod(Caja(i), &QLineEdit::selectAll, Qt::QueuedConnection);
        }
    }
}

bool frmConsultarMateriales::TeclaCajaNumero(int i, const QKeyEvent& tecla) {
    const std::optional<int> KeyAscii = KeyAsciiDe(tecla);
    if (!KeyAscii) {
        return false;
    }
    QLineEdit& caja = *Caja(i);
    const ResultadoTeclaNumerica resultado = FiltrarTeclaNumerica(
            S(caja.text()), CaretDe(caja), SeleccionDe(caja), *KeyAscii, false);
    MostrarTecla(caja, resultado);
    mModelo.Formulario().SetTexto(i, resultado.texto);
    Refrescar();
    if (resultado.tab) {
        focusNextChild();
    }
    return true;
}

bool frmConsultarMateriales::TeclaGrilla(const QKeyEvent& tecla) {
    if (tecla.modifiers() != Qt::NoModifier && tecla.modifiers() != Qt::KeypadModifier) {
        return false;
    }
    if (EsEnter(tecla)) {
        Ejecutar(&ModeloConsultaMateriales::Aceptar);
        return true;
    }
    if (tecla.key() == Qt::Key_Delete) {
        Ejecutar(&ModeloConsultaMateriales::Eliminar);
        return true;
    }
    return false;
}

// The grid's rows are the model's from 1: its heading row is the table's header.
void frmConsultarMateriales::TomarSeleccion() {
    const QList<QTableWidgetSelectionRange> rangos = mUi->MSFGResultados->selectedRanges();
    if (rangos.isEmpty()) {
        mModelo.SetSeleccion(0, 0);
        return;
    }
    int arriba = rangos.front().topRow();
    int abajo = rangos.front().bottomRow();
    for (const QTableWidgetSelectionRange& rango : rangos) {
        arriba = std::min(arriba, rango.topRow());
        abajo = std::max(abajo, rango.bottomRow());
    }
    mModelo.SetSeleccion(arriba + 1, abajo + 1);
}

void frmConsultarMateriales::Refrescar() {
    RefrescarFormulario();
    RefrescarGrilla();
    RefrescarSeleccion();
    RefrescarBotones();
}

void frmConsultarMateriales::RefrescarFormulario() {
    const FormularioConsulta& formulario = mModelo.Formulario();
    LlenarLista(*mUi->cboTipoConsulta, FormularioConsulta::TiposConsulta(),
                formulario.TipoConsulta());
    LlenarLista(*mUi->cboRelacion, formulario.Relaciones(), formulario.Relacion());
    for (int i = 1; i <= 3; ++i) {
        QLineEdit* caja = Caja(i);
        const QString texto = Q(formulario.Texto(i));
        if (caja->text() != texto) {
            caja->setText(texto);
        }
        caja->setVisible(formulario.Visible(i));
    }
    mUi->lblA->setVisible(formulario.lblAVisible());
    mUi->cmdConsultar->setEnabled(mModelo.cmdConsultarEnabled());
    mUi->cmdMostrarTodo->setVisible(mModelo.cmdMostrarTodoVisible());
}

void frmConsultarMateriales::RefrescarGrilla() {
    const Grilla& grilla = mModelo.MSFGResultados();
    if (MismasCeldas(grilla, mMostrada) && mMostrada.Rows() > 0) {
        return;
    }
    mMostrada = grilla;
    QTableWidget& tabla = *mUi->MSFGResultados;
    const QSignalBlocker bloqueo(&tabla);
    tabla.clearContents();
    tabla.setColumnCount(grilla.Cols());
    tabla.setRowCount(grilla.Rows() - 1);
    QStringList encabezados;
    for (int c = 0; c < grilla.Cols(); ++c) {
        encabezados.append(Q(grilla.TextMatrix(0, c)));
    }
    tabla.setHorizontalHeaderLabels(encabezados);
    for (int f = 1; f < grilla.Rows(); ++f) {
        for (int c = 0; c < grilla.Cols(); ++c) {
            auto* celda = new QTableWidgetItem(Q(grilla.TextMatrix(f, c)));
            celda->setTextAlignment(AlineacionDe(grilla.Estilo(f, c).alineacion));
            tabla.setItem(f - 1, c, celda);
        }
    }
    QHeaderView& cabecera = *tabla.horizontalHeader();
    for (int c = 0; c < grilla.Cols(); ++c) {
        cabecera.setSectionResizeMode(
                c, c == 1 ? QHeaderView::Stretch : QHeaderView::ResizeToContents);
    }
}

void frmConsultarMateriales::RefrescarSeleccion() {
    QTableWidget& tabla = *mUi->MSFGResultados;
    const QSignalBlocker bloqueo(&tabla);
    const int arriba = std::min(mModelo.Row(), mModelo.RowSel());
    const int abajo = std::max(mModelo.Row(), mModelo.RowSel());
    if (arriba == 0) {
        tabla.clearSelection();
        return;
    }
    const QList<QTableWidgetSelectionRange> rangos = tabla.selectedRanges();
    if (rangos.size() == 1 && rangos.front().topRow() == arriba - 1 &&
        rangos.front().bottomRow() == abajo - 1) {
        return;
    }
    tabla.clearSelection();
    tabla.setCurrentCell(mModelo.Row() - 1, 0, QItemSelectionModel::NoUpdate);
    tabla.setRangeSelected(
            QTableWidgetSelectionRange(arriba - 1, 0, abajo - 1, tabla.columnCount() - 1), true);
}

void frmConsultarMateriales::RefrescarBotones() {
    mUi->cmdAceptar->setText(Q(mModelo.cmdAceptarCaption()));
    mUi->cmdAceptar->setToolTip(Q(mModelo.cmdAceptarToolTipText()));
    mUi->cmdAceptar->setEnabled(mModelo.cmdAceptarEnabled());
    mUi->cmdNuevo->setEnabled(mModelo.cmdNuevoEnabled());
}

}  // namespace kelvora
