#include "bancoventanas.h"

#include "core/datafile/leerarchivo.h"
#include "core/entry/llamadacalculo.h"
#include "core/entry/materialesbd.h"
#include "core/entry/ventanadatosarchivo.h"
#include "core/materials/fuentetubosbd.h"
#include "gui/app/ventanahija.h"
#include "gui/platform/texto.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QTest>
#include <QTimer>

#include <thread>

namespace kelvora::prueba {

namespace {

class DestinoMemoria : public DestinoResultados {
public:
    DestinoMemoria(const classUnidades& unidades, Prompter& prompter, EventPump& bomba,
                   FuenteTubos& tubos)
        : mUnidades(unidades), mPrompter(prompter), mBomba(bomba), mTubos(tubos) {}

    ModeloResultados& NuevaVentanaResultados(TipoResultados tipo) override {
        ventana = std::make_unique<ModeloResultados>(tipo, mUnidades, mPrompter, mBomba);
        return *ventana;
    }
    void DescargarVentanaResultados(ModeloResultados&) override { ventana.reset(); }
    FuenteTubos& Tubos() override { return mTubos; }

    std::unique_ptr<ModeloResultados> ventana;

private:
    const classUnidades& mUnidades;
    Prompter& mPrompter;
    EventPump& mBomba;
    FuenteTubos& mTubos;
};

}  // namespace

std::optional<std::string> DialogosGuion::Abrir(const OpcionesDialogo& opciones) {
    return Guardar(opciones);
}

std::optional<std::string> DialogosGuion::Guardar(const OpcionesDialogo& opciones) {
    pedidos.push_back(opciones);
    if (respuestas.empty()) {
        return std::nullopt;
    }
    auto respuesta = respuestas.front();
    respuestas.pop_front();
    return respuesta;
}

TubosLentos::TubosLentos(const std::string& cadenaConexion)
    : mTubos(std::make_unique<FuenteTubosBD>(cadenaConexion)) {
}

std::optional<FilaTubos> TubosLentos::BuscarTubo(double nominal) {
    std::this_thread::sleep_for(std::chrono::milliseconds(esperaMs));
    return mTubos->BuscarTubo(nominal);
}

BancoVentanas::BancoVentanas() {
    DerivarRutas(contexto, S(QApplication::applicationDirPath()));
    contexto.Colores = LlenarColores(ColoresSistema{});
    auto guion = std::make_unique<DialogosGuion>();
    auto lentos = std::make_unique<TubosLentos>(contexto.CadenaConexion);
    dialogos = guion.get();
    tubos = lentos.get();
    ventanas = new ArchivosVentanas(marco, contexto, ajustes, prompter, std::move(guion),
                                    std::move(lentos));
    fabrica.NuevaVentanaDatos = std::bind_front(&ArchivosVentanas::NuevaVentanaDatos, ventanas);
    fabrica.LeerArchivo = std::bind_front(&ArchivosVentanas::LeerArchivo, ventanas);
    fabrica.GuardarVentana = std::bind_front(&ArchivosVentanas::GuardarVentana, ventanas);
    fabrica.PreguntarGuardar = std::bind_front(&ArchivosVentanas::PreguntarGuardar, ventanas);
    PonerFabrica();
    marco.resize(1000, 760);
    marco.show();
    marco.activateWindow();
    if (!QTest::qWaitForWindowActive(&marco)) {
        qFatal("La ventana principal no se activó");
    }
}

frmDatosEntrada* BancoVentanas::Nueva(int16_t tipo) {
    return qobject_cast<frmDatosEntrada*>(ventanas->NuevaVentanaDatos(tipo));
}

frmDatosEntrada* BancoVentanas::Abrir(const char* ejemplo) {
    if (!ventanas->LeerArchivo(Ejemplo(ejemplo))) {
        return nullptr;
    }
    return qobject_cast<frmDatosEntrada*>(marco.VentanaActiva());
}

frmResultados* BancoVentanas::Calcular(frmDatosEntrada* ventana) {
    const QList<QWidget*> antes = marco.VentanasHijas();
    QTest::mouseClick(Boton(ventana, "cmdAceptar"), Qt::LeftButton);
    Esperar();
    for (QWidget* hija : marco.VentanasHijas()) {
        if (!antes.contains(hija)) {
            return qobject_cast<frmResultados*>(hija);
        }
    }
    return nullptr;
}

void BancoVentanas::PonerFabrica() {
    marco.PonerFabrica(fabrica);
}

void BancoVentanas::Esperar() {
    QApplication::processEvents();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

std::string Ejemplo(const char* nombre) {
    return qEnvironmentVariable("KELVORA_FIXTURES").toStdString() + "/../../data/ejemplos/" +
           nombre;
}

Grilla GrillaSinVentanas(const std::string& archivo) {
    ContextoAplicacion contexto;
    DerivarRutas(contexto, S(QApplication::applicationDirPath()));
    PrompterGuion prompter;
    SettingsMemoria ajustes;
    BombaSinVentana bomba;
    MaterialesBD materiales(contexto);
    FuenteTubosBD tubos(contexto.CadenaConexion);
    std::unique_ptr<ModeloEntrada> modelo;
    std::unique_ptr<VentanaDatosArchivo> ventana;
    EntornoArchivos entorno{contexto, prompter, ajustes};
    LeerArchivo(archivo, entorno, [&](VentanaEntrada, int16_t Tipo) -> VentanaArchivo* {
        modelo = std::make_unique<ModeloEntrada>(
                *DescripcionParaProducto(Tipo),
                EntornoEntrada{prompter, contexto, materiales, bomba, {}, {}});
        modelo->SetTipoAnalisis(Tipo);
        modelo->Activar();
        ventana = std::make_unique<VentanaDatosArchivo>(*modelo);
        return ventana.get();
    });
    DestinoMemoria destino(contexto.Unidades, prompter, bomba, tubos);
    if (modelo == nullptr || !modelo->cmdAceptar_Click(destino)) {
        return {};
    }
    return destino.ventana->MSFG();
}

QStringList Ventanas(const mdiKelvora& marco) {
    auto* menu = marco.findChild<QMenu*>(QStringLiteral("mnuWindow"));
    Q_EMIT menu->aboutToShow();
    QStringList lista;
    for (const QAction* accion : menu->actions()) {
        if (accion->isCheckable()) {
            lista << accion->text() + (accion->isChecked() ? "*" : "");
        }
    }
    const QList<QMdiSubWindow*> marcos = marco.findChild<QMdiArea*>()->subWindowList();
    if (marcos.size() != lista.size()) {
        lista << QStringLiteral("(menú distinto)");
    }
    for (const QMdiSubWindow* hija : marcos) {
        if (hija->widget() == nullptr) {
            lista << QStringLiteral("(vacía)");
        }
    }
    return lista;
}

QWidget* Hijo(const QWidget* ventana, const QString& nombre) {
    auto* hijo = ventana->findChild<QWidget*>(nombre);
    if (hijo == nullptr) {
        qFatal("No hay control %s", qPrintable(nombre));
    }
    return hijo;
}

QAction* Accion(const QWidget* ventana, const char* nombre) {
    auto* accion = ventana->findChild<QAction*>(QString::fromLatin1(nombre));
    if (accion == nullptr) {
        qFatal("No hay acción %s", nombre);
    }
    return accion;
}

QLineEdit* Caja(const QWidget* ventana, int i) {
    return static_cast<QLineEdit*>(Hijo(ventana, QStringLiteral("txtValor_%1").arg(i)));
}

QComboBox* Lista(const QWidget* ventana, int i) {
    return static_cast<QComboBox*>(Hijo(ventana, QStringLiteral("cboUnidad_%1").arg(i)));
}

QPushButton* Boton(const QWidget* ventana, const char* nombre) {
    return static_cast<QPushButton*>(Hijo(ventana, QString::fromLatin1(nombre)));
}

void Escribir(const QWidget* ventana, const QString& nombre, const QString& texto) {
    QWidget* control = Hijo(ventana, nombre);
    auto* lista = qobject_cast<QComboBox*>(control);
    QLineEdit* caja = lista != nullptr ? lista->lineEdit() : static_cast<QLineEdit*>(control);
    QTest::mouseClick(caja, Qt::LeftButton);
    caja->selectAll();
    QTest::keyClicks(control, texto);
}

void Seleccionar(QComboBox* lista, const QString& entrada) {
    lista->setFocus(Qt::MouseFocusReason);
    lista->setCurrentIndex(lista->findText(entrada));
    emit lista->activated(lista->currentIndex());
}

void AlOcurrir(QObject* dueno, std::function<bool()> listo, std::function<void()> hacer) {
    auto* reloj = new QTimer(dueno);
    QObject::connect(reloj, &QTimer::timeout, [reloj, listo, hacer] {
        if (listo()) {
            reloj->stop();
            hacer();
        }
    });
    reloj->start(0);
}

QString Desacuerdo(const frmDatosEntrada& ventana) {
    const ModeloEntrada& modelo = ventana.Modelo();
    for (int i = 1; i <= modelo.Ventana().Cajas(); ++i) {
        if (Caja(&ventana, i)->text() != Q(modelo.Texto(i))) {
            return QStringLiteral("caja %1: '%2' / '%3'")
                    .arg(i)
                    .arg(Caja(&ventana, i)->text(), Q(modelo.Texto(i)));
        }
        if (modelo.TieneLista(i) &&
            Lista(&ventana, i)->currentIndex() != modelo.Lista(i).ListIndex) {
            return QStringLiteral("lista %1").arg(i);
        }
    }
    if (Boton(&ventana, "cmdAceptar")->isEnabled() != modelo.cmdAceptarEnabled()) {
        return QStringLiteral("cmdAceptar");
    }
    if (TagDe(&ventana) != Q(modelo.Tag()) || FileStateDe(&ventana) != modelo.FileState()) {
        return QStringLiteral("Tag o FileState");
    }
    if (ventana.findChild<QLabel*>(QStringLiteral("lblEstado"))->text() != Q(modelo.lblEstado())) {
        return QStringLiteral("lblEstado");
    }
    return {};
}

}  // namespace kelvora::prueba
