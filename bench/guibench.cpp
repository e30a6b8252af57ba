#include "core/app/arranque.h"
#include "core/app/contexto.h"
#include "core/platform/clock.h"
#include "core/platform/settingsmemoria.h"
#include "gui/app/fabricaprograma.h"
#include "gui/app/mdikelvora.h"
#include "gui/entry/frmdatosentrada.h"
#include "gui/thermal/frmresultados.h"

#include <QApplication>
#include <QMainWindow>
#include <QMdiArea>
#include <QMdiSubWindow>
#include <QProcess>
#include <QPushButton>
#include <QTableWidget>

#include <benchmark/benchmark.h>
#include <cstdio>
#include <fstream>
#include <functional>
#include <map>
#include <memory>
#include <unistd.h>

namespace kelvora {

namespace {

class RelojBanco : public Clock {
public:
    Fecha Hoy() override { return {2024, 3, 5}; }
};

// Every box answers with the button that goes on.
class PrompterBanco : public Prompter {
public:
    Respuesta MsgBox(const Mensaje& mensaje) override { return RespuestaQueSigue(mensaje.botones); }
    std::optional<std::string> InputBox(const Entrada&) override { return std::nullopt; }
};

// Lets events run until a widget that `buscado` picks has been painted.
class EsperaPintado : public QObject {
public:
    explicit EsperaPintado(std::function<bool(const QWidget&)> buscado)
        : mBuscado(std::move(buscado)) {
        QApplication::instance()->installEventFilter(this);
    }

    void Esperar() {
        while (!mPintado) {
            QApplication::processEvents(QEventLoop::AllEvents);
        }
    }

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override {
        if (evento->type() == QEvent::Paint && objeto->isWidgetType() &&
            mBuscado(*static_cast<QWidget*>(objeto))) {
            mPintado = true;
        }
        return false;
    }

private:
    std::function<bool(const QWidget&)> mBuscado;
    bool mPintado = false;
};

void EsperarPintadoDe(const QWidget& ventana) {
    EsperaPintado([&ventana](const QWidget& pintado) {
        return pintado.window() == &ventana;
    }).Esperar();
}

// The results grid is drawn when its viewport has been painted.
void EsperarGrilla() {
    EsperaPintado([](const QWidget& pintado) {
        return pintado.parentWidget() != nullptr &&
               pintado.parentWidget()->objectName() == QStringLiteral("MSFG");
    }).Esperar();
}

void Descartar(std::unique_ptr<QWidget>& ventana) {
    ventana.reset();
    QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    QApplication::processEvents();
}

long ResidenteKb() {
    std::ifstream statm("/proc/self/statm");
    long total = 0;
    long residente = 0;
    statm >> total >> residente;
    return residente * sysconf(_SC_PAGESIZE) / 1024;
}

// The program as it starts: context, database probe, options, frame and its windows.
struct Programa {
    Programa() {
        IniciarContexto(contexto, QApplication::applicationDirPath().toStdString(), ajustes,
                        ColoresSistema{}, prompter);
        principal = std::make_unique<mdiKelvora>(contexto, ajustes, reloj);
        fabrica = CrearFabrica(*principal, contexto, ajustes, prompter);
        principal->PonerFabrica(fabrica);
        principal->resize(1000, 760);
        principal->show();
    }

    QPushButton* AbrirEjemplo(const char* archivo) {
        fabrica.LeerArchivo(std::string(KELVORA_EJEMPLOS) + "/" + archivo);
        return principal->VentanaActiva()->findChild<QPushButton*>(QStringLiteral("cmdAceptar"));
    }

    void CerrarResultados() {
        for (QWidget* hija : principal->VentanasHijas()) {
            if (qobject_cast<frmResultados*>(hija) != nullptr) {
                hija->close();
            }
        }
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
    }

