#include "bancoventanas.h"
#include "core/app/acercade.h"
#include "core/app/opciones.h"
#include "core/materials/fuentetubosbd.h"
#include "gui/airehumedo/aperturaairehumedo.h"
#include "gui/app/frmaboutbox.h"
#include "gui/app/frmsplash.h"
#include "gui/app/mdikelvora.h"
#include "gui/app/traspasoinstancia.h"
#include "gui/app/ventanahija.h"
#include "gui/charts/aperturagraficas.h"
#include "gui/materials/frmconsultarmateriales.h"
#include "gui/materials/ventanasmateriales.h"
#include "gui/platform/qtsettingsstore.h"
#include "gui/platform/texto.h"

#include <QAction>
#include <QApplication>
#include <QDropEvent>
#include <QLabel>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QMenuBar>
#include <QMimeData>
#include <QPushButton>
#include <QStatusBar>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolBar>
#include <QUuid>

#include <future>
#include <vector>

namespace kelvora {

using prueba::Accion;
using prueba::BancoVentanas;
using prueba::Boton;
using prueba::RelojFijo;
using prueba::SettingsMemoria;
using prueba::Ventanas;

const SettingsMemoria::Ruta kNumRecientes{"Kelvora", "ArchivosRecientes", "NumFileRecents"};

class PrincipalTest : public QObject {
    Q_OBJECT

private slots:
    void menusBarraYTeclas();
    void sinFuncionElComandoQuedaInhabilitado();
    void habilitadoSegunTagDeLaVentanaActiva();
    void opcionesSeGuardanYSobrevivenAlReinicio();
    void menuDeArchivosRecientes();
    void cierrePreguntaACadaVentanaYParaEnCancelar();
    void cadaCierreQuitaSuSubventana();
    void listaDeVentanasYMosaico();
    void soltarArchivosYApartarElSplash();
    void barraDeEstado();
    void splashYAcercaDe();
    void traspasoAUnaInstanciaQueEscucha();

private:
    struct Marco {
        ContextoAplicacion contexto;
        SettingsMemoria ajustes;
        RelojFijo reloj{Fecha{2024, 3, 5}};
        mdiKelvora ventana{contexto, ajustes, reloj};
    };

