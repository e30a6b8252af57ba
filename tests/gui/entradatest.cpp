#include "bancoventanas.h"
#include "core/entry/textoayuda.h"
#include "core/runtime/numeros.h"
#include "core/thermal/productos.h"
#include "gui/app/ventanahija.h"
#include "gui/platform/texto.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QFontInfo>
#include <QLabel>
#include <QLineEdit>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPushButton>
#include <QRandomGenerator>
#include <QTest>
#include <QTimer>

namespace kelvora {

using prueba::Accion;
using prueba::BancoVentanas;
using prueba::Boton;
using prueba::Caja;
using prueba::Desacuerdo;
using prueba::Escribir;
using prueba::Lista;
using prueba::Seleccionar;

class EntradaTest : public QObject {
    Q_OBJECT

private slots:
    void controlesDeLasCuatroVentanas();
    void comandosDeProductoDelMenu();
    void ordenDeTabulacion();
    void filtroDeTeclas();
    void enterAvanzaYElEstadoSigueALasCajas();
    void teclasDeAcceso();
    void validacionEnOrden();
    void cambioDeUnidadSegunLaOpcion();
    void productoDesdeElMenu();
    void emisividadEscrita();
    void teclasAlAzarNoDesacuerdan();
};

void EntradaTest::controlesDeLasCuatroVentanas() {
    struct Caso {
        int16_t tipo;
        const char* nombre;
        const char* caption;
        int cajas;
        const char* unidades;
        const char* soloLectura;
    };
    // Lists by box ("-" none) with the unit a new window shows; read-only boxes.
    // clang-format off
    const Caso casos[] = {
        {1,  "frmDatosEntradaSuperficiesPlanas",          "Cálculo de Espesor Óptimo - Pérdida de Calor - Equipos [1]",    8,  "°F °F °F mi/h - - - -",              "6 8"},
        {8,  "frmDatosEntradaSuperficiesCilindricas",     "Cálculo de Espesor Óptimo - Pérdida de Calor - Tuberías [1]",   7,  "°F °F °F mi/h plg - -",              "7"},
        {13, "frmDatosEntradaSuperficiesPlanasFrio",      "Cálculo de Espesor Óptimo - Ganancia de Calor - Equipos [1]",   11, "°F °F °F °F - - mi/h - - - -",      "9 11"},
        {14, "frmDatosEntradaSuperficiesCilindricasFrio", "Cálculo de Espesor Óptimo - Ganancia de Calor - Tuberías [1]",  10, "°F °F °F °F - - mi/h plg - -",      "10"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        BancoVentanas b;
        frmDatosEntrada* v = b.Nueva(caso.tipo);
        QCOMPARE(v->objectName(), QString::fromLatin1(caso.nombre));
        QCOMPARE(v->windowTitle(), QString::fromUtf8(caso.caption));
        QCOMPARE(v->findChild<QLabel*>(QStringLiteral("lblProducto"))->text(),
                 Q(NombreProducto(caso.tipo, false)));
        const QStringList unidades = QString::fromUtf8(caso.unidades).split(QLatin1Char(' '));
        const QStringList soloLectura =
                QString::fromLatin1(caso.soloLectura).split(QLatin1Char(' '));
        for (int i = 1; i <= caso.cajas; ++i) {
            QLineEdit* caja = Caja(v, i);
            QVERIFY(QFontInfo(caja->font()).fixedPitch());
            QCOMPARE(caja->text(), QString());
            const bool lectura = soloLectura.contains(QString::number(i));
            QCOMPARE(caja->isReadOnly(), lectura);
            QCOMPARE(caja->palette().color(QPalette::Base) == QColor(255, 255, 192), lectura);
            const QString unidad = unidades[i - 1];
            auto* lista = v->findChild<QComboBox*>(QStringLiteral("cboUnidad_%1").arg(i));
            QCOMPARE(lista != nullptr, unidad != QStringLiteral("-"));
            if (lista != nullptr) {
                QCOMPARE(lista->currentText(), unidad);
            }
            if (auto* etiqueta = v->findChild<QLabel*>(QStringLiteral("lblEtiqueta_%1").arg(i))) {
                QCOMPARE(etiqueta->buddy(), caja);
                QCOMPARE(etiqueta->text(), Q(v->Modelo().Ventana().Campo(i).etiqueta));
            }
        }
        QVERIFY(!Boton(v, "cmdAceptar")->isEnabled());
        QVERIFY(!Boton(v, "cmdGraficar")->isEnabled());
        QCOMPARE(Boton(v, "cmdAceptar")->text(), QStringLiteral("C&alcular"));
        QCOMPARE(Boton(v, "cmdCancelar")->text(), QStringLiteral("&Cancelar"));
        QCOMPARE(TagDe(v), QStringLiteral("0"));
        QCOMPARE(b.Nueva(caso.tipo)->windowTitle(),
                 QString::fromUtf8(caso.caption)
                         .replace(QStringLiteral("[1]"), QStringLiteral("[2]")));
    }
}

void EntradaTest::comandosDeProductoDelMenu() {
    struct Caso {
        const char* accion;
        int16_t tipo;
        const char* ventana;
    };
    // clang-format off
    const Caso casos[] = {
        {"mnuATCAOPCEVelmar80",           1,  "frmDatosEntradaSuperficiesPlanas"},
        {"mnuATCAOPCEVelmar140",          3,  "frmDatosEntradaSuperficiesPlanas"},
        {"mnuATCAOPCELorvan",             7,  "frmDatosEntradaSuperficiesPlanas"},
        {"mnuATCAOPCTNivara",             8,  "frmDatosEntradaSuperficiesCilindricas"},
        {"mnuATCAOPCTOrbelas",            12, "frmDatosEntradaSuperficiesCilindricas"},
        {"mnuATCAOGCEPoliUretano",        13, "frmDatosEntradaSuperficiesPlanasFrio"},
        {"mnuATCAOGCTOrbelasPreformadas", 14, "frmDatosEntradaSuperficiesCilindricasFrio"},
    };
    // clang-format on
    BancoVentanas b;
    for (const Caso& caso : casos) {
        QAction* accion = Accion(&b.marco, caso.accion);
        QVERIFY(accion->isEnabled());
        accion->trigger();
        auto* v = qobject_cast<frmDatosEntrada*>(b.marco.VentanaActiva());
        QVERIFY2(v != nullptr, caso.accion);
        QCOMPARE(v->objectName(), QString::fromLatin1(caso.ventana));
        QCOMPARE(v->TipoAnalisis(), caso.tipo);
    }
    QCOMPARE(b.marco.VentanaActiva()->windowTitle(),
             QStringLiteral("Cálculo de Espesor Óptimo - Ganancia de Calor - Tuberías [1]"));
    // Escape is "&Cancelar": the window closes, and the number is free again.
    QTest::mouseClick(Caja(b.marco.VentanaActiva(), 1), Qt::LeftButton);
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_Escape);
    b.Esperar();
    QCOMPARE(prueba::Ventanas(b.marco).size(), 6);
    Accion(&b.marco, "mnuATCAOGCTOrbelasPreformadas")->trigger();
    QVERIFY(b.marco.VentanaActiva()->windowTitle().endsWith(QStringLiteral("[1]")));
    Accion(&b.marco, "mnuATCAOPCEKandor")->trigger();
    QVERIFY(b.marco.VentanaActiva()->windowTitle().endsWith(QStringLiteral("[4]")));
}

void EntradaTest::ordenDeTabulacion() {
    struct Caso {
        const char* ejemplo;
        const char* orden;
    };
    // Box i is "i", list i "Li", query button k "Ck".
    // clang-format off
    const Caso casos[] = {
        {"velmar80.adk",            "1 L1 2 L2 3 L3 4 L4 5 C1 6 7 C2 8 cmdAceptar cmdCancelar cmdGraficar 1"},
        {"nivara.adk",              "1 L1 2 L2 3 L3 4 L4 5 L5 6 C1 7 cmdAceptar cmdCancelar cmdGraficar 1"},
        {"tavelas-poliuretano.adk", "1 L1 2 L2 3 L3 4 L4 5 6 7 L7 8 C1 9 10 C2 11 cmdAceptar cmdCancelar cmdGraficar 1"},
        {"orbelas-poliuretano.adk", "1 L1 2 L2 3 L3 4 L4 5 6 7 L7 8 L8 9 C1 10 cmdAceptar cmdCancelar cmdGraficar 1"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        BancoVentanas b;
        frmDatosEntrada* v = b.Abrir(caso.ejemplo);
        QVERIFY(v != nullptr);
        Caja(v, 1)->setFocus();
        QStringList visitados = {QStringLiteral("1")};
        for (int paso = 0; paso < 40 && (visitados.size() < 2 || visitados.last() != "1"); ++paso) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            QString nombre = QApplication::focusWidget()->objectName();
            nombre.replace(QStringLiteral("txtValor_"), QString())
                    .replace(QStringLiteral("cboUnidad_"), QStringLiteral("L"))
                    .replace(QStringLiteral("cmdConsultarMaterial_"), QStringLiteral("C"));
            visitados << nombre;
        }
        QCOMPARE(visitados.join(QLatin1Char(' ')), QString::fromLatin1(caso.orden));
    }
}

void EntradaTest::filtroDeTeclas() {
    struct Caso {
        int16_t tipo;
        int caja;
        const char* unidad;
        const char* teclas;
        const char* texto;
    };
    // One path per rule of the filter, whose whole table the core pins: "\b" is Backspace; "|"
    // pastes what follows it as one text.
    // clang-format off
    const Caso casos[] = {
        {1,  1, "°F", "-5",          "-5"},
        {1,  1, "K",  "-5",          "5"},
        {1,  1, "°F", "-,5",         "-0.5"},
        {1,  1, "°F", "12345678901", "1234567890"},
        {1,  1, "°F", "12a b+e\b",   "1"},
        {1,  1, "°F", "|12a,5\n",    "12.5"},
        {1,  5, "",   "1.5",         "15"},
        {1,  6, "",   "5",           ""},
        {13, 4, "°F", "-3",          "-3"},
        {14, 9, "",   "6.",          "6"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        BancoVentanas b;
        frmDatosEntrada* v = b.Nueva(caso.tipo);
        QLineEdit* caja = Caja(v, caso.caja);
        if (*caso.unidad != '\0') {
            Seleccionar(Lista(v, caso.caja), QString::fromUtf8(caso.unidad));
        }
        QTest::mouseClick(caja, Qt::LeftButton);
        const QStringList partes = QString::fromUtf8(caso.teclas).split(QLatin1Char('|'));
        QTest::keyClicks(caja, partes.front());
        if (partes.size() > 1) {
            QApplication::clipboard()->setText(partes.back());
            QTest::keySequence(caja, QKeySequence::Paste);
        }
        QCOMPARE(caja->text(), QString::fromUtf8(caso.texto));
        QCOMPARE(Desacuerdo(*v), QString());
    }
}

void EntradaTest::enterAvanzaYElEstadoSigueALasCajas() {
    BancoVentanas b;
    frmDatosEntrada* v = b.Nueva(1);
    auto* estado = v->findChild<QLabel*>(QStringLiteral("lblEstado"));
    QTest::mouseClick(Caja(v, 1), Qt::LeftButton);
    QCOMPARE(estado->text(), Q(TextoAyudaCampo(S(v->objectName()), 1)));
    // Enter on a text that is no number leaves the focus where it is.
    QTest::keyClick(Caja(v, 1), Qt::Key_Return);
    QCOMPARE(QApplication::focusWidget(), Caja(v, 1));
    struct Paso {
        const char* teclas;
        const char* foco;
    };
    // Enter goes on to the list, Enter on the list to the next box; from a code box over the
    // query button to the emissivity, filled from the database.
    // clang-format off
    const Paso pasos[] = {
        {"350", "cboUnidad_1"}, {"", "txtValor_2"},
        {"120", "cboUnidad_2"}, {"", "txtValor_3"},
        {"80",  "cboUnidad_3"}, {"", "txtValor_4"},
        {"5",   "cboUnidad_4"}, {"", "txtValor_5"},
        {"6",   "txtValor_6"},
        {"",    "txtValor_7"},
        {"1",   "txtValor_8"},
        {"",    "cmdAceptar"},
    };
    // clang-format on
    for (const Paso& paso : pasos) {
        QWidget* foco = QApplication::focusWidget();
        QTest::keyClicks(foco, QString::fromLatin1(paso.teclas));
        QTest::keyClick(foco, Qt::Key_Return);
        QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(paso.foco));
        QCOMPARE(Desacuerdo(*v), QString());
    }
    QCOMPARE(Caja(v, 6)->text(), QStringLiteral("0.09"));
    QCOMPARE(Caja(v, 8)->text(), QStringLiteral("0.79"));
    QVERIFY(Caja(v, 5)->toolTip().endsWith(QStringLiteral(": ALUMINIO COMERCIAL (LÁMINA NUEVA)")));
    QVERIFY(Boton(v, "cmdAceptar")->isEnabled());
    QCOMPARE(TagDe(v), QStringLiteral("1"));
    QCOMPARE(FileStateDe(v), 2);
    // An unknown code empties the emissivity and says so.
    Escribir(v, "txtValor_7", "99");
    QCOMPARE(estado->text(),
             QStringLiteral("Material Superficie Desnuda: No existe un material con código 99"));
    QCOMPARE(Caja(v, 8)->text(), QString());
    QVERIFY(!Boton(v, "cmdAceptar")->isEnabled());
    QCOMPARE(FileStateDe(v), 0);
    QCOMPARE(Desacuerdo(*v), QString());
}

void EntradaTest::teclasDeAcceso() {
    BancoVentanas b;
    frmDatosEntrada* v = b.Abrir("velmar80.adk");
    QTest::mouseClick(Caja(v, 3), Qt::LeftButton);
    // "&Temperatura Interior:" wins over the frame's "Análisis &Técnico".
    QTest::keyClick(Caja(v, 3), Qt::Key_T, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), Caja(v, 1));
    QTest::keyClick(Caja(v, 1), Qt::Key_D, Qt::AltModifier);
    QCOMPARE(QApplication::focusWidget(), Caja(v, 7));
    // "C&alcular" wins over "&Archivo".
    QTest::keyClick(Caja(v, 7), Qt::Key_A, Qt::AltModifier);
    QCOMPARE(prueba::Ventanas(b.marco).size(), 2);
    QCOMPARE(b.marco.VentanaActiva()->windowTitle(),
             QStringLiteral(
                     "Resultados - Transferencia de Calor para Superficies Planas (Calor) [1]"));
}

