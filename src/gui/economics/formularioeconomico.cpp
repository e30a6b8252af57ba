#include "gui/economics/formularioeconomico.h"

#include "gui/entry/cajavalor.h"
#include "gui/platform/texto.h"
#include "gui/thermal/fuentefija.h"

#include <QComboBox>
#include <QFontMetrics>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QVBoxLayout>

namespace kelvora {

namespace {

const QColor kFondoResultado(255, 255, 192);
const QColor kTextoResultado(0, 0, 128);
constexpr int kColEtiqueta = 0;
constexpr int kColCaja = 1;
constexpr int kColLista = 2;
// Characters of the widest amount or name a box shows whole.
constexpr int kAnchoCaja = 16;

// The width of a box: its widest text in the boxes' fixed-pitch font, and the frame.
int AnchoCaja() {
    return QFontMetrics(FuenteFija(10)).horizontalAdvance(QLatin1Char('0')) * kAnchoCaja + 10;
}

QString Nombre(const char* prefijo, int indice) {
    return QStringLiteral("%1_%2").arg(QLatin1String(prefijo)).arg(indice);
}

class Constructor {
public:
    Constructor(QWidget& ventana, const ModeloEconomico& modelo)
        : mVentana(ventana), mModelo(modelo), mDescripcion(modelo.Ventana()) {}

    FormularioEconomico Construir();

private:
    QGroupBox* Datos();
    QGroupBox* Resultados();
    void FilaCaja(QGridLayout& rejilla, int fila, int indice);
    void FilaLista(QGridLayout& rejilla, int fila, int etiqueta, QComboBox* lista);
    bool TieneLista(int indice) const;
    QLabel* Etiqueta(int indice);
    CajaValor* Caja(int indice);
    QLineEdit* CajaResultado(int indice);
    QComboBox* Lista(const QString& nombre, const ListaAnalisis& modelo, bool editable);
    QLayout* Botones();
    QPushButton* Boton(const char* nombre, const char* caption);
    void Ordenar(QWidget* control);