    static QWidget* NuevaHija(mdiKelvora& ventana, const QString& titulo, const QString& tag);
    static FabricaVentanas FabricaCompleta(std::vector<std::string>* leidos = nullptr);
};

QWidget* PrincipalTest::NuevaHija(mdiKelvora& ventana, const QString& titulo, const QString& tag) {
    auto* hija = new QWidget;
    hija->setWindowTitle(titulo);
    hija->setProperty(kPropiedadTag, tag);
    ventana.AgregarHija(hija);
    return hija;
}

FabricaVentanas PrincipalTest::FabricaCompleta(std::vector<std::string>* leidos) {
    FabricaVentanas f;
    f.NuevaVentanaDatos = [](int16_t) { return nullptr; };
    f.LeerArchivo = [leidos](const std::string& archivo) {
        if (leidos != nullptr) {
            leidos->push_back(archivo);
        }
        return true;
    };
    f.GuardarVentana = [](QWidget*, bool) { return true; };
    f.PreguntarGuardar = [](QWidget*) { return true; };
    f.VistaPreliminar = [](QWidget*) {};
    f.Imprimir = [](QWidget*, bool) {};
    f.NombreImpresora = [] { return std::string("Láser"); };
    f.ConfigurarPagina = [] {};
    f.Graficar = [](QWidget*, int) {};
    f.ConvertidorUnidades = [] {};
    f.ConvertidorUnidadesPersonalizado = [] {};
    f.InsertarMaterial = [] {};
    f.ConsultarMateriales = [] {};
    return f;
}

// One entry or two of each menu; the rest come from the same form.
void PrincipalTest::menusBarraYTeclas() {
    Marco m;
    struct Caso {
        const char* nombre;
        const char* titulo;
    };
    // clang-format off
    const Caso menus[] = {
        {"mnuArchivo",            "&Archivo"},
        {"mnuArchivoOpciones",    "&Opciones"},
        {"mnuAnalisisTecnico",    "Análisis &Técnico"},
        {"mnuAnalisisTecnicoCAO", "&Cálculo de Aislamiento Óptimo"},
        {"mnuATCAOPerdidaCalor",  "&Pérdidas de Calor"},
        {"mnuATCAOGananciaCalor", "&Ganancia de Calor"},
        {"mnuATGraficar",         "&Graficar"},
        {"mnuHerramientas",       "&Herramientas"},
        {"mnuWindow",             "&Ventana"},
        {"mnuAyuda",              "A&yuda"},
    };
    const Caso acciones[] = {
        {"mnuArchivoGuardarComo",                  "Guardar c&omo..."},
        {"mnuArchivoOpcionesConverisonAutomatica", "Conversión Automática de &Unidades"},
        {"mnuATCAOPCEVelmar100",                   "Velmar de 1&00 kg/m³"},
        {"mnuATCAOGCTOrbelasPreformadas",          "&Orbelas de Poliuretano"},
        {"mnuATGPQvsEspesor",                      "&Pérdida de Calor vs Espesor"},
        {"mnuHConsultarMaterial",                  "&Consultar Acabado Superficial"},
        {"mnuWindowMosaicoVertical",               "Mosaico &Vertical"},
        {"mnuAyudaIndice",                         "&Indice..."},
    };
    // clang-format on
    QCOMPARE(m.ventana.windowTitle(),
             QStringLiteral("Fornalis S.A. - Cálculo de Aislamiento Óptimo - Kelvora"));
    for (const Caso& caso : menus) {
        auto* menu = m.ventana.findChild<QMenu*>(QString::fromLatin1(caso.nombre));
        QVERIFY2(menu != nullptr, caso.nombre);
        QCOMPARE(menu->title(), QString::fromUtf8(caso.titulo));
    }
    for (const Caso& caso : acciones) {
        QCOMPARE(Accion(&m.ventana, caso.nombre)->text(), QString::fromUtf8(caso.titulo));
    }
    QStringList barra;
    for (QAction* accion : m.ventana.menuBar()->actions()) {
        barra << accion->text();
    }
    QCOMPARE(barra,
             QStringList({"&Archivo", "Análisis &Técnico", "&Herramientas", "&Ventana", "A&yuda"}));
    QStringList herramientas;
    for (QAction* accion :
         m.ventana.findChild<QToolBar*>(QStringLiteral("tbrToolBar"))->actions()) {
        herramientas << (accion->isSeparator() ? QStringLiteral("-") : accion->objectName());
    }
    QCOMPARE(herramientas, QStringList({"Abrir", "Guardar", "-", "Vista", "Imprimir"}));
    QCOMPARE(Accion(&m.ventana, "Guardar")->toolTip(),
             QStringLiteral("Guardar datos y/o resultados"));
}

void PrincipalTest::sinFuncionElComandoQuedaInhabilitado() {
    Marco m;
    for (const char* nombre : {"Abrir", "mnuATCAOPCEVelmar80", "mnuHConsultarMaterial"}) {
        QVERIFY2(!Accion(&m.ventana, nombre)->isEnabled(), nombre);
    }
    QVERIFY(Accion(&m.ventana, "mnuAyudaAcercade")->isEnabled());

    std::vector<int16_t> tipos;
    FabricaVentanas fabrica = FabricaCompleta();
    fabrica.NuevaVentanaDatos = [&tipos](int16_t tipo) -> QWidget* {
        tipos.push_back(tipo);
        return nullptr;
    };
    m.contexto.BDDisponible = false;
    m.ventana.PonerFabrica(fabrica);
    Accion(&m.ventana, "mnuATCAOPCEVelmar140")->trigger();
    Accion(&m.ventana, "mnuATCAOPCTNivara")->trigger();
    Accion(&m.ventana, "mnuATCAOGCTOrbelasPreformadas")->trigger();
    QCOMPARE(tipos, std::vector<int16_t>({3, 8, 14}));
    QVERIFY(!Accion(&m.ventana, "mnuHConsultarMaterial")->isEnabled());
    QVERIFY(!Accion(&m.ventana, "mnuAyudaContenido")->isEnabled());
    m.contexto.BDDisponible = true;
    Q_EMIT m.ventana.findChild<QMenu*>(QStringLiteral("mnuHerramientas"))->aboutToShow();
    QVERIFY(Accion(&m.ventana, "mnuHConsultarMaterial")->isEnabled());
}

void PrincipalTest::habilitadoSegunTagDeLaVentanaActiva() {
    Marco m;
    std::string impresora = "Láser";
    FabricaVentanas fabrica = FabricaCompleta();
    fabrica.NombreImpresora = [&impresora] { return impresora; };
    m.ventana.PonerFabrica(fabrica);
    m.ventana.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m.ventana));
    auto habilitadas = [&m] {
        QString estado;
        for (const char* nombre : {"mnuArchivoGuardar", "mnuArchivoGuardarComo", "Guardar",
                                   "mnuArchivoImprimir", "mnuArchivoVistaPreliminar", "Vista",
                                   "Imprimir", "mnuArchivoCerrar", "mnuArchivoCerrarTodo"}) {
            estado += Accion(&m.ventana, nombre)->isEnabled() ? '1' : '0';
        }
        return estado;
    };
    QCOMPARE(habilitadas(), QStringLiteral("000000000"));
    QWidget* hija = NuevaHija(m.ventana, "Datos [1]", "0");
    QCOMPARE(habilitadas(), QStringLiteral("000000011"));
    hija->setProperty(kPropiedadTag, QStringLiteral("1"));
    QCOMPARE(habilitadas(), QStringLiteral("111111111"));
    QCOMPARE(Accion(&m.ventana, "Imprimir")->toolTip(), QStringLiteral("Imprimir (Láser)"));
    impresora.clear();
    m.ventana.Actualizar();
    QCOMPARE(habilitadas(), QStringLiteral("111000011"));

    auto* graficar = m.ventana.findChild<QMenu*>(QStringLiteral("mnuATGraficar"));
    Q_EMIT graficar->aboutToShow();
    QVERIFY(Accion(&m.ventana, "mnuATGTSvsEspesor")->isEnabled());
    hija->setProperty(kPropiedadTag, QStringLiteral("9"));
    Q_EMIT graficar->aboutToShow();
    QVERIFY(!Accion(&m.ventana, "mnuATGPQvsEspesor")->isEnabled());
}

