#include "core/thermal/pelicula.h"
#include "core/thermal/realizarcalculossc.h"
#include "core/thermal/realizarcalculosscfrio.h"
#include "core/thermal/realizarcalculossp.h"
#include "core/thermal/realizarcalculosspfrio.h"
#include "core/units/unidades.h"

#include <benchmark/benchmark.h>
#include <ctime>
#include <functional>

namespace {

using namespace kelvora;

class BombaNula : public EventPump {
public:
    bool DoEvents() override { return true; }
};

class PrompterNulo : public Prompter {
public:
    Respuesta MsgBox(const Mensaje&) override { return Respuesta::Aceptar; }
    std::optional<std::string> InputBox(const Entrada&) override { return std::nullopt; }
};

// Row 3 of `Tubos`.
class TuboTres : public FuenteTubos {
public:
    std::optional<FilaTubos> BuscarTubo(double) override {
        return FilaTubos{3, 3.5, 3.068, 5.563, 6.625, 7.625, 8.625, 9.625, 10.75, 11.75};
    }
};

struct Entorno {
    explicit Entorno(TipoResultados tipo, int32_t producto)
        : ventana(tipo, unidades, prompter, bomba) {
        ventana.SetTipoAnalisis(producto);
    }

    classUnidades unidades;
    PrompterNulo prompter;
    BombaNula bomba;
    TuboTres tubos;
    ModeloResultados ventana;
};

ArgumentosSP TipicoSP(bool grafica) {
    ArgumentosSP a;
    a.TemperaturaInterior = 600;
    a.TemperaturaSuperficieAislamiento = 140;
    a.TemperaturaAmbiente = 80;
    a.unidades = {"°C", "°C", "°C"};
    a.VelocidadAire = 5;
    a.EmisividadSuperficieAislamiento = 0.9;
    a.EmisividadSuperficieDesnuda = 0.8;
    a.CodigoMaterialSuperficieAislamiento = 7;
    a.CodigoMaterialSuperficieDesnuda = 2;
    a.modoGrafica = grafica;
    a.tipoGrafica = 2;
    return a;
}

ArgumentosSC TipicoSC(bool grafica) {
    ArgumentosSC a;
    a.TemperaturaInterior = 450;
    a.TemperaturaSuperficieAislamiento = 130;
    a.TemperaturaAmbiente = 75;
    a.unidades = {"°C", "°C", "°C"};
    a.VelocidadAire = 3;
    a.DiametroTuberia = 3;
    a.CodigoMaterialSuperficieAislamiento = 2;
    a.EmisividadSuperficieAislamiento = 0.85;
    a.modoGrafica = grafica;
    a.tipoGrafica = 2;
    return a;
}

template <class Argumentos>
Argumentos TipicoFrio() {
    Argumentos a;
    a.TemperaturaInterior = -20;
    a.TemperaturaSuperficie = 56;
    a.TemperaturaAmbiente = 95;
    a.TemperaturaPuntoRocio = 55;
    a.unidades = {"°C", "°C", "°C", "°C", "°C"};
    a.VelocidadAire = 2;
    a.CoeficienteTransmisionCalor = 0.16;
    a.CodigoMaterialSuperficieAislamiento = 6;
    a.EmisividadSuperficieAislamiento = 0.9;
    return a;
}

// Processor time of this thread, so that the other work on a shared machine does not count.
double SegundosDeProceso() {
    timespec ahora{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ahora);
    return static_cast<double>(ahora.tv_sec) + static_cast<double>(ahora.tv_nsec) * 1e-9;
}

double SegundosPorVez(int64_t veces, const std::function<void()>& hacer) {
    const double inicio = SegundosDeProceso();
    for (int64_t i = 0; i < veces; ++i) {
        hacer();
    }
    return (SegundosDeProceso() - inicio) / static_cast<double>(veces);
}

std::vector<EvaluacionPelicula> FormulasDe(const std::function<bool()>& calcular) {
    std::vector<EvaluacionPelicula> evaluaciones;
    RegistrarEvaluaciones(&evaluaciones);
    calcular();
    RegistrarEvaluaciones(nullptr);
    return evaluaciones;
}

double Independientes(int64_t veces, const std::vector<EvaluacionPelicula>& evaluaciones) {
    return SegundosPorVez(veces, [&] {
        for (const EvaluacionPelicula& e : evaluaciones) {
            benchmark::DoNotOptimize(Evaluar(e));
        }
    });
}

// Each evaluation waits for the one before, as the passes of a bisection do: x + 0 · anterior
// is x, but the processor cannot start it before anterior is known.
double Encadenadas(int64_t veces, const std::vector<EvaluacionPelicula>& evaluaciones) {
    return SegundosPorVez(veces, [&] {
        double anterior = 0;
        for (EvaluacionPelicula e : evaluaciones) {
            e.x += 0 * anterior;
            anterior = Evaluar(e);
        }
        benchmark::DoNotOptimize(anterior);
    });
}

// Times the routine; then, as many times over, the film formulas it evaluated (recorded on
// one run), independent and chained, and the grid listing alone. Reports the ratios.
void Medir(benchmark::State& estado, Entorno& entorno, const std::function<bool()>& calcular,
           bool conListado) {
    const std::vector<EvaluacionPelicula> evaluaciones = FormulasDe(calcular);
    const std::vector<double> resultados = entorno.ventana.ResultadosCalculo();
    const NombresUnidades unidades(5, "°C");
    const double inicio = SegundosDeProceso();
    for (auto _ : estado) {
        benchmark::DoNotOptimize(calcular());
    }
    const int64_t veces = estado.iterations();
    const double rutina = (SegundosDeProceso() - inicio) / static_cast<double>(veces);
    const double formulas = Independientes(veces, evaluaciones);
    const double encadenadas = Encadenadas(veces, evaluaciones);
    const double listado =
            conListado ? SegundosPorVez(
                                 veces,
                                 [&] { entorno.ventana.MostrarResultados(resultados, unidades); })
                       : 0;
    estado.counters["evaluaciones"] = static_cast<double>(evaluaciones.size());
    estado.counters["rutina_us"] = rutina * 1e6;
    estado.counters["formulas_us"] = formulas * 1e6;
    estado.counters["encadenadas_us"] = encadenadas * 1e6;
    estado.counters["listado_us"] = listado * 1e6;
    estado.counters["razon"] = (rutina - listado) / formulas;
    estado.counters["razon_encadenadas"] = (rutina - listado) / encadenadas;
}

void SPGrafica(benchmark::State& estado) {
    Entorno e(TipoResultados::SuperficiesPlanas, 1);
    Medir(
            estado, e,
            [&] {
                ArgumentosSP a = TipicoSP(true);
                return RealizarCalculosSP(e.ventana, a);
            },
            false);
}
BENCHMARK(SPGrafica)->Unit(benchmark::kMicrosecond);

void SPPantalla(benchmark::State& estado) {
    Entorno e(TipoResultados::SuperficiesPlanas, 1);
    Medir(
            estado, e,
            [&] {
                ArgumentosSP a = TipicoSP(false);
                return RealizarCalculosSP(e.ventana, a);
            },
            true);
}
BENCHMARK(SPPantalla)->Unit(benchmark::kMicrosecond);

void SCGrafica(benchmark::State& estado) {
    Entorno e(TipoResultados::SuperficiesCilindricas, 9);
    Medir(
            estado, e,
            [&] {
                ArgumentosSC a = TipicoSC(true);
                return RealizarCalculosSC(e.ventana, a, e.tubos);
            },
            false);
}
BENCHMARK(SCGrafica)->Unit(benchmark::kMicrosecond);

void SCPantalla(benchmark::State& estado) {
    Entorno e(TipoResultados::SuperficiesCilindricas, 9);
    Medir(
            estado, e,
            [&] {
                ArgumentosSC a = TipicoSC(false);
                return RealizarCalculosSC(e.ventana, a, e.tubos);
            },
            true);
}
BENCHMARK(SCPantalla)->Unit(benchmark::kMicrosecond);

void SPFrioPantalla(benchmark::State& estado) {
    Entorno e(TipoResultados::SuperficiesPlanasFrio, 13);
    const auto a = TipicoFrio<ArgumentosSPFrio>();
    Medir(
            estado, e, [&] { return RealizarCalculosSPFrio(e.ventana, a); }, true);
}
BENCHMARK(SPFrioPantalla)->Unit(benchmark::kMicrosecond);

void SCFrioPantalla(benchmark::State& estado) {
    Entorno e(TipoResultados::SuperficiesCilindricasFrio, 14);
    auto a = TipicoFrio<ArgumentosSCFrio>();
    a.DiametroTuberia = 3;
    Medir(
            estado, e, [&] { return RealizarCalculosSCFrio(e.ventana, a, e.tubos); }, true);
}
BENCHMARK(SCFrioPantalla)->Unit(benchmark::kMicrosecond);

}  // namespace