    QWidget& mVentana;
    const ModeloEconomico& mModelo;
    const VentanaEconomica& mDescripcion;
    FormularioEconomico mFormulario;
};

FormularioEconomico Constructor::Construir() {
    auto* columna = new QVBoxLayout(&mVentana);
    columna->addWidget(Datos());
    mFormulario.lblEstado = new QLabel(&mVentana);
    mFormulario.lblEstado->setObjectName(QStringLiteral("lblEstado"));
    mFormulario.lblEstado->setWordWrap(true);
    mFormulario.lblEstado->setMinimumHeight(2 * mFormulario.lblEstado->fontMetrics().lineSpacing());
    mFormulario.lblEstado->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    columna->addWidget(mFormulario.lblEstado);
    columna->addWidget(Resultados());
    columna->addStretch(1);
    columna->addLayout(Botones());
    return mFormulario;
}

// The orientations, the hours, the fuel with its name, price and calorific value, and last the
// efficiency of the equipment that burns it.
QGroupBox* Constructor::Datos() {
    auto* marco = new QGroupBox(QStringLiteral("Datos de Entrada"), &mVentana);
    marco->setObjectName(QStringLiteral("fraDatosEntrada"));
    mFormulario.fraDatosEntrada = marco;
    auto* rejilla = new QGridLayout(marco);
    rejilla->setColumnStretch(kColEtiqueta, 1);
    int fila = 0;
    for (const CajaEconomica& caja : mDescripcion.dimensiones) {
        FilaCaja(*rejilla, fila++, caja.indice);
    }
    mFormulario.cboHorasTrabajadas =
            Lista(QStringLiteral("cboHorasTrabajadas"), mModelo.cboHorasTrabajadas(), true);
    FilaLista(*rejilla, fila++, mDescripcion.indiceHoras, mFormulario.cboHorasTrabajadas);
    mFormulario.cboCombustibleUtilizado = Lista(QStringLiteral("cboCombustibleUtilizado"),
                                                mModelo.cboCombustibleUtilizado(), false);
    FilaLista(*rejilla, fila++, mDescripcion.indiceCombustible,
              mFormulario.cboCombustibleUtilizado);
    for (const CajaEconomica* caja : {&mDescripcion.nombreCombustible, &mDescripcion.valor,
                                      &mDescripcion.poder, &mDescripcion.eficiencia}) {
        FilaCaja(*rejilla, fila++, caja->indice);
    }
    return marco;
}

QGroupBox* Constructor::Resultados() {
    auto* marco = new QGroupBox(QStringLiteral("Resultados"), &mVentana);
    marco->setObjectName(QStringLiteral("fraResultados"));
    mFormulario.fraResultados = marco;
    auto* rejilla = new QGridLayout(marco);
    rejilla->setColumnStretch(kColEtiqueta, 1);
    int fila = 0;
    for (const CajaEconomica& caja : mDescripcion.resultados) {
        rejilla->addWidget(Etiqueta(caja.indice), fila, kColEtiqueta);
        rejilla->addWidget(CajaResultado(caja.indice), fila++, kColCaja);
    }
    return marco;
}

void Constructor::FilaCaja(QGridLayout& rejilla, int fila, int indice) {
    rejilla.addWidget(Etiqueta(indice), fila, kColEtiqueta);
    rejilla.addWidget(Caja(indice), fila, kColCaja);
    Ordenar(mFormulario.txtValor.at(indice));
    if (TieneLista(indice)) {
        QComboBox* unidad = Lista(Nombre("cboUnidad", indice), mModelo.cboUnidad(indice), false);
        mFormulario.cboUnidad[indice] = unidad;
        rejilla.addWidget(unidad, fila, kColLista);
        Ordenar(unidad);
    }
}

// The orientations take their units from a list, and the price its currency.
bool Constructor::TieneLista(int indice) const {
    for (const CajaEconomica& caja : mDescripcion.dimensiones) {
        if (caja.indice == indice) {
            return true;
        }
    }
    return indice == mDescripcion.valor.indice;
}

void Constructor::FilaLista(QGridLayout& rejilla, int fila, int etiqueta, QComboBox* lista) {
    QLabel* rotulo = Etiqueta(etiqueta);
    rotulo->setBuddy(lista);
    lista->setFixedWidth(AnchoCaja());
    rejilla.addWidget(rotulo, fila, kColEtiqueta);
    rejilla.addWidget(lista, fila, kColCaja);
    Ordenar(lista);
}

QLabel* Constructor::Etiqueta(int indice) {
    auto* etiqueta = new QLabel(Q(mModelo.lblEtiqueta(indice).Caption), &mVentana);
    etiqueta->setObjectName(Nombre("lblEtiqueta", indice));
    mFormulario.lblEtiqueta[indice] = etiqueta;
    return etiqueta;
}

CajaValor* Constructor::Caja(int indice) {
    auto* caja = new CajaValor(indice, &mVentana);
    caja->setFont(FuenteFija(10));
    caja->setFixedWidth(AnchoCaja());
    mFormulario.lblEtiqueta.at(indice)->setBuddy(caja);
    mFormulario.txtValor[indice] = caja;
    return caja;
}

QLineEdit* Constructor::CajaResultado(int indice) {
    auto* caja = new QLineEdit(&mVentana);
    caja->setObjectName(Nombre("txtValor", indice));
    caja->setReadOnly(true);
    caja->setFocusPolicy(Qt::NoFocus);
    QFont fuente = FuenteFija(10);
    fuente.setBold(true);
    caja->setFont(fuente);
    caja->setAlignment(Qt::AlignRight);
    caja->setFixedWidth(AnchoCaja());
    QPalette paleta = caja->palette();
    paleta.setColor(QPalette::Base, kFondoResultado);
    paleta.setColor(QPalette::Text, kTextoResultado);
    caja->setPalette(paleta);
    mFormulario.txtResultado[indice] = caja;
    return caja;
}

QComboBox* Constructor::Lista(const QString& nombre, const ListaAnalisis& modelo, bool editable) {
    auto* lista = new QComboBox(&mVentana);
    lista->setObjectName(nombre);
    lista->setEditable(editable);
    lista->setInsertPolicy(QComboBox::NoInsert);
    for (const std::string& entrada : modelo.entradas) {
        lista->addItem(Q(entrada));
    }
    lista->setToolTip(Q(modelo.ToolTipText));
    lista->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    return lista;
}

QLayout* Constructor::Botones() {
    auto* fila = new QHBoxLayout;
    fila->addStretch(1);
    mFormulario.cmdAceptar = Boton("cmdAceptar", "C&alcular");
    mFormulario.cmdCancelar = Boton("cmdCancelar", "&Cancelar");
    fila->addWidget(mFormulario.cmdAceptar);
    fila->addWidget(mFormulario.cmdCancelar);
    return fila;
}

QPushButton* Constructor::Boton(const char* nombre, const char* caption) {
    auto* boton = new QPushButton(QString::fromUtf8(caption), &mVentana);
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setAutoDefault(true);
    Ordenar(boton);
    return boton;
}

void Constructor::Ordenar(QWidget* control) {
    if (!mFormulario.ordenTabulacion.empty()) {
        QWidget::setTabOrder(mFormulario.ordenTabulacion.back(), control);
    }
    mFormulario.ordenTabulacion.push_back(control);
}

}  // namespace

FormularioEconomico CrearFormularioEconomico(QWidget& ventana, const ModeloEconomico& modelo) {
    return Constructor(ventana, modelo).Construir();
}

}  // namespace kelvora
