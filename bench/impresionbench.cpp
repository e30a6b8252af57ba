#include "core/reports/imprimirdocumento.h"
#include "gui/platform/escribirpdf.h"
#include "gui/platform/fuentesimpresion.h"
#include "gui/platform/qtsurfacepaginas.h"
#include "gui/reports/frmvistapreliminar.h"

#include <QApplication>
#include <QDir>
#include <QPageLayout>
#include <QPageSize>
#include <QPainter>
#include <QPdfWriter>

#include <benchmark/benchmark.h>
#include <memory>
#include <string>

namespace kelvora {

namespace {

// A report of the shape the generators fill: a two-line heading, then label and value rows
// with a heading every `cadaTitulo` rows.
Grilla Informe(int filas, int columnas, int cadaTitulo) {
    Grilla g;
    g.SetRows(filas);
    g.SetCols(columnas);
    g.Caption = "Informe de prueba - Velmar de 80 kg/m³ [1]";
    for (int r = 0; r < filas; ++r) {
        const bool titulo = r == 0 || r % cadaTitulo == 0;
        g.SetMergeRow(r, titulo);
        for (int c = 0; c < columnas; ++c) {
            g.SetTextMatrix(r, c,
                            titulo   ? "FORNALIS S.A.\r\nTITULO " + std::to_string(r)
                            : c == 0 ? "Temperatura Superficie Aislamiento " + std::to_string(r)
                                     : std::to_string(r * 13.25 + c));
        }
    }
    return g;
}

void Esperar(QWidget& hoja) {
    while (!hoja.isVisible() || hoja.visibleRegion().isEmpty()) {
        QApplication::processEvents();
    }
    hoja.repaint();
}

// The flat hot technical report's size: 4 columns, 75 rows.
void BM_PrimeraPaginaVista(benchmark::State& state) {
    const Grilla informe = Informe(75, 4, 15);
    for (auto _ : state) {
        auto paginas = std::make_unique<QtSurfacePaginas>();
        VistaPreliminar(*paginas, {informe, std::nullopt}, {});
        frmVistaPreliminar vista(std::move(paginas),
                                 EntornoImpresion::Para({}, QtSurfacePaginas(false)),
                                 informe.Caption);
        vista.show();
        Esperar(*vista.findChild<QWidget*>(QStringLiteral("picHoja_1")));
    }
}

// Qt's own: a page-sized widget with the same lines drawn straight on it.
class PaginaDesnuda : public QWidget {
protected:
    void paintEvent(QPaintEvent*) override {
        QPainter pintor(this);
        pintor.fillRect(rect(), Qt::white);
        pintor.setFont(QFont(QStringLiteral("Liberation Mono"), 10));
        for (int i = 0; i < 55; ++i) {
            pintor.drawText(40, 40 + i * 16,
                            QStringLiteral("Temperatura Superficie %1   %2   %3")
                                    .arg(i)
                                    .arg(i * 13.25)
                                    .arg(i * 2.5));
        }
    }
};

void BM_PrimeraPaginaQt(benchmark::State& state) {
    for (auto _ : state) {
        PaginaDesnuda hoja;
        hoja.resize(816, 1054);
        hoja.show();
        Esperar(hoja);
    }
}

// The copy report of a long chart table: the count run and one copy on surfaces that keep
// nothing.
void BM_Copia2000Filas(benchmark::State& state) {
    const Grilla copia = Informe(2000, 2, 2000);
    for (auto _ : state) {
        QtSurfacePaginas impresora(false);
        QtSurfacePaginas cuenta(false);
        benchmark::DoNotOptimize(
                ImprimirDocumento(impresora, cuenta, {copia, std::nullopt}, {}, 1));
    }
}

// Qt's own: the same 4,000 cells measured, as a layout must.
void BM_Medir4000CeldasQt(benchmark::State& state) {
    const QFontMetricsF metricas(FuenteImpresion({}));
    for (auto _ : state) {
        double ancho = 0;
        for (int i = 0; i < 4000; ++i) {
            ancho += metricas.horizontalAdvance(QStringLiteral("Temperatura %1").arg(i * 13.25));
        }
        benchmark::DoNotOptimize(ancho);
    }
}

// Input, results, technical and economic documents of one project, each a PDF file.
void BM_PdfProyecto(benchmark::State& state) {
    const Grilla documentos[] = {Informe(13, 2, 100), Informe(104, 3, 17), Informe(75, 4, 15),
                                 Informe(60, 3, 20)};
    const std::string carpeta = QDir::tempPath().toStdString() + "/kelvora-bench-";
    for (auto _ : state) {
        int i = 0;
        for (const Grilla& documento : documentos) {
            QtSurfacePaginas paginas;
            QtSurfacePaginas cuenta(false);
            ImprimirDocumento(paginas, cuenta, {documento, std::nullopt}, {}, 1);
            EscribirPdf(paginas, carpeta + std::to_string(i++) + ".pdf", "Informe");
        }
    }
}

// Qt's own: as many pages of as many lines written straight into PDF files.
void BM_PdfQt(benchmark::State& state) {
    const QString carpeta = QDir::tempPath() + QStringLiteral("/kelvora-bench-qt-");
    const int paginasPorDocumento[] = {1, 3, 2, 2};
    for (auto _ : state) {
        for (int d = 0; d < 4; ++d) {
            QPdfWriter pdf(carpeta + QString::number(d) + QStringLiteral(".pdf"));
            pdf.setPageLayout(
                    QPageLayout(QPageSize(QPageSize::Letter), QPageLayout::Portrait, QMarginsF()));
            QPainter pintor(&pdf);
            pintor.setFont(QFont(QStringLiteral("Liberation Mono"), 10));
            for (int p = 0; p < paginasPorDocumento[d]; ++p) {
                if (p > 0) {
                    pdf.newPage();
                }
                for (int i = 0; i < 52; ++i) {
                    pintor.drawText(
                            700, 700 + i * 190,
                            QStringLiteral("Temperatura Superficie %1   %2").arg(i).arg(i * 3.5));
                }
            }
        }
    }
}

BENCHMARK(BM_PrimeraPaginaVista)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_PrimeraPaginaQt)->Unit(benchmark::kMillisecond)->UseRealTime();
BENCHMARK(BM_Copia2000Filas)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_Medir4000CeldasQt)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PdfProyecto)->Unit(benchmark::kMillisecond);
BENCHMARK(BM_PdfQt)->Unit(benchmark::kMillisecond);

}  // namespace

}  // namespace kelvora

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication aplicacion(argc, argv);
    benchmark::Initialize(&argc, argv);
    benchmark::RunSpecifiedBenchmarks();
    benchmark::Shutdown();
    return 0;
}