void PrincipalTest::opcionesSeGuardanYSobrevivenAlReinicio() {
    QTemporaryDir carpeta;
    const QString archivo = carpeta.filePath(QStringLiteral("Kelvora.ini"));
    {
        ContextoAplicacion contexto;
        QtSettingsStore ajustes(archivo);
        LeerOpciones(contexto, ajustes);
        RelojFijo reloj(Fecha{2024, 3, 5});
        mdiKelvora ventana(contexto, ajustes, reloj);
        QVERIFY(!Accion(&ventana, "mnuArchivoOpcionesConverisonAutomatica")->isChecked());
        QVERIFY(Accion(&ventana, "mnuAOPreguntar")->isChecked());
        Accion(&ventana, "mnuArchivoOpcionesConverisonAutomatica")->trigger();
        Accion(&ventana, "mnuAOPreguntar")->trigger();
        QVERIFY(contexto.ConversionAutomatica);
        QVERIFY(!contexto.PreguntarAntesDeCerrarVentana);
    }
    ContextoAplicacion releido;
    QtSettingsStore ajustes(archivo);
    LeerOpciones(releido, ajustes);
    QVERIFY(releido.ConversionAutomatica);
    QVERIFY(!releido.PreguntarAntesDeCerrarVentana);
    QVERIFY(releido.LeerEmisividadBD);
    RelojFijo reloj(Fecha{2024, 3, 5});
    mdiKelvora ventana(releido, ajustes, reloj);
    QVERIFY(Accion(&ventana, "mnuArchivoOpcionesConverisonAutomatica")->isChecked());
    QVERIFY(!Accion(&ventana, "mnuAOPreguntar")->isChecked());
}

void PrincipalTest::menuDeArchivosRecientes() {
    QTemporaryDir carpeta;
    const std::string a = (carpeta.path() + QStringLiteral("/a.adk")).toStdString();
    const std::string b = (carpeta.path() + QStringLiteral("/b.adk")).toStdString();
    for (const std::string& ruta : {a, b}) {
        QFile archivo(QString::fromStdString(ruta));
        QVERIFY(archivo.open(QIODevice::WriteOnly));
    }
    Marco m;
    m.ajustes.valores[kNumRecientes] = "3";
    m.ajustes.valores[{"Kelvora", "ArchivosRecientes", "File-1"}] = a;
    m.ajustes.valores[{"Kelvora", "ArchivosRecientes", "File-2"}] = "/no/existe.adk";
    m.ajustes.valores[{"Kelvora", "ArchivosRecientes", "File-3"}] = b;
    std::vector<std::string> leidos;
    FabricaVentanas fabrica = FabricaCompleta(&leidos);
    // Reading a file puts it at the head of the list, rebuilding the menu from its own entry.
    fabrica.LeerArchivo = [&m, &leidos](const std::string& archivo) {
        leidos.push_back(archivo);
        m.ventana.AgregarArchivoReciente(archivo);
        return true;
    };
    m.ventana.PonerFabrica(fabrica);
    QCOMPARE(Accion(&m.ventana, "mnuArchivoRecientes_0")->text(),
             QString::fromStdString("&1. " + a));
    QCOMPARE(Accion(&m.ventana, "mnuArchivoRecientes_1")->text(),
             QString::fromStdString("&2. " + b));
    QVERIFY(m.ventana.findChild<QAction*>(QStringLiteral("mnuArchivoRecientes_2")) == nullptr);

    Accion(&m.ventana, "mnuArchivoRecientes_1")->trigger();
    QCOMPARE(leidos, std::vector<std::string>({b}));
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCOMPARE(Accion(&m.ventana, "mnuArchivoRecientes_0")->text(),
             QString::fromStdString("&1. " + b));
    QCOMPARE(Accion(&m.ventana, "mnuArchivoRecientes_1")->text(),
             QString::fromStdString("&2. " + a));
    QCOMPARE(m.ajustes.valores[kNumRecientes], std::string("4"));
}

