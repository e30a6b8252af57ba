#include "bancoventanas.h"
#include "core/materials/conexion.h"
#include "gui/app/fabricaprograma.h"
#include "gui/app/mdikelvora.h"
#include "gui/materials/frmconsultarmateriales.h"
#include "gui/materials/frminsertarmaterial.h"
#include "gui/materials/ventanasmateriales.h"
#include "gui/platform/texto.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPlainTextEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace kelvora {

using prueba::Boton;
using prueba::Control;
using prueba::Escribir;
using prueba::PrompterGuion;

/// The frame and its material windows on a copy of the database the build made.
struct Banco {
    Banco() {
        const QString original = QCoreApplication::applicationDirPath() + "/BD/Kelvora.mdb";
        QDir(carpeta.path()).mkpath("BD");
        archivo = carpeta.filePath("BD/Kelvora.mdb");
        if (!QFile::copy(original, archivo)) {
            qFatal("No se pudo copiar %s", qPrintable(original));
        }
        contexto.ArchivoBD = archivo.toStdString();
        contexto.CadenaConexion = CadenaConexionPara(contexto.ArchivoBD);
        contexto.BDDisponible = true;
        principal.resize(1000, 700);
        principal.show();
        principal.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&principal));
    }

    int Contar(const std::string& sql) const {
        Conexion conexion;
        conexion.Open(contexto.CadenaConexion);
        return static_cast<int>(conexion.Consultar(sql).filas.size());
    }
    frmConsultarMateriales* Consulta() const { return materiales->Ventana(); }
    std::string UltimoMensaje() const {
        return prompter.mensajes.empty() ? "" : prompter.mensajes.back().texto;
    }

    QTemporaryDir carpeta;
    QString archivo;
    ContextoAplicacion contexto;
    prueba::SettingsMemoria ajustes;
    prueba::RelojFijo reloj{Fecha{2024, 3, 5}};
    PrompterGuion prompter;
    mdiKelvora principal{contexto, ajustes, reloj};
    VentanasMateriales* materiales = new VentanasMateriales(principal, contexto, prompter);
};

QTableWidget* Grilla(const QWidget* ventana) {
    return Control<QTableWidget>(ventana, "MSFGResultados");
}

QStringList Columna(const QWidget* ventana, int columna) {
    QStringList textos;
    const QTableWidget* tabla = Grilla(ventana);
    for (int f = 0; f < tabla->rowCount(); ++f) {
        textos.append(tabla->item(f, columna)->text());
    }
    return textos;
}

void ClickFila(const QWidget* ventana, int fila, Qt::KeyboardModifiers teclas = {}) {
    QTableWidget* tabla = Grilla(ventana);
    const QPoint punto = tabla->visualItemRect(tabla->item(fila - 1, 1)).center();
    QTest::mouseClick(tabla->viewport(), Qt::LeftButton, teclas, punto);
}

// The first click of a double click is a press of its own, as with a real mouse.
void DobleClickFila(const QWidget* ventana, int fila) {
    QTableWidget* tabla = Grilla(ventana);
    const QPoint punto = tabla->visualItemRect(tabla->item(fila - 1, 1)).center();
    QTest::mouseClick(tabla->viewport(), Qt::LeftButton, {}, punto);
    QTest::mouseDClick(tabla->viewport(), Qt::LeftButton, {}, punto);
}

void Click(const QWidget* ventana, const char* boton) {
    QTest::mouseClick(Boton(ventana, boton), Qt::LeftButton);
}

/// Runs `pasos` on the insert window once it is shown modally, and closes it after.
void EnInsertar(std::function<void(frmInsertarMaterial&)> pasos) {
    QTimer::singleShot(0, [pasos] {
        auto* ventana = qobject_cast<frmInsertarMaterial*>(QApplication::activeModalWidget());
        if (ventana == nullptr) {
            qFatal("La ventana de inserción no está abierta");
        }
        QVERIFY(QTest::qWaitForWindowActive(ventana));
        pasos(*ventana);
        Click(ventana, "cmdCancelar");
    });
}

void DejarCerrar() {
    QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QCoreApplication::processEvents();
}

class MaterialesTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { EstablecerLocaleDesdeQt(); }
    void captionsTeclasYListaCompleta();
    void consultaPorPalabrasYPorRango();
    void seleccionEscribeElCodigoEnElLlamador();
    void modificarConCtrlM();
    void nuevoYEliminarConRechazo();
    void validacionesDeLaInsercion();
    void desdeElMenuYDesdeUnaVentanaDeDatos();
};

void MaterialesTest::captionsTeclasYListaCompleta() {
    Banco b;
    b.materiales->ConsultarMateriales();
    frmConsultarMateriales* v = b.Consulta();
    QVERIFY(v != nullptr);
    QCOMPARE(v->windowTitle(), QString("Consulta de Acabados Superficiales"));
    QCOMPARE(v->size(), QSize(680, 467));
    QCOMPARE(Boton(v, "cmdAceptar")->text(), QString("&Modificar"));
    QCOMPARE(Grilla(v)->horizontalHeaderItem(3)->text(), QString(" Temperatura (°F) "));
    QCOMPARE(Columna(v, 0).size(), 17);
    QCOMPARE(Columna(v, 2).at(5), QString("0.09"));
    QCOMPARE(Columna(v, 3).at(16), QString());
    QVERIFY(!Boton(v, "cmdConsultar")->isEnabled());
    QVERIFY(!Control(v, "txtValor_3")->isVisible());
    QCOMPARE(Grilla(v)->selectedRanges().size(), 1);
    QCOMPARE(Grilla(v)->selectedRanges().front().topRow(), 0);
    QCOMPARE(QApplication::focusWidget(), Control(v, "cmdAceptar"));
}

void MaterialesTest::consultaPorPalabrasYPorRango() {
    Banco b;
    b.materiales->ConsultarMateriales();
    frmConsultarMateriales* v = b.Consulta();
    auto* tipos = Control<QComboBox>(v, "cboTipoConsulta");
    tipos->setFocus();
    QTest::keyClick(tipos, Qt::Key_Down);
    QVERIFY(Control(v, "txtValor_3")->isVisible());
    QVERIFY(!Control(v, "txtValor_1")->isVisible());
    QTest::keyClick(tipos, Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), Control(v, "cboRelacion"));
    Escribir(v, "txtValor_3", "acero inox");
    Click(v, "cmdConsultar");
    QCOMPARE(Columna(v, 0), QStringList({"2", "10", "11"}));
    QVERIFY(!Control(v, "cmdMostrarTodo")->isVisible());

    QTest::keyClick(tipos, Qt::Key_Down);
    auto* relacion = Control<QComboBox>(v, "cboRelacion");
    relacion->setFocus();
    QTest::keyClick(relacion, Qt::Key_End);
    QCOMPARE(relacion->currentText(), QString("Rango"));
    QVERIFY(Control(v, "txtValor_2")->isVisible());
    QVERIFY(Control(v, "lblA")->isVisible());
    Escribir(v, "txtValor_1", "3a00");
    Escribir(v, "txtValor_2", ",5");
    QCOMPARE(Control<QLineEdit>(v, "txtValor_2")->text(), QString("0.5"));
    Escribir(v, "txtValor_2", "100");
    QTest::keyClick(Control(v, "txtValor_2"), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), Control(v, "cmdConsultar"));
    Click(v, "cmdConsultar");
    QCOMPARE(Control<QLineEdit>(v, "txtValor_1")->text(), QString("100"));
    QCOMPARE(Control<QLineEdit>(v, "txtValor_2")->text(), QString("300"));
    QCOMPARE(Columna(v, 0), QStringList({"2", "3", "5", "6", "7", "11", "12"}));
}