void EntradaTest::validacionEnOrden() {
    struct Caso {
        const char* ejemplo;
        int caja;
        const char* texto;
        const char* unidad;
        const char* mensaje;
        const char* foco;
    };
    // One refusal per window family, and a database miss; the core pins the order of checks.
    // clang-format off
    const Caso casos[] = {
        {"velmar80.adk",            1, "0",   "K", "La Temperatura Interior no es válida.", "txtValor_1"},
        {"nivara.adk",              5, "7",   "",  "Error inesperado: No se encontró un diámetro de 7 plg en la Base de Datos.", "cmdAceptar"},
        {"tavelas-poliuretano.adk", 4, "95",  "",  "La Temperatura del Punto de Rocío debe ser menor que la Temperatura Ambiente.", "txtValor_4"},
        {"orbelas-poliuretano.adk", 6, "0",   "",  "El Coeficiente de Transmisión de Calor debe ser mayor que cero.", "txtValor_6"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        BancoVentanas b;
        frmDatosEntrada* v = b.Abrir(caso.ejemplo);
        Escribir(v, QStringLiteral("txtValor_%1").arg(caso.caja), QString::fromUtf8(caso.texto));
        if (*caso.unidad != '\0') {
            Seleccionar(Lista(v, caso.caja), QString::fromUtf8(caso.unidad));
        }
        QTest::mouseClick(Boton(v, "cmdAceptar"), Qt::LeftButton);
        b.Esperar();
        QVERIFY2(!b.prompter.mensajes.empty(), caso.mensaje);
        QCOMPARE(Q(b.prompter.mensajes.back().texto), QString::fromUtf8(caso.mensaje));
        QCOMPARE(QApplication::focusWidget()->objectName(), QString::fromLatin1(caso.foco));
        QCOMPARE(prueba::Ventanas(b.marco).size(), 1);
        QCOMPARE(Desacuerdo(*v), QString());
    }
    // Above the product's limit the question comes; Cancelar stops in box 1, Aceptar goes on.
    for (const Respuesta respuesta : {Respuesta::Cancelar, Respuesta::Aceptar}) {
        BancoVentanas b;
        frmDatosEntrada* v = b.Abrir("velmar80.adk");
        Escribir(v, "txtValor_1", "5000");
        b.prompter.respuestas = {respuesta};
        frmResultados* resultados = b.Calcular(v);
        QCOMPARE(
                Q(b.prompter.mensajes.front().texto),
                QStringLiteral("El Producto 'Velmar de 80 kg/m³' de FORNALIS sólo puede utilizarse "
                               "hasta %1 °F.")
                        .arg(Q(TextoNumero(TemperaturaMaximaProducto(1)))));
        QCOMPARE(resultados != nullptr, respuesta == Respuesta::Aceptar);
    }
}

void EntradaTest::cambioDeUnidadSegunLaOpcion() {
    BancoVentanas b;
    frmDatosEntrada* v = b.Nueva(1);
    QAction* conversion = Accion(&b.marco, "mnuArchivoOpcionesConverisonAutomatica");
    QVERIFY(!b.contexto.ConversionAutomatica);
    conversion->trigger();
    QVERIFY(b.contexto.ConversionAutomatica);
    struct Paso {
        int caja;
        const char* unidad;
        const char* texto;
    };
    // clang-format off
    const Paso conConversion[] = {
        {1, "°C",   "100.0"},
        {1, "K",    "373.15"},
        {4, "km/h", "16.09"},
        {2, "°C",   ""},
    };
    // clang-format on
    Escribir(v, "txtValor_1", "212");
    Escribir(v, "txtValor_4", "10");
    for (const Paso& paso : conConversion) {
        Seleccionar(Lista(v, paso.caja), QString::fromUtf8(paso.unidad));
        QCOMPARE(Caja(v, paso.caja)->text(), QString::fromUtf8(paso.texto));
        QCOMPARE(Desacuerdo(*v), QString());
    }
    conversion->trigger();
    Seleccionar(Lista(v, 1), QStringLiteral("°F"));
    QCOMPARE(Caja(v, 1)->text(), QStringLiteral("373.15"));
    QCOMPARE(v->Modelo().Lista(1).Tag, std::string("°F"));
}

void EntradaTest::productoDesdeElMenu() {
    BancoVentanas b;
    frmDatosEntrada* v = b.Abrir("velmar80.adk");
    QCOMPARE(FileStateDe(v), 1);
    auto* etiqueta = v->findChild<QLabel*>(QStringLiteral("lblProducto"));
    QCOMPARE(etiqueta->toolTip(),
             QStringLiteral("Haga click aquí para cambiar el tipo de producto"));
    QStringList ofrecidos;
    QTimer::singleShot(0, [&ofrecidos] {
        auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
        for (QAction* accion : menu->actions()) {
            ofrecidos << accion->text();
        }
        menu->actions().last()->trigger();
        menu->close();
    });
    QTest::mouseClick(etiqueta, Qt::LeftButton);
    QCOMPARE(ofrecidos.join(QLatin1Char('|')),
             QStringLiteral("Velmar de 80 kg/m³|Velmar de 100 kg/m³|Velmar de 140 kg/m³|Dorlin|"
                            "Kandor|Sarvel|Lorvanes"));
    QCOMPARE(etiqueta->text(), QStringLiteral("Lorvanes"));
    QCOMPARE(v->TipoAnalisis(), 7);
    QCOMPARE(FileStateDe(v), 2);
}

void EntradaTest::emisividadEscrita() {
    BancoVentanas b;
    frmDatosEntrada* v = b.Abrir("velmar80.adk");
    QPushButton* consultar = Boton(v, "cmdConsultarMaterial_2");
    frmDatosEntrada* otra = b.Abrir("nivara.adk");
    Accion(&b.marco, "mnuArchivoOpcionesLeerEmisividadBD")->trigger();
    // The option reaches the active window at once, the other one when it is activated.
    QCOMPARE(Boton(otra, "cmdConsultarMaterial_1")->text(), QStringLiteral("&Leer"));
    QCOMPARE(consultar->text(), QStringLiteral("C&onsultar"));
    b.marco.findChild<QMdiArea*>()->setActiveSubWindow(
            qobject_cast<QMdiSubWindow*>(v->parentWidget()));
    QCOMPARE(consultar->text(), QStringLiteral("&Leer"));
    QCOMPARE(consultar->toolTip(), QStringLiteral("Leer Emisividad"));
    b.prompter.entradas = {"abc", "1.5", " 0.5 "};
    QTest::mouseClick(consultar, Qt::LeftButton);
    QCOMPARE(Q(b.prompter.preguntas.front().mensaje),
             QStringLiteral("Ingrese el valor de la Emisividad de la  Superficie Desnuda:"));
    QCOMPARE(b.prompter.preguntas.size(), size_t{3});
    QCOMPARE(Caja(v, 7)->text(), QStringLiteral("0"));
    QCOMPARE(Caja(v, 8)->text(), QStringLiteral("0.5"));
    QCOMPARE(Desacuerdo(*v), QString());
}

// Keys, pastes, deletions, unit changes and clicks in any order: the window always shows
// what its model holds.
void EntradaTest::teclasAlAzarNoDesacuerdan() {
    const QString teclas = QStringLiteral("0123456789-.,\b\ra ");
    for (const int16_t tipo : {1, 8, 13, 14}) {
        BancoVentanas b;
        b.contexto.ConversionAutomatica = tipo % 2 == 0;
        frmDatosEntrada* v = b.Nueva(tipo);
        QRandomGenerator azar(static_cast<quint32>(tipo));
        const int cajas = v->Modelo().Ventana().Cajas();
        for (int paso = 0; paso < 400; ++paso) {
            const int i = azar.bounded(1, cajas + 1);
            QLineEdit* caja = Caja(v, i);
            switch (azar.bounded(6)) {
                case 0:
                    QTest::mouseClick(caja, Qt::LeftButton);
                    break;
                case 1:
                    if (v->Modelo().TieneLista(i)) {
                        QComboBox* lista = Lista(v, i);
                        Seleccionar(lista, lista->itemText(azar.bounded(lista->count())));
                    }
                    break;
                case 2:
                    caja->setCursorPosition(
                            azar.bounded(static_cast<int>(caja->text().size()) + 1));
                    QTest::keyClick(caja, Qt::Key_Delete);
                    break;
                case 3:
                    QApplication::clipboard()->setText(QStringLiteral("-1,5e2"));
                    QTest::keySequence(caja, QKeySequence::Paste);
                    break;
                default:
                    QTest::keyClick(
                            caja, teclas[azar.bounded(static_cast<int>(teclas.size()))].toLatin1());
                    break;
            }
            QVERIFY2(Desacuerdo(*v).isEmpty(), qPrintable(Desacuerdo(*v)));
        }
    }
}

}  // namespace kelvora

QTEST_MAIN(kelvora::EntradaTest)
#include "entradatest.moc"
