#include "bancoventanas.h"
#include "core/materials/fuentetubosbd.h"
#include "gui/charts/aperturagraficas.h"
#include "gui/charts/frmgraficas.h"
#include "gui/reports/arribaabajo.h"
#include "gui/reports/frmvistapreliminar.h"
#include "gui/reports/impresionventanas.h"

#include <QAction>
#include <QApplication>
#include <QFile>
#include <QLineEdit>
#include <QPrinterInfo>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>
#include <QToolButton>

#include <functional>

namespace kelvora {

using prueba::Accion;
using prueba::BancoVentanas;
using prueba::Control;
using prueba::DialogosGuion;

namespace {

// The test frame with the program's print commands and charts; PDF names come from a script.
struct BancoImpresion : BancoVentanas {
    BancoImpresion() {
        auto guion = std::make_unique<DialogosGuion>();
        pdf = guion.get();
        auto* impresion =
                new ImpresionVentanas(marco, contexto, ajustes, prompter, std::move(guion));
        fabrica.VistaPreliminar = std::bind_front(&ImpresionVentanas::VistaPreliminar, impresion);
        fabrica.Imprimir = std::bind_front(&ImpresionVentanas::Imprimir, impresion);
        fabrica.ExportarPdf = std::bind_front(&ImpresionVentanas::ExportarPdf, impresion);
        fabrica.ConfigurarPagina = std::bind_front(&ImpresionVentanas::ConfigurarPagina, impresion);
        fabrica.NombreImpresora = &ImpresionVentanas::NombreImpresora;
        auto* graficas =
                new AperturaGraficas(marco, contexto, prompter,
                                     std::make_unique<FuenteTubosBD>(contexto.CadenaConexion));
        fabrica.Graficar = std::bind_front(&AperturaGraficas::Graficar, graficas);
        PonerFabrica();
    }

    QWidget* Resultados() { return Calcular(Abrir("velmar80.adk")); }
    QWidget* Grafica() {
        frmDatosEntrada* datos = Abrir("velmar80.adk");
        fabrica.Graficar(datos, 1);
        auto* grafica = qobject_cast<frmGraficas*>(marco.VentanaActiva());
        static_cast<void>(QTest::qWaitFor([grafica] { return grafica->Modelo().SerieLista(); }));
        return grafica;
    }

