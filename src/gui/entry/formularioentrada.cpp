#include "gui/entry/formularioentrada.h"

#include "gui/entry/cajavalor.h"
#include "gui/platform/texto.h"
#include "gui/thermal/fuentefija.h"
#include "gui/thermal/membrete.h"

#include <QComboBox>
#include <QGridLayout>
#include <QGroupBox>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QToolButton>
#include <QVBoxLayout>

namespace kelvora {

namespace {

const QColor kFondoEmisividad(255, 255, 192);
constexpr int kColEtiqueta = 0;
constexpr int kColCaja = 1;
constexpr int kColLista = 2;
constexpr int kColEmisividad = 3;
// 300 twips at 96 dots per inch.
constexpr int kHolguraProducto = 20;

QString Texto(const char* texto) {
    return QString::fromUtf8(texto);
}

class Constructor {
public:
    Constructor(QWidget& ventana, const ModeloEntrada& modelo)
        : mVentana(ventana), mModelo(modelo), mDescripcion(modelo.Ventana()) {}

    FormularioEntrada Construir();

private:
    QGroupBox* Producto();
    QGroupBox* Campos();
    void Fila(QGridLayout& rejilla, int fila, int i);
    void FilaMaterial(QGridLayout& rejilla, int fila, const BotonMaterial& boton, int k);
    void Cabeceras(QGridLayout& rejilla, int fila);
    QLabel* Etiqueta(int i);
    CajaValor* Caja(int i);
    QComboBox* Lista(int i);
    QLayout* Botones();
    QPushButton* Boton(const char* nombre, const char* caption, const char* toolTip);
    void OrdenTabulacion();

