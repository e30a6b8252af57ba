#include "bancoventanas.h"
#include "core/datafile/listadogrilla.h"
#include "gui/app/ventanahija.h"
#include "gui/platform/texto.h"

#include <QApplication>
#include <QFontInfo>
#include <QHeaderView>
#include <QMdiSubWindow>
#include <QPushButton>
#include <QScrollBar>
#include <QTableWidget>
#include <QTest>
#include <QWheelEvent>

namespace kelvora {

using prueba::AlOcurrir;
using prueba::BancoVentanas;
using prueba::Boton;
using prueba::Ejemplo;
using prueba::GrillaSinVentanas;

class ResultadosTest : public QObject {
    Q_OBJECT

private slots:
    void grillaIgualAlCalculoSinVentanas();
    void numeradasYSinInformesTodavia();
    void columnasProporcionalesToolTipYRueda();
    void cerrarMientrasCalcula();

private:
    static QTableWidget* MSFG(const frmResultados* ventana);
    static void MientrasCalcula(BancoVentanas& b, const std::function<void(frmResultados*)>& hacer);
};

// Does something once, from the events that a running calculation lets through.
void ResultadosTest::MientrasCalcula(BancoVentanas& b,
                                     const std::function<void(frmResultados*)>& hacer) {
    auto calculando = [&b] { return qobject_cast<frmResultados*>(b.marco.VentanaActiva()); };
    AlOcurrir(
            &b.marco,
            [calculando] { return calculando() != nullptr && calculando()->Calculando(); },
            [calculando, hacer] { hacer(calculando()); });
}

QTableWidget* ResultadosTest::MSFG(const frmResultados* ventana) {
    return ventana->findChild<QTableWidget*>(QStringLiteral("MSFG"));
}

void ResultadosTest::grillaIgualAlCalculoSinVentanas() {
    struct Caso {
        const char* ejemplo;
        const char* caption;
        int filas;
    };
    // clang-format off
    const Caso casos[] = {
        {"velmar80.adk",            "Resultados - Transferencia de Calor para Superficies Planas (Calor) [1]",      104},
        {"nivara.adk",              "Resultados - Transferencia de Calor para Superficies Cilíndricas (Calor) [1]", 70},
        {"tavelas-poliuretano.adk", "Resultados - Transferencia de Calor para Superficies Planas (Frío) [1]",       104},
        {"orbelas-poliuretano.adk", "Resultados - Transferencia de Calor para Superficies Cilíndricas (Frío) [1]",  70},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        BancoVentanas b;
        frmResultados* r = b.Calcular(b.Abrir(caso.ejemplo));
        QVERIFY2(r != nullptr, caso.ejemplo);
        QCOMPARE(r->windowTitle(), QString::fromUtf8(caso.caption));
        const Grilla esperada = GrillaSinVentanas(Ejemplo(caso.ejemplo));
        QCOMPARE(esperada.Rows(), caso.filas);
        const int tag = TagDe(r).toInt();
        QCOMPARE(ListadoGrilla(r->GrillaListado(), tag), ListadoGrilla(esperada, tag));
        QTableWidget* tabla = MSFG(r);
        QCOMPARE(tabla->rowCount(), caso.filas);
        for (int fila = 0; fila < esperada.Rows(); ++fila) {
            for (int columna = 0; columna < 3; ++columna) {
                QCOMPARE(tabla->item(fila, columna)
                                 ->text()
                                 .replace(QLatin1Char('\n'), QStringLiteral("\r\n")),
                         Q(esperada.TextMatrix(fila, columna)));
            }
            // Heading rows: one cell over the three columns, two and a half rows high.
            QCOMPARE(tabla->columnSpan(fila, 0), esperada.MergeRow(fila) ? 3 : 1);
            QVERIFY(std::abs(tabla->rowHeight(fila) -
                             tabla->rowHeight(3) * esperada.RowHeight(fila)) <= 1);
        }
        const TablaColores& colores = b.contexto.Colores;
        const auto color = [&colores](int indice) {
            return QColor(Rojo(colores[indice]), Verde(colores[indice]), Azul(colores[indice]));
        };
        QCOMPARE(tabla->item(0, 0)->background().color(), color(5));
        QCOMPARE(tabla->item(0, 0)->foreground().color(), color(4));
        QCOMPARE(tabla->item(3, 0)->background().color(), color(1));
        QCOMPARE(tabla->item(3, 1)->background().color(), color(2));
        QVERIFY(tabla->item(3, 0)->font().bold());
        QVERIFY(!tabla->item(3, 1)->font().bold());
        QCOMPARE(tabla->item(3, 1)->textAlignment(), int(Qt::AlignCenter));
        QVERIFY(QFontInfo(tabla->font()).fixedPitch());
        QVERIFY(b.prompter.mensajes.empty());
    }
}

void ResultadosTest::numeradasYSinInformesTodavia() {
    BancoVentanas b;
    frmDatosEntrada* v = b.Abrir("velmar80.adk");
    QTest::keyClick(QApplication::focusWidget(), Qt::Key_A, Qt::AltModifier);
    b.Esperar();
    auto* primera = qobject_cast<frmResultados*>(b.marco.VentanasHijas().back());
    QVERIFY(primera != nullptr);
    QCOMPARE(b.marco.VentanaActiva(), primera);
    QVERIFY(b.Calcular(v)->windowTitle().endsWith(QStringLiteral("[2]")));
    QVERIFY(primera->windowTitle().endsWith(QStringLiteral("[1]")));
    QCOMPARE(Boton(primera, "cmdCancelar")->text(), QStringLiteral("Cerrar"));
    for (const char* boton : {"cmdInformeTecnico", "cmdConceptosTecnicos"}) {
        QVERIFY(!Boton(primera, boton)->isEnabled());
    }
    QVERIFY(Boton(primera, "cmdAnalisisEconomico")->isEnabled());
    QTest::mouseClick(Boton(primera, "cmdCancelar"), Qt::LeftButton);
    b.Esperar();
    QVERIFY(b.Calcular(v)->windowTitle().endsWith(QStringLiteral("[1]")));
    QCOMPARE(prueba::Ventanas(b.marco).size(), 3);
    // The entry window keeps its data; the cold windows have no economic analysis.
    QCOMPARE(FileStateDe(v), 1);
    frmResultados* frio = b.Calcular(b.Abrir("orbelas-poliuretano.adk"));
    QCOMPARE(Boton(frio, "cmdCancelar")->text(), QStringLiteral("&Cerrar"));
    QVERIFY(frio->findChild<QPushButton*>(QStringLiteral("cmdAnalisisEconomico")) == nullptr);
}

void ResultadosTest::columnasProporcionalesToolTipYRueda() {
    BancoVentanas b;
    frmResultados* r = b.Calcular(b.Abrir("velmar80.adk"));
    QTableWidget* tabla = MSFG(r);
    for (const int ancho : {900, 500}) {
        r->parentWidget()->resize(ancho, 600);
        QApplication::processEvents();
        const int vista = tabla->viewport()->width();
        QCOMPARE(tabla->columnWidth(0) + tabla->columnWidth(1) + tabla->columnWidth(2), vista);
        QVERIFY(std::abs(tabla->columnWidth(0) - 0.56 * vista) <= 1);
    }
    // At 500 the longest labels no longer fit: the tool tip shows them; a heading row and a
    // label that fits show none.
    const auto toolTip = [tabla](int fila, int columna) {
        const QRect celda = tabla->visualRect(tabla->model()->index(fila, columna));
        QTest::mouseMove(tabla->viewport(), celda.center());
        return tabla->toolTip();
    };
    QCOMPARE(toolTip(4, 0), QStringLiteral("Temperatura Superficie Aislamiento (TS)"));
    QCOMPARE(toolTip(0, 1), QString());
    QCOMPARE(toolTip(6, 0), QString());
    QCOMPARE(toolTip(7, 1), QString());
    // One line per notch of the wheel.
    const auto rueda = [tabla](int delta) {
        QWheelEvent evento(QPointF(10, 10), tabla->viewport()->mapToGlobal(QPointF(10, 10)),
                           QPoint(), QPoint(0, delta), Qt::NoButton, Qt::NoModifier,
                           Qt::NoScrollPhase, false);
        QApplication::sendEvent(tabla->viewport(), &evento);
        return tabla->verticalScrollBar()->value();
    };
    QCOMPARE(rueda(-240), 2);
    QCOMPARE(rueda(120), 1);
    QCOMPARE(rueda(60), 1);
}

// The pipe rows come slowly, so that the events of the calculation run while it goes on.
void ResultadosTest::cerrarMientrasCalcula() {
    BancoVentanas b;
    b.tubos->esperaMs = 40;
    frmDatosEntrada* v = b.Abrir("nivara.adk");
    bool esperaba = false;
    MientrasCalcula(b, [&esperaba](frmResultados* r) {
        QTest::mouseClick(Boton(r, "cmdCancelar"), Qt::LeftButton);
        esperaba = r->isVisible();
    });
    QVERIFY(b.Calcular(v) == nullptr);
    QVERIFY(esperaba);
    QCOMPARE(prueba::Ventanas(b.marco).size(), 1);
    QVERIFY(b.prompter.mensajes.empty());
    // The entry window closed during a calculation goes once the results stand.
    MientrasCalcula(
            b, [v](frmResultados*) { QTest::mouseClick(Boton(v, "cmdCancelar"), Qt::LeftButton); });
    QTest::mouseClick(Boton(v, "cmdAceptar"), Qt::LeftButton);
    b.Esperar();
    QCOMPARE(prueba::Ventanas(b.marco).size(), 1);
    const QList<QWidget*> hijas = b.marco.VentanasHijas();
    auto* r = qobject_cast<frmResultados*>(hijas.front());
    QVERIFY(r != nullptr);
    QCOMPARE(MSFG(r)->rowCount(), 70);
}

}  // namespace kelvora

QTEST_MAIN(kelvora::ResultadosTest)
#include "resultadostest.moc"