    ContextoAplicacion contexto;
    SettingsEnMemoria ajustes;
    RelojBanco reloj;
    PrompterBanco prompter;
    std::unique_ptr<mdiKelvora> principal;
    FabricaVentanas fabrica;
};

// A bare frame of Qt's own, built and shown in a running program.
void BM_ConstruccionVentanaQt(benchmark::State& state) {
    for (auto _ : state) {
        auto ventana = std::make_unique<QMainWindow>();
        ventana->setCentralWidget(new QMdiArea);
        ventana->resize(1000, 760);
        ventana->show();
        EsperarPintadoDe(*ventana);
        state.PauseTiming();
        std::unique_ptr<QWidget> descartada = std::move(ventana);
        Descartar(descartada);
        state.ResumeTiming();
    }
}

void BM_ConstruccionKelvora(benchmark::State& state) {
    for (auto _ : state) {
        auto programa = std::make_unique<Programa>();
        EsperarPintadoDe(*programa->principal);
        state.PauseTiming();
        std::unique_ptr<QWidget> descartada = std::move(programa->principal);
        Descartar(descartada);
        state.ResumeTiming();
    }
}

// A table of the results grid's size, filled and drawn in a bare frame.
void BM_TablaQt(benchmark::State& state) {
    QMainWindow ventana;
    auto* area = new QMdiArea;
    ventana.setCentralWidget(area);
    ventana.resize(1000, 760);
    ventana.show();
    EsperarPintadoDe(ventana);
    for (auto _ : state) {
        auto* tabla = new QTableWidget(104, 3);
        tabla->setObjectName(QStringLiteral("MSFG"));
        for (int fila = 0; fila < 104; ++fila) {
            for (int columna = 0; columna < 3; ++columna) {
                tabla->setItem(fila, columna, new QTableWidgetItem(QString::number(fila * 3.25)));
            }
        }
        area->addSubWindow(tabla)->show();
        EsperarGrilla();
        state.PauseTiming();
        area->closeAllSubWindows();
        QApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        QApplication::processEvents();
        state.ResumeTiming();
    }
}

void BM_CalcularHastaResultados(benchmark::State& state) {
    Programa programa;
    QPushButton* calcular = programa.AbrirEjemplo("velmar80.adk");
    for (auto _ : state) {
        calcular->click();
        EsperarGrilla();
        state.PauseTiming();
        programa.CerrarResultados();
        state.ResumeTiming();
    }
}

// A new process of this program that shows a frame, waits for it to be drawn and ends.
void Arrancar(benchmark::State& state, const char* ventana) {
    for (auto _ : state) {
        QProcess proceso;
        proceso.start(QCoreApplication::applicationFilePath(),
                      {QStringLiteral("--arranque=") + QLatin1String(ventana)});
        if (!proceso.waitForFinished() || proceso.exitCode() != 0) {
            state.SkipWithError("el proceso de arranque falló");
        }
    }
}

void BM_ArranqueVentanaQt(benchmark::State& state) {
    Arrancar(state, "qt");
}

void BM_ArranqueKelvora(benchmark::State& state) {
    Arrancar(state, "kelvora");
}

void BM_MemoriaDiezResultados(benchmark::State& state) {
    Programa programa;
    QPushButton* calcular = programa.AbrirEjemplo("nivara.adk");
    calcular->click();
    EsperarGrilla();
    programa.CerrarResultados();
    for (auto _ : state) {
        const long antes = ResidenteKb();
        for (int i = 0; i < 10; ++i) {
            calcular->click();
            EsperarGrilla();
        }
        state.counters["crecimiento_kB"] = static_cast<double>(ResidenteKb() - antes);
        state.counters["por_ventana_kB"] = static_cast<double>(ResidenteKb() - antes) / 10;
        state.PauseTiming();
        programa.CerrarResultados();
        state.ResumeTiming();
    }
}

// The memory first, before the other runs have grown the heap.
BENCHMARK(BM_MemoriaDiezResultados)->Unit(benchmark::kMillisecond)->Iterations(1);
BENCHMARK(BM_ArranqueVentanaQt)->Unit(benchmark::kMillisecond)->MinTime(3.0)->UseRealTime();
BENCHMARK(BM_ArranqueKelvora)->Unit(benchmark::kMillisecond)->MinTime(3.0)->UseRealTime();
BENCHMARK(BM_ConstruccionVentanaQt)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(BM_ConstruccionKelvora)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(BM_TablaQt)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();
BENCHMARK(BM_CalcularHastaResultados)->Unit(benchmark::kMillisecond)->MinTime(2.0)->UseRealTime();

// Prints, after the runs, how the program's times compare with Qt's own.
class ReporteConRazones : public benchmark::ConsoleReporter {
public:
    void ReportRuns(const std::vector<Run>& corridas) override {
        for (const Run& corrida : corridas) {
            mTiempos[corrida.run_name.function_name] = corrida.GetAdjustedRealTime();
        }
        ConsoleReporter::ReportRuns(corridas);
    }

    void Razones() const {
        Razon("Arranque", "BM_ArranqueKelvora", "BM_ArranqueVentanaQt", " (objetivo: 1.5 o menos)");
        Razon("Construcción en caliente", "BM_ConstruccionKelvora", "BM_ConstruccionVentanaQt", "");
        Razon("Calcular a resultados", "BM_CalcularHastaResultados", "BM_TablaQt", "");
    }

private:
    void Razon(const char* nombre, const char* programa, const char* qt,
               const char* objetivo) const {
        const auto a = mTiempos.find(programa);
        const auto b = mTiempos.find(qt);
        if (a != mTiempos.end() && b != mTiempos.end() && b->second > 0) {
            std::printf("%s: %.2f veces Qt%s\n", nombre, a->second / b->second, objetivo);
        }
    }

    std::map<std::string, double> mTiempos;
};

}  // namespace

// The child process of a start-up run: the frame of `ventana`, shown and drawn.
int MostrarArranque(const QString& ventana) {
    if (ventana == QStringLiteral("kelvora")) {
        Programa programa;
        EsperarPintadoDe(*programa.principal);
        return 0;
    }
    QMainWindow marco;
    marco.setCentralWidget(new QMdiArea);
    marco.resize(1000, 760);
    marco.show();
    EsperarPintadoDe(marco);
    return 0;
}

}  // namespace kelvora

int main(int argc, char** argv) {
    if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) {
        qputenv("QT_QPA_PLATFORM", "offscreen");
    }
    QApplication aplicacion(argc, argv);
    const QString arranque = QStringLiteral("--arranque=");
    if (argc == 2 && QString::fromLocal8Bit(argv[1]).startsWith(arranque)) {
        return kelvora::MostrarArranque(QString::fromLocal8Bit(argv[1]).mid(arranque.size()));
    }
    benchmark::Initialize(&argc, argv);
    kelvora::ReporteConRazones reporte;
    benchmark::RunSpecifiedBenchmarks(&reporte);
    reporte.Razones();
    benchmark::Shutdown();
    return 0;
}