    QWidget& mVentana;
    const ModeloEntrada& mModelo;
    const DescripcionEntrada& mDescripcion;
    FormularioEntrada mFormulario;
};

FormularioEntrada Constructor::Construir() {
    const size_t n = static_cast<size_t>(mDescripcion.Cajas()) + 1;
    mFormulario.lblEtiqueta.assign(n, nullptr);
    mFormulario.txtValor.assign(n, nullptr);
    mFormulario.cboUnidad.assign(n, nullptr);
    mFormulario.cmdConsultarMaterial.assign(mDescripcion.materiales.size() + 1, nullptr);
    auto* columna = new QVBoxLayout(&mVentana);
    columna->addWidget(new Membrete(&mVentana));
    columna->addWidget(Producto());
    columna->addWidget(Campos());
    mFormulario.lblEstado = new QLabel(&mVentana);
    mFormulario.lblEstado->setObjectName(QStringLiteral("lblEstado"));
    mFormulario.lblEstado->setWordWrap(true);
    mFormulario.lblEstado->setMinimumHeight(2 * mFormulario.lblEstado->fontMetrics().lineSpacing());
    mFormulario.lblEstado->setAlignment(Qt::AlignLeft | Qt::AlignTop);
    columna->addWidget(mFormulario.lblEstado);
    columna->addStretch(1);
    columna->addLayout(Botones());
    OrdenTabulacion();
    return mFormulario;
}

QGroupBox* Constructor::Producto() {
    auto* marco = new QGroupBox(&mVentana);
    marco->setObjectName(QStringLiteral("fraProducto"));
    auto* etiqueta = new QLabel(marco);
    etiqueta->setObjectName(QStringLiteral("lblProducto"));
    etiqueta->setAlignment(Qt::AlignCenter);
    etiqueta->setToolTip(QStringLiteral("Haga click aquí para cambiar el tipo de producto"));
    etiqueta->setCursor(Qt::PointingHandCursor);
    QFont negrita = etiqueta->font();
    negrita.setBold(true);
    negrita.setPointSizeF(negrita.pointSizeF() * 1.2);
    etiqueta->setFont(negrita);
    auto* menu = new QMenu(marco);
    menu->setObjectName(QStringLiteral("mnuProductos"));
    for (const ProductoMenu& producto : mDescripcion.productos) {
        menu->addAction(Texto(producto.texto))->setData(QString::fromLatin1(producto.clave));
    }
    auto* boton = new QToolButton(marco);
    boton->setObjectName(QStringLiteral("tbrProducto"));
    boton->setMenu(menu);
    boton->setPopupMode(QToolButton::InstantPopup);
    boton->setFocusPolicy(Qt::NoFocus);
    boton->setMinimumWidth(
            boton->fontMetrics().horizontalAdvance(Texto(mDescripcion.productoReferencia)) +
            kHolguraProducto);
    auto* fila = new QHBoxLayout(marco);
    fila->addWidget(etiqueta, 1);
    fila->addWidget(boton);
    mFormulario.fraProducto = marco;
    mFormulario.lblProducto = etiqueta;
    mFormulario.tbrProducto = boton;
    mFormulario.mnuProductos = menu;
    return marco;
}

QGroupBox* Constructor::Campos() {
    auto* marco = new QGroupBox(QStringLiteral("Datos de Entrada"), &mVentana);
    marco->setObjectName(QStringLiteral("fraDatosEntrada"));
    mFormulario.fraDatosEntrada = marco;
    auto* rejilla = new QGridLayout(marco);
    rejilla->setColumnStretch(kColEtiqueta, 1);
    int fila = 0;
    for (int i = 1; i <= mDescripcion.Cajas(); ++i) {
        const BotonMaterial* boton = mDescripcion.MaterialDeCaja(i);
        if (boton == nullptr) {
            Fila(*rejilla, fila++, i);
        } else if (boton->cajaCodigo == i) {
            if (boton == &mDescripcion.materiales.front()) {
                Cabeceras(*rejilla, fila++);
            }
            FilaMaterial(*rejilla, fila++, *boton,
                         static_cast<int>(boton - mDescripcion.materiales.data()) + 1);
        }
    }
    return marco;
}

void Constructor::Fila(QGridLayout& rejilla, int fila, int i) {
    rejilla.addWidget(Etiqueta(i), fila, kColEtiqueta);
    rejilla.addWidget(Caja(i), fila, kColCaja);
    if (mModelo.TieneLista(i)) {
        rejilla.addWidget(Lista(i), fila, kColLista);
    } else if (*mDescripcion.Campo(i).etiquetaUnidad != '\0') {
        auto* unidad = new QLabel(Texto(mDescripcion.Campo(i).etiquetaUnidad), &mVentana);
        unidad->setObjectName(QStringLiteral("lblUnidad_%1").arg(i));
        rejilla.addWidget(unidad, fila, kColLista, 1, 2);
    }
}

void Constructor::Cabeceras(QGridLayout& rejilla, int fila) {
    auto* codigo = new QLabel(Texto(kColumnaCodigo), &mVentana);
    codigo->setObjectName(QStringLiteral("lblCodigoMaterial"));
    auto* emisividad = new QLabel(Texto(kColumnaEmisividad), &mVentana);
    emisividad->setObjectName(QStringLiteral("lblEmisividad"));
    rejilla.addWidget(codigo, fila, kColCaja, Qt::AlignBottom);
    rejilla.addWidget(emisividad, fila, kColEmisividad, Qt::AlignBottom);
}

void Constructor::FilaMaterial(QGridLayout& rejilla, int fila, const BotonMaterial& boton, int k) {
    rejilla.addWidget(Etiqueta(boton.cajaCodigo), fila, kColEtiqueta);
    rejilla.addWidget(Caja(boton.cajaCodigo), fila, kColCaja);
    auto* consultar = new QPushButton(&mVentana);
    consultar->setObjectName(QStringLiteral("cmdConsultarMaterial_%1").arg(k));
    consultar->setAutoDefault(true);
    mFormulario.cmdConsultarMaterial[static_cast<size_t>(k)] = consultar;
    rejilla.addWidget(consultar, fila, kColLista);
    rejilla.addWidget(Caja(boton.cajaEmisividad), fila, kColEmisividad);
}

QLabel* Constructor::Etiqueta(int i) {
    auto* etiqueta = new QLabel(Texto(mDescripcion.Campo(i).etiqueta), &mVentana);
    etiqueta->setObjectName(QStringLiteral("lblEtiqueta_%1").arg(i));
    mFormulario.lblEtiqueta[static_cast<size_t>(i)] = etiqueta;
    return etiqueta;
}

CajaValor* Constructor::Caja(int i) {
    const CampoEntrada& campo = mDescripcion.Campo(i);
    auto* caja = new CajaValor(i, &mVentana);
    caja->setFont(FuenteFija(10));
    caja->setFixedWidth(
            caja->fontMetrics().horizontalAdvance(QLatin1Char('0')) * (campo.maxLength + 2) + 10);
    caja->setReadOnly(campo.soloLectura);
    if (campo.soloLectura) {
        QPalette paleta = caja->palette();
        paleta.setColor(QPalette::Base, kFondoEmisividad);
        caja->setPalette(paleta);
    }
    if (mFormulario.lblEtiqueta[static_cast<size_t>(i)] != nullptr) {
        mFormulario.lblEtiqueta[static_cast<size_t>(i)]->setBuddy(caja);
    }
    mFormulario.txtValor[static_cast<size_t>(i)] = caja;
    return caja;
}

QComboBox* Constructor::Lista(int i) {
    auto* lista = new QComboBox(&mVentana);
    lista->setObjectName(QStringLiteral("cboUnidad_%1").arg(i));
    for (const std::string& unidad : mModelo.Lista(i).entradas) {
        lista->addItem(Q(unidad));
    }
    lista->setToolTip(Texto(ToolTipLista(mDescripcion.Campo(i).lista)));
    lista->setSizeAdjustPolicy(QComboBox::AdjustToContents);
    mFormulario.cboUnidad[static_cast<size_t>(i)] = lista;
    return lista;
}

QLayout* Constructor::Botones() {
    auto* fila = new QHBoxLayout;
    fila->addStretch(1);
    mFormulario.cmdAceptar = Boton("cmdAceptar", "C&alcular", "Aceptar");
    mFormulario.cmdCancelar = Boton("cmdCancelar", "&Cancelar", "Cancelar");
    mFormulario.cmdGraficar = Boton("cmdGraficar", "&Graficar", "Graficar");
    for (QPushButton* boton :
         {mFormulario.cmdAceptar, mFormulario.cmdCancelar, mFormulario.cmdGraficar}) {
        fila->addWidget(boton);
    }
    return fila;
}

QPushButton* Constructor::Boton(const char* nombre, const char* caption, const char* toolTip) {
    auto* boton = new QPushButton(Texto(caption), &mVentana);
    boton->setObjectName(QString::fromLatin1(nombre));
    boton->setToolTip(Texto(toolTip));
    boton->setAutoDefault(true);
    return boton;
}

void Constructor::OrdenTabulacion() {
    QWidget* anterior = nullptr;
    for (const Control& control : mModelo.OrdenTabulacion()) {
        QWidget* actual = mFormulario.Widget(control);
        if (anterior != nullptr && actual != nullptr) {
            QWidget::setTabOrder(anterior, actual);
        }
        anterior = actual != nullptr ? actual : anterior;
    }
}

}  // namespace

QWidget* FormularioEntrada::Widget(Control control) const {
    const auto indice = static_cast<size_t>(control.indice);
    switch (control.tipo) {
        case TipoControl::Caja:
            return indice < txtValor.size() ? txtValor[indice] : nullptr;
        case TipoControl::Lista:
            return indice < cboUnidad.size() ? cboUnidad[indice] : nullptr;
        case TipoControl::Consultar:
            return indice < cmdConsultarMaterial.size() ? cmdConsultarMaterial[indice] : nullptr;
        case TipoControl::Aceptar:
            return cmdAceptar;
        case TipoControl::Cancelar:
            return cmdCancelar;
        case TipoControl::Graficar:
            return cmdGraficar;
        default:
            return nullptr;
    }
}

FormularioEntrada CrearFormulario(QWidget& ventana, const ModeloEntrada& modelo) {
    return Constructor(ventana, modelo).Construir();
}

}  // namespace kelvora
