#include "bancoventanas.h"
#include "core/datafile/guardararchivo.h"
#include "core/materials/fuentetubosbd.h"
#include "core/runtime/codificacion.h"
#include "gui/app/ventanahija.h"
#include "gui/charts/aperturagraficas.h"
#include "gui/charts/frmgraficas.h"
#include "gui/charts/picgrafica.h"
#include "gui/platform/texto.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QMdiSubWindow>
#include <QMenu>
#include <QPointer>
#include <QPushButton>
#include <QRegularExpression>
#include <QTabBar>
#include <QTabWidget>
#include <QTableWidget>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <functional>

namespace kelvora {

using prueba::AlOcurrir;
using prueba::BancoVentanas;
using prueba::Boton;

namespace {

// The frame of the tests with the program's charts behind its Graficar menu.
void ConGraficas(BancoVentanas& b) {
    auto* graficas =
            new AperturaGraficas(b.marco, b.contexto, b.prompter,
                                 std::make_unique<FuenteTubosBD>(b.contexto.CadenaConexion));
    b.fabrica.Graficar = std::bind_front(&AperturaGraficas::Graficar, graficas);
    b.PonerFabrica();
}

QMenu* MenuGraficar(BancoVentanas& b) {
    return b.marco.findChild<QMenu*>(QStringLiteral("mnuATGraficar"));
}

// "&Graficar" of the entry window, then a click on entry `tipo` of the menu it opens.
frmGraficas* PedirGrafica(BancoVentanas& b, frmDatosEntrada* datos, int tipo) {
    QTest::mouseClick(Boton(datos, "cmdGraficar"), Qt::LeftButton);
    QMenu* menu = MenuGraficar(b);
    QAction* entrada = menu->actions().at(tipo - 1);
    QTest::mouseClick(menu, Qt::LeftButton, {}, menu->actionGeometry(entrada).center());
    return qobject_cast<frmGraficas*>(b.marco.VentanaActiva());
}

// Does something once, from the events that a running series lets through.
void MientrasGrafica(BancoVentanas& b, const std::function<void(frmGraficas*)>& hacer) {
    auto ocupada = [&b] {
        for (frmGraficas* g : b.marco.findChildren<frmGraficas*>()) {
            if (g->Modelo().Ocupado()) {
                return g;
            }
        }
        return static_cast<frmGraficas*>(nullptr);
    };
    AlOcurrir(
            &b.marco, [ocupada] { return ocupada() != nullptr; },
            [ocupada, hacer] { hacer(ocupada()); });
}

PicGrafica* Picture(const frmGraficas* g) {
    return g->findChild<PicGrafica*>(QStringLiteral("picGrafica"));
}

QTableWidget* MSFG(const frmGraficas* g) {
    return g->findChild<QTableWidget*>(QStringLiteral("MSFG"));
}

QString Panel2(BancoVentanas& b) {
    return b.marco.findChild<QLabel*>(QStringLiteral("stbStatusBar_2"))->text();
}

// Pixels of the curve's blue in the picture.
int PixelesDeCurva(const QImage& imagen) {
    int n = 0;
    for (int y = 0; y < imagen.height(); ++y) {
        for (int x = 0; x < imagen.width(); ++x) {
            const QColor c = imagen.pixelColor(x, y);
            n += c.blue() > 150 && c.red() < 80 && c.green() < 80 ? 1 : 0;
        }
    }
    return n;
}

}  // namespace

class GraficasTest : public QObject {
    Q_OBJECT

private slots:
    void menuDelBotonSerieTablaYPestanas();
    void redibujaAlCambiarDeTamanoSinRecalcular();
    void unaSerieALaVezYCerrarLaDetiene();
    void lecturaDelRaton();
    void productoEnFrioSinGrafica();
    void guardarImagenOTabla();
};

void GraficasTest::menuDelBotonSerieTablaYPestanas() {
    struct Caso {
        const char* ejemplo;
        int tipo;
        const char* caption;
        const char* columna;
    };
    // clang-format off
    const Caso casos[] = {
        {"velmar80.adk", 1, "Gráfica Temperatura Superficie (°F) vs Espesor (plg) - Velmar de 80 kg/m³ [1]",    "Temperatura Superficie (°F)"},
        {"velmar80.adk", 2, "Gráfica Pérdida de Calor (BTU/pie² h) vs Espesor (plg) - Velmar de 80 kg/m³ [1]", "Pérdida de Calor (BTU/pie² h)"},
        {"nivara.adk",   2, "Gráfica Pérdida de Calor (BTU/pie h) vs Espesor (plg) - Nivara [1]",              "Pérdida de Calor (BTU/pie h)"},
    };
    // clang-format on
    for (const Caso& c : casos) {
        BancoVentanas b;
        ConGraficas(b);
        frmDatosEntrada* datos = b.Abrir(c.ejemplo);
        QPushButton* boton = Boton(datos, "cmdGraficar");
        QTest::mouseClick(boton, Qt::LeftButton);
        QCOMPARE(MenuGraficar(b)->pos(), boton->mapToGlobal(QPoint(0, boton->height())));
        MenuGraficar(b)->hide();
        frmGraficas* g = PedirGrafica(b, datos, c.tipo);
        QVERIFY(g != nullptr);
        QCOMPARE(g->windowTitle(), QString::fromUtf8(c.caption));
        QVERIFY(g->Modelo().SerieLista());
        QVERIFY(PixelesDeCurva(Picture(g)->grab().toImage()) > 100);
        // The table shows the model's rows under the header of its format.
        const Grilla& grilla = g->Modelo().MSFG();
        QTableWidget* tabla = MSFG(g);
        QCOMPARE(tabla->horizontalHeaderItem(0)->text(), QString::fromUtf8(c.columna));
        QCOMPARE(tabla->horizontalHeaderItem(1)->text(),
                 QStringLiteral("Espesor Recomendado (plg)"));
        QCOMPARE(tabla->rowCount(), grilla.Rows());
        QVERIFY(tabla->isRowHidden(0) && grilla.Rows() > 5);
        for (int fila = 1; fila < grilla.Rows(); ++fila) {
            QCOMPARE(tabla->item(fila, 1)->text(), Q(grilla.TextMatrix(fila, 1)));
        }
        QCOMPARE(TagDe(g), QStringLiteral("15"));
        auto* pestanas = g->findChild<QTabWidget*>(QStringLiteral("tbs"))->tabBar();
        QTest::mouseClick(pestanas, Qt::LeftButton, {}, pestanas->tabRect(1).center());
        QCOMPARE(TagDe(g), QStringLiteral("16"));
        QVERIFY(tabla->isVisible());
        QTest::mouseClick(pestanas, Qt::LeftButton, {}, pestanas->tabRect(0).center());
        QCOMPARE(TagDe(g), QStringLiteral("15"));
        QVERIFY(b.prompter.mensajes.empty());
    }
}

void GraficasTest::redibujaAlCambiarDeTamanoSinRecalcular() {
    BancoVentanas b;
    ConGraficas(b);
    frmGraficas* g = PedirGrafica(b, b.Abrir("velmar80.adk"), 1);
    const int64_t pasadas = g->PasadasSerie();
    QVERIFY(pasadas > 500);
    auto* marco = static_cast<QMdiSubWindow*>(g->parentWidget());
    for (const QSize tamano : {QSize(520, 420), QSize(900, 700)}) {
        marco->resize(tamano);
        QApplication::processEvents();
        PicGrafica* pic = Picture(g);
        QCOMPARE(pic->Imagen().size(), pic->size());
        QVERIFY(PixelesDeCurva(pic->Imagen()) > 100);
        QCOMPARE(g->PasadasSerie(), pasadas);
    }
}

void GraficasTest::unaSerieALaVezYCerrarLaDetiene() {
    BancoVentanas b;
    ConGraficas(b);
    frmDatosEntrada* datos = b.Abrir("velmar80.adk");
    QTest::qWait(20);
    bool reentrada = true;
    QString panel;
    MientrasGrafica(b, [&](frmGraficas* g) {
        reentrada = g->Graficar();
        QTest::mouseMove(Picture(g), QPoint(50, 50));
        QApplication::processEvents();
        panel = Panel2(b);
    });
    frmGraficas* g = PedirGrafica(b, datos, 1);
    QVERIFY(!reentrada);
    QCOMPARE(panel, g->windowTitle());
    QVERIFY(g->Modelo().SerieLista());
    const int64_t unaSerie = g->PasadasSerie();

    // Closed while its series runs, the window stops the series at its next pass and goes.
    QPointer<frmGraficas> cerrada;
    int64_t pasadasAlCerrar = 0;
    MientrasGrafica(b, [&](frmGraficas* otra) {
        cerrada = otra;
        pasadasAlCerrar = otra->PasadasSerie();
        Boton(otra, "cmdCancelar")->click();
    });
    PedirGrafica(b, datos, 2);
    QVERIFY(pasadasAlCerrar > 0 && pasadasAlCerrar < unaSerie);
    if (cerrada) {
        QVERIFY(!cerrada->Modelo().SerieLista());
        QVERIFY(cerrada->PasadasSerie() <= pasadasAlCerrar + 1);
    }
    b.Esperar();
    QVERIFY(cerrada.isNull());
    QCOMPARE(prueba::Ventanas(b.marco).size(), 2);
    QVERIFY(b.prompter.mensajes.empty());
}

void GraficasTest::lecturaDelRaton() {
    BancoVentanas b;
    ConGraficas(b);
    frmGraficas* g = PedirGrafica(b, b.Abrir("velmar80.adk"), 1);
    PicGrafica* pic = Picture(g);
    const EscalaGrafica& e = g->Modelo().Escala();
    const EjesGrafica& ejes = g->Modelo().Ejes();
    // The middle of the frame, in plot units and in pixels; a pixel's worth of tolerance.
    const double x = (ejes.Xlow + ejes.Xhigh) / 2;
    const double y = (ejes.Ylow + ejes.Yhigh) / 2;
    const double ppm = pic->PixelesPorMm();
    const QPoint pixel(qRound(e.XSuperficie(x) * ppm), qRound(e.YSuperficie(y) * ppm));
    QTest::mouseMove(pic, pixel);
    const QRegularExpression lectura(QStringLiteral("^\\((-?[0-9.]+), (-?[0-9.]+)\\)$"));
    const QRegularExpressionMatch m = lectura.match(pic->toolTip());
    QVERIFY2(m.hasMatch(), qPrintable(pic->toolTip()));
    QVERIFY(qAbs(m.captured(1).toDouble() - x) <= qAbs(e.ScaleWidth / pic->width()) + 0.05);
    QVERIFY(qAbs(m.captured(2).toDouble() - y) <= qAbs(e.ScaleHeight / pic->height()) + 0.05);
    QCOMPARE(Panel2(b), QStringLiteral("Espesor (plg) = %1,  Temperatura Superficie (°F) = %2")
                                .arg(m.captured(1), m.captured(2)));
    QTest::mouseMove(pic, QPoint(2, 2));
    QVERIFY(pic->toolTip().isEmpty());
    QVERIFY(Panel2(b).isEmpty());
}

void GraficasTest::productoEnFrioSinGrafica() {
    BancoVentanas b;
    ConGraficas(b);
    frmDatosEntrada* datos = b.Abrir("tavelas-poliuretano.adk");
    QTest::mouseClick(Boton(datos, "cmdGraficar"), Qt::LeftButton);
    for (QAction* entrada : MenuGraficar(b)->actions()) {
        QVERIFY(!entrada->isEnabled());
    }
    MenuGraficar(b)->hide();
    frmGraficas g(b.contexto, b.prompter, *b.tubos);
    g.setTipoGrafica(1, *datos);
    g.show();
    QVERIFY(g.Graficar());
    QVERIFY(Picture(&g)->Mensaje().contains(QStringLiteral("solo para los análisis")));
    QVERIFY(Picture(&g)->Mensaje().contains(QStringLiteral("caliente")));
    QCOMPARE(MSFG(&g)->rowCount(), 1);
    QVERIFY(b.prompter.mensajes.empty());
}

void GraficasTest::guardarImagenOTabla() {
    BancoVentanas b;
    ConGraficas(b);
    frmGraficas* g = PedirGrafica(b, b.Abrir("velmar80.adk"), 1);
    QTemporaryDir carpeta;
    const std::string imagen = S(carpeta.filePath(QStringLiteral("grafica.bmp")));
    QVERIFY(GuardarArchivo(*g, imagen, b.prompter, b.ajustes));
    QFile bmp(Q(imagen));
    QVERIFY(bmp.open(QIODevice::ReadOnly));
    QCOMPARE(bmp.read(2), QByteArray("BM"));
    QCOMPARE(QImage(Q(imagen)).size(), Picture(g)->size());

    g->findChild<QTabWidget*>(QStringLiteral("tbs"))->setCurrentIndex(1);
    const std::string tabla = S(carpeta.filePath(QStringLiteral("grafica.txt")));
    QVERIFY(GuardarArchivo(*g, tabla, b.prompter, b.ajustes));
    QFile texto(Q(tabla));
    QVERIFY(texto.open(QIODevice::ReadOnly));
    const QString listado = Q(DesdeWindows1252(texto.readAll().toStdString()));
    QVERIFY(listado.startsWith(QStringLiteral(
            "GRÁFICA TEMPERATURA SUPERFICIE (°F) VS ESPESOR (PLG) - VELMAR DE 80 KG/M³")));
    QVERIFY(listado.contains(QStringLiteral("Espesor Recomendado (plg)")));
    QVERIFY(b.prompter.mensajes.empty());
}

}  // namespace kelvora

QTEST_MAIN(kelvora::GraficasTest)
#include "graficastest.moc"