void PrincipalTest::cierrePreguntaACadaVentanaYParaEnCancelar() {
    Marco m;
    std::vector<QString> preguntadas;
    bool cancelar = true;
    FabricaVentanas fabrica = FabricaCompleta();
    fabrica.PreguntarGuardar = [&](QWidget* ventana) {
        preguntadas.push_back(ventana->windowTitle());
        return !(cancelar && FileStateDe(ventana) == 2);
    };
    m.ventana.PonerFabrica(fabrica);
    m.ventana.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m.ventana));
    NuevaHija(m.ventana, "A", "1");
    NuevaHija(m.ventana, "B", "0");
    QWidget* cambiada = NuevaHija(m.ventana, "C", "12");
    cambiada->setProperty(kPropiedadFileName, QStringLiteral("/datos/c.adk"));
    cambiada->setProperty(kPropiedadFileState, 2);
    QCOMPARE(FileNameDe(cambiada), QStringLiteral("/datos/c.adk"));
    NuevaHija(m.ventana, "D", "5");

    QVERIFY(!m.ventana.close());
    QCOMPARE(preguntadas, std::vector<QString>({"A", "C"}));
    QVERIFY(m.ventana.isVisible());
    // The options are stored before anything is asked.
    QCOMPARE(m.ajustes.escrituras.size(), size_t{14});

    preguntadas.clear();
    cancelar = false;
    QVERIFY(m.ventana.close());
    QCOMPARE(preguntadas, std::vector<QString>({"A", "C", "D"}));

    Marco sistema;
    sistema.ventana.PonerFabrica(fabrica);
    sistema.ventana.show();
    NuevaHija(sistema.ventana, "C", "12");
    preguntadas.clear();
    sistema.ventana.CerrarSinPreguntas();
    QVERIFY(preguntadas.empty());
    QVERIFY(!sistema.ventana.isVisible());
}