void MaterialesTest::seleccionEscribeElCodigoEnElLlamador() {
    struct Caso {
        int caja;
        int fila;
        const char* codigo;
        int filas;
        std::function<void(frmConsultarMateriales*)> aceptar;
    };
    const Caso casos[] = {
            {5, 2, "6", 13, [](auto* v) { QTest::keyClick(Grilla(v), Qt::Key_Return); }},
            {7, 3, "3", 4, [](auto* v) { Click(v, "cmdAceptar"); }},
            {10, 4, "4", 4, [](auto* v) { DobleClickFila(v, 4); }},
    };
    for (const Caso& caso : casos) {
        Banco b;
        auto* llamador = new QWidget;
        auto* caja = new QLineEdit(llamador);
        caja->setObjectName(QStringLiteral("txtValor_%1").arg(caso.caja));
        QSignalSpy ediciones(caja, &QLineEdit::textEdited);
        b.principal.AgregarHija(llamador);
        AbrirConsultaMateriales(llamador, caso.caja);
        QPointer<frmConsultarMateriales> v = b.Consulta();
        QCOMPARE(Columna(v, 0).size(), caso.filas);
        QCOMPARE(Boton(v, "cmdAceptar")->text(), QString("&Aceptar"));
        ClickFila(v, caso.fila);
        caso.aceptar(v);
        QCOMPARE(caja->text(), QString(caso.codigo));
        QCOMPARE(ediciones.count(), 1);
        DejarCerrar();
        QVERIFY(v.isNull());
    }
}

void MaterialesTest::modificarConCtrlM() {
    Banco b;
    b.materiales->ConsultarMateriales();
    frmConsultarMateriales* v = b.Consulta();
    ClickFila(v, 14);
    EnInsertar([&b](frmInsertarMaterial& d) {
        QCOMPARE(d.windowTitle(), QString("Modificar Acabado Superficial"));
        QCOMPARE(Boton(&d, "cmdAceptar")->text(), QString("&Modificar"));
        QCOMPARE(Control<QLineEdit>(&d, "txtValor_1")->text(), QString("14"));
        QCOMPARE(Control<QPlainTextEdit>(&d, "txtValor_2")->toPlainText(),
                 QString("CHAQUETA DE PVC"));
        QCOMPARE(Control<QLineEdit>(&d, "txtValor_4")->text(), QString());
        Escribir(&d, "txtValor_3", "0.85");
        Click(&d, "cmdAceptar");
        QCOMPARE(b.UltimoMensaje(), std::string("Los datos se han modificado con éxito."));
        QCOMPARE(d.windowTitle(), QString("Insertar Acabado Superficial"));
        QCOMPARE(Control<QLineEdit>(&d, "txtValor_1")->text(), QString("18"));
        QCOMPARE(d.focusWidget(), Control(&d, "txtValor_2"));
    });
    QTest::keyClick(Grilla(v), Qt::Key_M, Qt::ControlModifier);
    QCOMPARE(Columna(v, 2).at(13), QString("0.85"));
    QCOMPARE(Grilla(v)->selectedRanges().front().topRow(), 0);
    QCOMPARE(b.Contar("SELECT * FROM Emisividad WHERE Codigo = 14 AND Emisividad = 0.85"), 1);
}

void MaterialesTest::nuevoYEliminarConRechazo() {
    Banco b;
    b.materiales->ConsultarMateriales();
    frmConsultarMateriales* v = b.Consulta();
    EnInsertar([&b](frmInsertarMaterial& d) {
        QCOMPARE(Control<QLineEdit>(&d, "txtValor_1")->text(), QString("18"));
        QTest::keyClicks(Control(&d, "txtValor_2"), "lona ");
        QTest::sendKeyEvent(QTest::Click, Control(&d, "txtValor_2"), Qt::Key_unknown, QString("ñ"),
                            Qt::NoModifier);
        QCOMPARE(Control<QPlainTextEdit>(&d, "txtValor_2")->toPlainText(), QString("LONA Ñ"));
        Escribir(&d, "txtValor_3", ",5");
        Escribir(&d, "txtValor_4", "-40");
        Click(&d, "cmdAceptar");
        QCOMPARE(b.UltimoMensaje(), std::string("Los datos se han insertado con éxito."));
        QCOMPARE(Control<QLineEdit>(&d, "txtValor_1")->text(), QString("19"));
    });
    Click(v, "cmdNuevo");
    QCOMPARE(b.Contar("SELECT * FROM Emisividad WHERE Codigo = 18 AND Descripcion = 'LONA Ñ' "
                      "AND Emisividad = 0.5 AND Temperatura = -40"),
             1);
    Click(v, "cmdMostrarTodo");
    QCOMPARE(Columna(v, 0).size(), 18);

    ClickFila(v, 17);
    ClickFila(v, 18, Qt::ShiftModifier);
    b.prompter.respuestas = {Respuesta::No};
    QTest::keyClick(Grilla(v), Qt::Key_Delete);
    QCOMPARE(b.UltimoMensaje(),
             std::string("¿Realmente desea eliminar los materiales seleccionados?"));
    QCOMPARE(b.Contar("SELECT * FROM Emisividad"), 18);

    b.prompter.mensajes.clear();
    QTest::keyClick(Grilla(v), Qt::Key_Delete);
    QCOMPARE(b.prompter.mensajes.size(), size_t{2});
    QCOMPARE(b.prompter.mensajes[1].texto,
             std::string("Acceso denegado para eliminar el registro con código = 17"));
    QCOMPARE(b.Contar("SELECT * FROM Emisividad WHERE Codigo >= 17"), 1);
    QCOMPARE(Columna(v, 0).size(), 17);
}