    DialogosGuion* pdf = nullptr;
};

// Does `hacer` with the modal window of class T once it is up.
template <class T>
void AlAbrirse(std::function<void(T*)> hacer) {
    QTimer::singleShot(0, [hacer] {
        for (QWidget* ventana : QApplication::topLevelWidgets()) {
            if (auto* modal = qobject_cast<T*>(ventana); modal != nullptr && modal->isVisible()) {
                hacer(modal);
                return;
            }
        }
        QFAIL("No se abrió la ventana");
    });
}

int PaginasPdf(const QString& archivo) {
    QFile pdf(archivo);
    if (!pdf.open(QIODevice::ReadOnly)) {
        return -1;
    }
    const QByteArray bytes = pdf.readAll();
    return static_cast<int>(bytes.count("/Type /Page\n") + bytes.count("/Type /Page\r") +
                            bytes.count("/Type /Page/") + bytes.count("/Type /Page>"));
}

}  // namespace

class ImpresionTest : public QObject {
    Q_OBJECT

private slots:
    void ExportarPdfDeResultadosYGrafica();
    void PdfEnCarpetaSinPermisoAvisaYNoDejaArchivo();
    void ImprimirSinImpresorasEscribePdf();
    void VistaPreliminarPaginaYSeCierra();
    void ConfigurarPaginaCancelarNoRestauraAceptarGuarda();
};

void ImpresionTest::ExportarPdfDeResultadosYGrafica() {
    QTemporaryDir carpeta;
    // clang-format off
    const struct {
        const char* archivo;
        std::function<QWidget*(BancoImpresion&)> abrir;
        int paginas;
    } casos[] = {
        {"resultados.pdf", &BancoImpresion::Resultados, 3},
        {"grafica.pdf",    &BancoImpresion::Grafica,    1},
    };
    // clang-format on
    for (const auto& caso : casos) {
        BancoImpresion b;
        QVERIFY(caso.abrir(b) != nullptr);
        const QString ruta = carpeta.filePath(QString::fromLatin1(caso.archivo));
        b.pdf->respuestas.push_back(ruta.toStdString());
        QAction* exportar = Accion(&b.marco, "mnuArchivoExportarPdf");
        b.marco.Actualizar();
        QVERIFY(exportar->isEnabled());
        exportar->trigger();
        QVERIFY2(b.prompter.mensajes.empty(),
                 b.prompter.mensajes.empty() ? "" : b.prompter.mensajes[0].texto.c_str());
        QCOMPARE(PaginasPdf(ruta), caso.paginas);
    }
}

void ImpresionTest::PdfEnCarpetaSinPermisoAvisaYNoDejaArchivo() {
    BancoImpresion b;
    b.Resultados();
    const std::string ruta = "/proc/kelvora-no-existe/informe.pdf";
    b.pdf->respuestas.push_back(ruta);
    Accion(&b.marco, "mnuArchivoExportarPdf")->trigger();
    QCOMPARE(b.prompter.mensajes.size(), size_t{1});
    QVERIFY(b.prompter.mensajes[0].texto.starts_with(
            "No se pudo exportar el documento a PDF debido al siguiente error: "));
    QVERIFY(!QFile::exists(QString::fromStdString(ruta)));
}

void ImpresionTest::ImprimirSinImpresorasEscribePdf() {
    if (!QPrinterInfo::availablePrinters().isEmpty()) {
        QSKIP("Esta máquina tiene impresoras");
    }
    BancoImpresion b;
    b.Resultados();
    b.marco.Actualizar();
    QVERIFY(Accion(&b.marco, "Imprimir")->isEnabled());
    QCOMPARE(Accion(&b.marco, "Imprimir")->toolTip(), QStringLiteral("Imprimir (Archivo PDF)"));
    QTemporaryDir carpeta;
    b.pdf->respuestas.push_back(carpeta.filePath(QStringLiteral("i.pdf")).toStdString());
    Accion(&b.marco, "mnuArchivoImprimir")->trigger();
    QCOMPARE(PaginasPdf(carpeta.filePath(QStringLiteral("i.pdf"))), 3);
}

void ImpresionTest::VistaPreliminarPaginaYSeCierra() {
    BancoImpresion b;
    b.contexto.Pagina.FuenteTamano = 30;
    QWidget* resultados = b.Resultados();
    bool vista = false;
    AlAbrirse<frmVistaPreliminar>([&](frmVistaPreliminar* v) {
        vista = true;
        QCOMPARE(v->windowTitle(), "Vista Preliminar - [" + resultados->windowTitle() + "]");
        QVERIFY(v->Paginas() > 1);
        QVERIFY(v->findChild<QWidget*>(QStringLiteral("picHoja_%1").arg(v->Paginas())));
        auto* vsb = v->findChild<QScrollBar*>(QStringLiteral("vsb"));
        QTest::keyClick(v, Qt::Key_Down);
        QCOMPARE(vsb->value(), vsb->singleStep());
        v->MouseWheel(120, false);
        QCOMPARE(vsb->value(), 0);
        QTest::keyClick(v, Qt::Key_Escape);
    });
    Accion(&b.marco, "mnuArchivoVistaPreliminar")->trigger();
    QVERIFY(vista);
    QVERIFY(b.prompter.mensajes.empty());
}

void ImpresionTest::ConfigurarPaginaCancelarNoRestauraAceptarGuarda() {
    BancoImpresion b;
    AlAbrirse<QDialog>([](QDialog* d) {
        QTest::mouseClick(Control<ArribaAbajo>(d, QStringLiteral("updSuperior"))
                                  ->findChildren<QToolButton*>()
                                  .at(0),
                          Qt::LeftButton);
        QCOMPARE(Control<QLineEdit>(d, QStringLiteral("txtSuperior"))->text(),
                 QStringLiteral("1.6 cms"));
        QTest::mouseClick(Control<QPushButton>(d, QStringLiteral("cmdCancelar")), Qt::LeftButton);
    });
    Accion(&b.marco, "mnuArchivoConfigurarPagina")->trigger();
    QCOMPARE(b.contexto.Pagina.MargenSuperior, 16.0F);
    QVERIFY(b.ajustes.escrituras.empty());
    AlAbrirse<QDialog>([](QDialog* d) {
        Control<QRadioButton>(d, QStringLiteral("optHorizontal"))->setChecked(true);
        QTest::mouseClick(Control<QPushButton>(d, QStringLiteral("cmdAceptar")), Qt::LeftButton);
    });
    Accion(&b.marco, "mnuArchivoConfigurarPagina")->trigger();
    QCOMPARE(b.contexto.Pagina.Orientacion, 2);
    const auto clave = [&b](const char* nombre) {
        return b.ajustes.valores[{"Kelvora", "ConfigurarPagina", nombre}];
    };
    QCOMPARE(clave("Orientacion"), std::string("2"));
    QCOMPARE(clave("Superior"), std::string("16"));
}

}  // namespace kelvora

QTEST_MAIN(kelvora::ImpresionTest)
#include "impresiontest.moc"