// However a child window closes itself, its sub-window leaves the frame and the Ventana menu,
// and the frame's Cerrar goes on to the next one.
void PrincipalTest::cadaCierreQuitaSuSubventana() {
    using Abrir = std::function<QWidget*(BancoVentanas&)>;
    using Cerrar = std::function<void(QWidget*)>;
    const auto clic = [](const char* boton) -> Cerrar {
        return [boton](QWidget* v) { QTest::mouseClick(Boton(v, boton), Qt::LeftButton); };
    };
    const Cerrar escape = [](QWidget*) {
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    };
    const Cerrar elegir = [](QWidget* v) {
        auto* grilla = prueba::Control<QTableWidget>(v, "MSFGResultados");
        grilla->setCurrentCell(2, 1);
        QTest::keyClick(grilla, Qt::Key_Return);
    };
    const Abrir entrada = [](BancoVentanas& b) { return b.Nueva(1); };
    const Abrir resultados = [](BancoVentanas& b) { return b.Calcular(b.Abrir("velmar80.adk")); };
    const Abrir economica = [resultados](BancoVentanas& b) {
        QTest::mouseClick(Boton(resultados(b), "cmdAnalisisEconomico"), Qt::LeftButton);
        return b.marco.VentanaActiva();
    };
    const Abrir grafica = [](BancoVentanas& b) {
        auto* graficas =
                new AperturaGraficas(b.marco, b.contexto, b.prompter,
                                     std::make_unique<FuenteTubosBD>(b.contexto.CadenaConexion));
        graficas->Graficar(b.Abrir("velmar80.adk"), 1);
        return b.marco.VentanaActiva();
    };
    const Abrir consulta = [](BancoVentanas& b) {
        b.contexto.BDDisponible = true;
        new VentanasMateriales(b.marco, b.contexto, b.prompter);
        QTest::mouseClick(Boton(b.Nueva(1), "cmdConsultarMaterial_1"), Qt::LeftButton);
        return b.marco.VentanaActiva();
    };
    const Abrir aire = [](BancoVentanas& b) {
        (new AperturaAireHumedo(b.marco, b.contexto, b.prompter))->AireHumedo();
        return b.marco.VentanaActiva();
    };
    // A pipe size the database does not hold: the calculation fails after its window opened.
    const Abrir sinTubo = [](BancoVentanas& b) {
        frmDatosEntrada* v = b.Abrir("nivara.adk");
        prueba::Escribir(v, "txtValor_5", "7");
        return v;
    };
    struct Caso {
        const char* nombre;
        Abrir abrir;
        Cerrar cerrar;
        int quedan;
    };
    // clang-format off
    const Caso casos[] = {
        {"entrada, Cancelar",         entrada,    clic("cmdCancelar"), 0},
        {"entrada, Escape",           entrada,    escape,              0},
        {"resultados, Cerrar",        resultados, clic("cmdCancelar"), 1},
        {"cálculo fallido",           sinTubo,    clic("cmdAceptar"),  1},
        {"económica, Cancelar",       economica,  clic("cmdCancelar"), 2},
        {"económica, Escape",         economica,  escape,              2},
        {"gráfica, Cerrar",           grafica,    clic("cmdCancelar"), 1},
        {"consulta, elegir",          consulta,   elegir,              1},
        {"consulta, Escape",          consulta,   escape,              1},
        {"aire húmedo, Cerrar",       aire,       clic("cmdCerrar"),   0},
        {"aire húmedo, Escape",       aire,       escape,              0},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        BancoVentanas b;
        QWidget* ventana = caso.abrir(b);
        QVERIFY2(ventana != nullptr && b.marco.VentanaActiva() == ventana, caso.nombre);
        caso.cerrar(ventana);
        BancoVentanas::Esperar();
        QVERIFY2(Ventanas(b.marco).size() == caso.quedan,
                 qPrintable(caso.nombre + (": " + Ventanas(b.marco).join(", "))));
        b.prompter.respuestas = {Respuesta::No};  // a changed example stays as it is
        Accion(&b.marco, "mnuArchivoCerrarTodo")->trigger();
        BancoVentanas::Esperar();
        QVERIFY2(Ventanas(b.marco).isEmpty(), caso.nombre);
    }
}

void PrincipalTest::listaDeVentanasYMosaico() {
    Marco m;
    m.ventana.resize(900, 700);
    m.ventana.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m.ventana));
    NuevaHija(m.ventana, "Datos [1]", "0");
    NuevaHija(m.ventana, "Datos & más [2]", "0");
    QCOMPARE(Ventanas(m.ventana), QStringList({"&1 Datos [1]", "&2 Datos && más [2]*"}));

    Accion(&m.ventana, "mnuWindowMosaicoVertical")->trigger();
    auto* area = m.ventana.findChild<QMdiArea*>();
    const QList<QMdiSubWindow*> marcos = area->subWindowList();
    const int ancho = area->viewport()->width();
    QCOMPARE(marcos[0]->geometry().x(), 0);
    QCOMPARE(marcos[1]->geometry().x(), ancho / 2);
    QCOMPARE(marcos[0]->height(), area->viewport()->height());

    Accion(&m.ventana, "mnuArchivoCerrarTodo")->trigger();
    QTRY_VERIFY(area->subWindowList().isEmpty());
}

void PrincipalTest::soltarArchivosYApartarElSplash() {
    Marco m;
    std::vector<std::string> leidos;
    frmSplash splash(m.contexto);
    splash.show();
    bool splashOculto = false;
    FabricaVentanas fabrica = FabricaCompleta();
    fabrica.LeerArchivo = [&](const std::string& archivo) {
        leidos.push_back(archivo);
        splashOculto = !splash.isVisible();
        return true;
    };
    m.ventana.PonerFabrica(fabrica);
    m.ventana.PonerSplash(&splash);
    m.ventana.show();

    QMimeData datos;
    datos.setUrls({QUrl::fromLocalFile(QStringLiteral("/datos/uno.adk")),
                   QUrl::fromLocalFile(QStringLiteral("/datos/dos con blancos.adk"))});
    QDragEnterEvent entrar(QPoint(10, 10), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m.ventana, &entrar);
    QVERIFY(entrar.isAccepted());
    QDropEvent soltar(QPointF(10, 10), Qt::CopyAction, &datos, Qt::LeftButton, Qt::NoModifier);
    QCoreApplication::sendEvent(&m.ventana, &soltar);
    QCOMPARE(leidos, std::vector<std::string>({"/datos/uno.adk", "/datos/dos con blancos.adk"}));
    QVERIFY(splashOculto);
    QVERIFY(splash.isVisible());
}

