#include "gui/app/mdikelvora.h"

#include "core/app/contexto.h"
#include "core/app/estadocomandos.h"
#include "core/app/mosaico.h"
#include "core/app/opciones.h"
#include "core/app/recientes.h"
#include "core/runtime/texto.h"
#include "gui/app/barraestado.h"
#include "gui/app/frmaboutbox.h"
#include "gui/app/imagenes.h"
#include "gui/app/ventanahija.h"
#include "gui/platform/texto.h"
#include "ui_mdikelvora.h"

#include <QCloseEvent>
#include <QFileDialog>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMimeData>

#include <utility>

namespace kelvora {

namespace {

struct ComandoProducto {
    const char* accion;
    int16_t tipo;
};

// clang-format off
constexpr ComandoProducto kProductos[] = {
    {"mnuATCAOPCEVelmar80",            1},
    {"mnuATCAOPCEVelmar100",           2},
    {"mnuATCAOPCEVelmar140",           3},
    {"mnuATCAOPCEDorlin",              4},
    {"mnuATCAOPCEKandor",              5},
    {"mnuATCAOPCESarvel",              6},
    {"mnuATCAOPCELorvan",              7},
    {"mnuATCAOPCTNivara",              8},
    {"mnuATCAOPCTDorlin",              9},
    {"mnuATCAOPCTKandor",              10},
    {"mnuATCAOPCTSarvel",              11},
    {"mnuATCAOPCTOrbelas",             12},
    {"mnuATCAOGCEPoliUretano",         13},
    {"mnuATCAOGCTOrbelasPreformadas",  14},
};
// clang-format on

constexpr char kFiltroAbrir[] =
        "Archivo de datos Kelvora (*.adk);;Archivos de Texto (*.txt);;Todos los Archivos (*.*)";

}  // namespace

mdiKelvora::mdiKelvora(ContextoAplicacion& contexto, SettingsStore& ajustes, Clock& reloj,
                       QWidget* padre)
    : QMainWindow(padre),
      mUi(std::make_unique<Ui::mdiKelvora>()),
      mContexto(contexto),
      mAjustes(ajustes),
      mBarra(new BarraEstado(reloj, this)) {
    CargarImagenes();
    mUi->setupUi(this);
    setStatusBar(mBarra);
    setCentralWidget(mUi->mdiArea);
    mUi->mdiArea->setBackground(QBrush(Fondo()));
    for (QAction* separador : {mUi->mnuArchivoSepRecientes, mUi->mnuWindowSepLista}) {
        separador->setSeparator(true);
    }
    ConectarArchivo();
    ConectarProductos();
    ConectarHerramientas();
    ConectarVentana();
    ConectarAyuda();
    connect(mUi->mdiArea, &QMdiArea::subWindowActivated, this, &mdiKelvora::Actualizar);
    HabilitarComandosFijos();
    ActualizarRecientes();
    Actualizar();
}

mdiKelvora::~mdiKelvora() {
    // The children close after this body, and their area must not call back in here.
    disconnect(mUi->mdiArea, nullptr, this, nullptr);
}

void mdiKelvora::PonerFabrica(FabricaVentanas fabrica) {
    mFabrica = std::move(fabrica);
    HabilitarComandosFijos();
    ActualizarRecientes();
    Actualizar();
}

void mdiKelvora::PonerSplash(QWidget* splash) {
    mSplash = splash;
}

QMdiSubWindow* mdiKelvora::AgregarHija(QWidget* ventana) {
    ventana->setAttribute(Qt::WA_DeleteOnClose);
    ventana->installEventFilter(this);
    QMdiSubWindow* marco = mUi->mdiArea->addSubWindow(ventana);
    // A child that closes itself takes its sub-window with it, as the frame's own close does.
    connect(ventana, &QObject::destroyed, marco, &QWidget::close, Qt::QueuedConnection);
    marco->show();
    mUi->mdiArea->setActiveSubWindow(marco);
    Actualizar();
    return marco;
}

QWidget* mdiKelvora::VentanaActiva() const {
    QMdiSubWindow* marco = mUi->mdiArea->activeSubWindow();
    return marco != nullptr ? marco->widget() : nullptr;
}

QList<QWidget*> mdiKelvora::VentanasHijas() const {
    QList<QWidget*> ventanas;
    for (QMdiSubWindow* marco : mUi->mdiArea->subWindowList()) {
        if (marco->widget() != nullptr) {
            ventanas.append(marco->widget());
        }
    }
    return ventanas;
}

void mdiKelvora::AbrirArchivoInicio(const std::string& archivo) {
    // The splash stays on top of everything and would hide the reader's messages.
    if (mContexto.SplashVisible && mSplash) {
        mSplash->hide();
    }
    if (mFabrica.LeerArchivo) {
        mFabrica.LeerArchivo(archivo);
    }
    if (mContexto.SplashVisible && mSplash) {
        mSplash->show();
    }
}

void mdiKelvora::AgregarArchivoReciente(const std::string& archivo) {
    kelvora::AgregarArchivoReciente(mAjustes, archivo);
    ActualizarRecientes();
}

void mdiKelvora::Actualizar() {
    QWidget* activa = VentanaActiva();
    const std::string impresora = mFabrica.NombreImpresora ? mFabrica.NombreImpresora() : "";
    const EstadoComandos estado = CalcularEstadoComandos(
            activa != nullptr ? std::optional(S(TagDe(activa))) : std::nullopt, impresora);
    mUi->mnuArchivoImprimir->setEnabled(estado.imprimir && mFabrica.Imprimir);
    mUi->Imprimir->setEnabled(estado.imprimir && mFabrica.Imprimir);
    mUi->Imprimir->setToolTip(Q(TooltipImprimir(impresora)));
    mUi->mnuArchivoExportarPdf->setEnabled(estado.imprimir && mFabrica.ExportarPdf);
    mUi->mnuArchivoVistaPreliminar->setEnabled(estado.imprimir && mFabrica.VistaPreliminar);
    mUi->Vista->setEnabled(estado.imprimir && mFabrica.VistaPreliminar);
    const bool guardar = estado.guardar && mFabrica.GuardarVentana;
    mUi->mnuArchivoGuardar->setEnabled(guardar);
    mUi->mnuArchivoGuardarComo->setEnabled(guardar);
    mUi->Guardar->setEnabled(guardar);
    mUi->mnuArchivoCerrar->setEnabled(estado.cerrar);
    mUi->mnuArchivoCerrarTodo->setEnabled(estado.cerrar);
    mUi->mnuArchivoOpcionesConverisonAutomatica->setChecked(mContexto.ConversionAutomatica);
    mUi->mnuArchivoOpcionesLeerEmisividadBD->setChecked(mContexto.LeerEmisividadBD);
    mUi->mnuAOPreguntar->setChecked(mContexto.PreguntarAntesDeCerrarVentana);
}

void mdiKelvora::CerrarSinPreguntas() {
    mCierreSistema = true;
    close();
}

void mdiKelvora::closeEvent(QCloseEvent* evento) {
    GuardarOpciones(mContexto, mAjustes);
    if (!mCierreSistema && !PreguntarAHijas()) {
        evento->ignore();
        return;
    }
    evento->accept();
}

bool mdiKelvora::PreguntarAHijas() {
    if (!mFabrica.PreguntarGuardar) {
        return true;
    }
    for (QWidget* ventana : VentanasHijas()) {
        if (PuedeGuardar(S(TagDe(ventana))) && !mFabrica.PreguntarGuardar(ventana)) {
            return false;
        }
    }
    return true;
}

void mdiKelvora::changeEvent(QEvent* evento) {
    if (evento->type() == QEvent::ActivationChange && isActiveWindow()) {
        Actualizar();
    }
    QMainWindow::changeEvent(evento);
}

void mdiKelvora::dragEnterEvent(QDragEnterEvent* evento) {
    if (evento->mimeData()->hasUrls() && mFabrica.LeerArchivo) {
        evento->acceptProposedAction();
    }
}

void mdiKelvora::dropEvent(QDropEvent* evento) {
    for (const QUrl& url : evento->mimeData()->urls()) {
        if (url.isLocalFile()) {
            AbrirArchivoInicio(S(url.toLocalFile()));
        }
    }
    evento->acceptProposedAction();
}

bool mdiKelvora::eventFilter(QObject* objeto, QEvent* evento) {
    if (evento->type() == QEvent::DynamicPropertyChange) {
        Actualizar();
    }
    return QMainWindow::eventFilter(objeto, evento);
}

void mdiKelvora::ConectarArchivo() {
    connect(mUi->mnuArchivo, &QMenu::aboutToShow, this, &mdiKelvora::Actualizar);
    connect(mUi->mnuArchivoAbrir, &QAction::triggered, this, &mdiKelvora::AbrirArchivo);
    connect(mUi->Abrir, &QAction::triggered, this, &mdiKelvora::AbrirArchivo);
    connect(mUi->mnuArchivoGuardar, &QAction::triggered, this, [this] { GuardarActiva(false); });
    connect(mUi->Guardar, &QAction::triggered, this, [this] { GuardarActiva(false); });
    connect(mUi->mnuArchivoGuardarComo, &QAction::triggered, this, [this] { GuardarActiva(true); });
    connect(mUi->mnuArchivoConfigurarPagina, &QAction::triggered, this,
            [this] { mFabrica.ConfigurarPagina(); });
    connect(mUi->mnuArchivoVistaPreliminar, &QAction::triggered, this, [this] {
        if (VentanaActiva() != nullptr) {
            mFabrica.VistaPreliminar(VentanaActiva());
        }
    });
    connect(mUi->Vista, &QAction::triggered, mUi->mnuArchivoVistaPreliminar, &QAction::trigger);
    connect(mUi->mnuArchivoImprimir, &QAction::triggered, this, [this] { ImprimirActiva(false); });
    connect(mUi->Imprimir, &QAction::triggered, this, [this] { ImprimirActiva(true); });
    connect(mUi->mnuArchivoExportarPdf, &QAction::triggered, this, [this] {
        QWidget* activa = VentanaActiva();
        if (activa != nullptr && PuedeImprimir(S(TagDe(activa)))) {
            mFabrica.ExportarPdf(activa);
        }
    });
    ConectarOpcion(mUi->mnuArchivoOpcionesConverisonAutomatica,
                   &ContextoAplicacion::ConversionAutomatica);
    ConectarOpcion(mUi->mnuArchivoOpcionesLeerEmisividadBD, &ContextoAplicacion::LeerEmisividadBD);
    ConectarOpcion(mUi->mnuAOPreguntar, &ContextoAplicacion::PreguntarAntesDeCerrarVentana);
    connect(mUi->mnuArchivoOpcionesLeerEmisividadBD, &QAction::triggered, this, [this] {
        QWidget* activa = VentanaActiva();
        if (activa != nullptr && EsVentanaDatosEntrada(S(activa->objectName()))) {
            QMetaObject::invokeMethod(activa, "Activar");
        }
    });
    connect(mUi->mnuArchivoCerrarTodo, &QAction::triggered, mUi->mdiArea,
            &QMdiArea::closeAllSubWindows);
    connect(mUi->mnuArchivoCerrar, &QAction::triggered, mUi->mdiArea,
            &QMdiArea::closeActiveSubWindow);
    connect(mUi->mnuArchivoSalir, &QAction::triggered, this, &QWidget::close);
    ConectarReciente(mUi->mnuArchivoRecientes_0);
}

void mdiKelvora::ConectarOpcion(QAction* accion, bool ContextoAplicacion::*opcion) {
    connect(accion, &QAction::triggered, this, [this, opcion](bool marcada) {
        mContexto.*opcion = marcada;
        GuardarOpciones(mContexto, mAjustes);
    });
}

void mdiKelvora::ConectarProductos() {
    for (const ComandoProducto& producto : kProductos) {
        auto* accion = findChild<QAction*>(QString::fromLatin1(producto.accion));
        const int16_t tipo = producto.tipo;
        connect(accion, &QAction::triggered, this,
                [this, tipo] { mFabrica.NuevaVentanaDatos(tipo); });
    }
    connect(mUi->mnuATGraficar, &QMenu::aboutToShow, this, &mdiKelvora::ActualizarGraficar);
    connect(mUi->mnuATGTSvsEspesor, &QAction::triggered, this, [this] { GraficarActiva(1); });
    connect(mUi->mnuATGPQvsEspesor, &QAction::triggered, this, [this] { GraficarActiva(2); });
}

void mdiKelvora::ConectarHerramientas() {
    connect(mUi->mnuHerramientas, &QMenu::aboutToShow, this, &mdiKelvora::ActualizarHerramientas);
    connect(mUi->mnuConvertidorUnidades, &QAction::triggered, this,
            [this] { mFabrica.ConvertidorUnidades(); });
    connect(mUi->mnuConvertidorUnidadesPersonalizado, &QAction::triggered, this,
            [this] { mFabrica.ConvertidorUnidadesPersonalizado(); });
    connect(mUi->mnuHInsertarMaterial, &QAction::triggered, this,
            [this] { mFabrica.InsertarMaterial(); });
    connect(mUi->mnuHConsultarMaterial, &QAction::triggered, this,
            [this] { mFabrica.ConsultarMateriales(); });
    connect(mUi->mnuHAireHumedo, &QAction::triggered, this, [this] { mFabrica.AireHumedo(); });
}

void mdiKelvora::ConectarVentana() {
    connect(mUi->mnuWindow, &QMenu::aboutToShow, this, &mdiKelvora::ActualizarListaVentanas);
    connect(mUi->mnuWindowCascade, &QAction::triggered, mUi->mdiArea, &QMdiArea::cascadeSubWindows);
    connect(mUi->mnuWindowMosaicoHorizontal, &QAction::triggered, this,
            [this] { OrganizarMosaico(true); });
    connect(mUi->mnuWindowMosaicoVertical, &QAction::triggered, this,
            [this] { OrganizarMosaico(false); });
}

void mdiKelvora::ConectarAyuda() {
    connect(mUi->mnuAyudaContenido, &QAction::triggered, this,
            [this] { mFabrica.Ayuda(ComandoAyuda::Contenido); });
    connect(mUi->mnuAyudaIndice, &QAction::triggered, this,
            [this] { mFabrica.Ayuda(ComandoAyuda::Indice); });
    connect(mUi->mnuAyudaBusqueda, &QAction::triggered, this,
            [this] { mFabrica.Ayuda(ComandoAyuda::Busqueda); });
    connect(mUi->mnuAyudaAcercade, &QAction::triggered, this, &mdiKelvora::MostrarAcercaDe);
}

void mdiKelvora::HabilitarComandosFijos() {
    mUi->mnuArchivoAbrir->setEnabled(static_cast<bool>(mFabrica.LeerArchivo));
    mUi->Abrir->setEnabled(static_cast<bool>(mFabrica.LeerArchivo));
    mUi->mnuArchivoConfigurarPagina->setEnabled(static_cast<bool>(mFabrica.ConfigurarPagina));
    for (const ComandoProducto& producto : kProductos) {
        findChild<QAction*>(QString::fromLatin1(producto.accion))
                ->setEnabled(static_cast<bool>(mFabrica.NuevaVentanaDatos));
    }
    mUi->mnuConvertidorUnidades->setEnabled(static_cast<bool>(mFabrica.ConvertidorUnidades));
    mUi->mnuConvertidorUnidadesPersonalizado->setEnabled(
            static_cast<bool>(mFabrica.ConvertidorUnidadesPersonalizado));
    mUi->mnuHAireHumedo->setEnabled(static_cast<bool>(mFabrica.AireHumedo));
    for (QAction* ayuda : {mUi->mnuAyudaContenido, mUi->mnuAyudaIndice, mUi->mnuAyudaBusqueda}) {
        ayuda->setEnabled(static_cast<bool>(mFabrica.Ayuda));
    }
    ActualizarGraficar();
    ActualizarHerramientas();
}

void mdiKelvora::ConectarReciente(QAction* accion) {
    connect(accion, &QAction::triggered, this,
            [this, accion] { mFabrica.LeerArchivo(S(accion->data().toString())); });
}

void mdiKelvora::ActualizarRecientes() {
    // Reading a recent file rebuilds this list from inside the entry's own signal.
    for (QAction* accion : std::as_const(mRecientes)) {
        mUi->mnuArchivo->removeAction(accion);
        accion->deleteLater();
    }
    mRecientes.clear();
    const std::vector<EntradaReciente> entradas = kelvora::ActualizarRecientes(mAjustes);
    mUi->mnuArchivoRecientes_0->setVisible(false);
    for (size_t i = 0; i < entradas.size(); ++i) {
        QAction* accion = mUi->mnuArchivoRecientes_0;
        if (i > 0) {
            accion = new QAction(mUi->mnuArchivo);
            accion->setObjectName(QStringLiteral("mnuArchivoRecientes_%1").arg(i));
            mUi->mnuArchivo->insertAction(mUi->mnuArchivoSepRecientes, accion);
            ConectarReciente(accion);
            mRecientes.append(accion);
        }
        accion->setText(Q(entradas[i].titulo));
        accion->setData(Q(entradas[i].archivo));
        accion->setEnabled(static_cast<bool>(mFabrica.LeerArchivo));
        accion->setVisible(true);
    }
    mUi->mnuArchivoSepRecientes->setVisible(!entradas.empty());
}

void mdiKelvora::ActualizarGraficar() {
    QWidget* activa = VentanaActiva();
    const bool graficar = activa != nullptr && PuedeGraficar(S(TagDe(activa))) && mFabrica.Graficar;
    mUi->mnuATGTSvsEspesor->setEnabled(graficar);
    mUi->mnuATGPQvsEspesor->setEnabled(graficar);
}

void mdiKelvora::ActualizarHerramientas() {
    mUi->mnuHInsertarMaterial->setEnabled(mContexto.BDDisponible && mFabrica.InsertarMaterial);
    mUi->mnuHConsultarMaterial->setEnabled(mContexto.BDDisponible && mFabrica.ConsultarMateriales);
}

void mdiKelvora::ActualizarListaVentanas() {
    for (QAction* accion : std::as_const(mListaVentanas)) {
        mUi->mnuWindow->removeAction(accion);
        accion->deleteLater();
    }
    mListaVentanas.clear();
    const QList<QMdiSubWindow*> marcos = mUi->mdiArea->subWindowList();
    for (int i = 0; i < marcos.size(); ++i) {
        QMdiSubWindow* marco = marcos[i];
        auto* accion =
                new QAction(Q(TituloListaVentanas(i + 1, S(marco->windowTitle()))), mUi->mnuWindow);
        accion->setCheckable(true);
        accion->setChecked(marco == mUi->mdiArea->activeSubWindow());
        connect(accion, &QAction::triggered, this,
                [this, marco] { mUi->mdiArea->setActiveSubWindow(marco); });
        mUi->mnuWindow->addAction(accion);
        mListaVentanas.append(accion);
    }
    mUi->mnuWindowSepLista->setVisible(!marcos.isEmpty());
}

void mdiKelvora::OrganizarMosaico(bool horizontal) {
    QList<QMdiSubWindow*> marcos;
    for (QMdiSubWindow* marco : mUi->mdiArea->subWindowList()) {
        if (!marco->isMinimized()) {
            marcos.append(marco);
        }
    }
    const QSize area = mUi->mdiArea->viewport()->size();
    const std::vector<Rectangulo> rectangulos =
            CalcularMosaico(static_cast<int>(marcos.size()), area.width(), area.height(),
                            horizontal ? Mosaico::Horizontal : Mosaico::Vertical);
    for (int i = 0; i < marcos.size(); ++i) {
        const Rectangulo& r = rectangulos[static_cast<size_t>(i)];
        marcos[i]->showNormal();
        marcos[i]->setGeometry(r.x, r.y, r.ancho, r.alto);
    }
}

void mdiKelvora::AbrirArchivo() {
    const QString archivo =
            QFileDialog::getOpenFileName(this, QStringLiteral("Abrir"), Q(mContexto.RutaAplicacion),
                                         QString::fromUtf8(kFiltroAbrir));
    if (!archivo.isEmpty()) {
        mFabrica.LeerArchivo(Trim(S(archivo)));
    }
}

void mdiKelvora::GuardarActiva(bool comoNuevo) {
    QWidget* activa = VentanaActiva();
    if (activa != nullptr && PuedeGuardar(S(TagDe(activa)))) {
        mFabrica.GuardarVentana(activa, comoNuevo);
    }
}

void mdiKelvora::ImprimirActiva(bool directa) {
    QWidget* activa = VentanaActiva();
    if (activa != nullptr && PuedeImprimir(S(TagDe(activa)))) {
        mFabrica.Imprimir(activa, directa);
    }
}

void mdiKelvora::GraficarActiva(int tipo) {
    QWidget* activa = VentanaActiva();
    if (activa != nullptr) {
        mFabrica.Graficar(activa, tipo);
    }
}

void mdiKelvora::MostrarAcercaDe() {
    frmAboutBox acercaDe(this);
    acercaDe.exec();
}

}  // namespace kelvora