void MaterialesTest::validacionesDeLaInsercion() {
    Banco b;
    EnInsertar([&b](frmInsertarMaterial& d) {
        auto* aceptar = Boton(&d, "cmdAceptar");
        QVERIFY(!aceptar->isEnabled());
        QTest::keyClicks(Control(&d, "txtValor_2"), "chapa");
        Escribir(&d, "txtValor_3", "1.0.1");
        QCOMPARE(Control<QLineEdit>(&d, "txtValor_3")->text(), QString("1.01"));
        QTest::mouseClick(aceptar, Qt::LeftButton);
        QCOMPARE(b.UltimoMensaje(),
                 std::string("La Emisividad del material debe estar en el rango [0, 1]."));
        Escribir(&d, "txtValor_3", "0.5");
        QTest::keyClick(Control(&d, "txtValor_3"), Qt::Key_Return);
        QCOMPARE(d.focusWidget(), Control(&d, "txtValor_4"));
        QTest::mouseClick(aceptar, Qt::LeftButton);
        QCOMPARE(b.UltimoMensaje(), std::string("Los datos se han insertado con éxito."));
        QCOMPARE(d.focusWidget(), Control(&d, "txtValor_2"));
    });
    b.materiales->InsertarMaterial();
    QCOMPARE(b.Contar("SELECT * FROM Emisividad WHERE Descripcion = 'CHAPA'"), 1);
}

void MaterialesTest::desdeElMenuYDesdeUnaVentanaDeDatos() {
    Banco b;
    b.principal.PonerFabrica(CrearFabrica(b.principal, b.contexto, b.ajustes, b.prompter));
    auto* menu = b.principal.findChild<QAction*>("mnuHConsultarMaterial");
    QVERIFY(menu->isEnabled());
    menu->trigger();
    auto* consulta = b.principal.findChild<frmConsultarMateriales*>();
    QVERIFY(consulta != nullptr);
    QCOMPARE(Boton(consulta, "cmdAceptar")->text(), QString("&Modificar"));
    Click(consulta, "cmdCancelar");
    DejarCerrar();

    auto* accion = b.principal.findChild<QAction*>("mnuATCAOPCEVelmar80");
    accion->trigger();
    QWidget* entrada = b.principal.VentanaActiva();
    QVERIFY(entrada != nullptr);
    Click(entrada, "cmdConsultarMaterial_1");
    consulta = b.principal.findChild<frmConsultarMateriales*>();
    QVERIFY(consulta != nullptr);
    QCOMPARE(Columna(consulta, 0).front(), QString("5"));
    ClickFila(consulta, 8);
    QTest::keyClick(Grilla(consulta), Qt::Key_Return);
    QCOMPARE(Control<QLineEdit>(entrada, "txtValor_5")->text(), QString("12"));
    QCOMPARE(Control<QLineEdit>(entrada, "txtValor_6")->text(), QString("0.94"));
}

}  // namespace kelvora

QTEST_MAIN(kelvora::MaterialesTest)
#include "materialestest.moc"