void PrincipalTest::barraDeEstado() {
    Marco m;
    m.ventana.show();
    QVERIFY(QTest::qWaitForWindowExposed(&m.ventana));
    QStringList textos;
    for (int i = 1; i <= 6; ++i) {
        auto* panel = m.ventana.findChild<QLabel*>(QStringLiteral("stbStatusBar_%1").arg(i));
        QVERIFY(panel != nullptr);
        textos << (i == 6 ? QString() : panel->text());
    }
    QCOMPARE(textos, QStringList({"", "", "NÚM", "MAYÚS", "INS", ""}));
    QEvent entrar(QEvent::Enter);
    QCoreApplication::sendEvent(m.ventana.statusBar(), &entrar);
    QCOMPARE(m.ventana.findChild<QLabel*>(QStringLiteral("stbStatusBar_6"))->toolTip(),
             QStringLiteral("martes, 5 de marzo de 2024"));

    auto* ins = m.ventana.findChild<QLabel*>(QStringLiteral("stbStatusBar_5"));
    QVERIFY(!ins->isEnabled());
    QTest::keyClick(m.ventana.windowHandle(), Qt::Key_Insert);
    QVERIFY(ins->isEnabled());
}

void PrincipalTest::splashYAcercaDe() {
    ContextoAplicacion contexto;
    {
        frmSplash splash(contexto);
        QVERIFY(contexto.SplashVisible);
        QCOMPARE(splash.findChild<QLabel*>(QStringLiteral("lblVersion"))->text(),
                 QStringLiteral("Versión 1.0 para Windows"));
        QVERIFY(splash.windowFlags().testFlag(Qt::WindowStaysOnTopHint));
        auto* timer = splash.findChild<QTimer*>(QStringLiteral("timUnload"));
        QCOMPARE(timer->interval(), 60000);
        splash.show();
        QMetaObject::invokeMethod(timer, "timeout");
        QVERIFY(splash.isVisible());
        QMetaObject::invokeMethod(timer, "timeout");
        QVERIFY(!splash.isVisible());
        QVERIFY(!contexto.SplashVisible);
    }
    frmSplash splash(contexto, 60000);
    splash.show();
    QVERIFY(QTest::qWaitForWindowExposed(&splash));
    QTest::keyClick(&splash, Qt::Key_Escape);
    QVERIFY(!splash.isVisible());
    QVERIFY(!contexto.SplashVisible);

    frmAboutBox acercaDe;
    QVERIFY(acercaDe.isModal());
    QCOMPARE(acercaDe.findChild<QLabel*>(QStringLiteral("lblVersion"))->text(),
             QStringLiteral("Versión 1.0 para Windows (Rev. 0)"));
    QCOMPARE(acercaDe.findChild<QLabel*>(QStringLiteral("lblFabricante"))->text(),
             Q(TextoFabricante()));
}

void PrincipalTest::traspasoAUnaInstanciaQueEscucha() {
    const QString canal =
            QStringLiteral("kelvora-prueba-") + QUuid::createUuid().toString(QUuid::Id128);
    QVERIFY(!EnviarArchivoInstanciaPrevia(canal, "/datos/a.adk", 200));

    std::vector<std::string> recibidos;
    ReceptorTraspaso receptor(canal, [&](const std::string& a) { recibidos.push_back(a); });
    QVERIFY(receptor.Escuchar());
    ReceptorTraspaso segundo(canal, [](const std::string&) {});
    QVERIFY(!segundo.Escuchar());

    auto envio = std::async(std::launch::async, [&canal] {
        return EnviarArchivoInstanciaPrevia(canal, "/datos/año 2024.adk");
    });
    QTRY_COMPARE(recibidos.size(), size_t{1});
    QVERIFY(envio.get());
    QCOMPARE(recibidos[0], std::string("/datos/año 2024.adk"));
}

}  // namespace kelvora

QTEST_MAIN(kelvora::PrincipalTest)
#include "principaltest.moc"
