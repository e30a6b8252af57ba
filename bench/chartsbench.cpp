#include "core/app/contexto.h"
#include "core/charts/modelograficas.h"
#include "core/entry/accesomateriales.h"
#include "core/entry/modeloentrada.h"
#include "core/materials/tubos.h"
#include "core/platform/eventpump.h"
#include "core/platform/prompter.h"
#include "core/thermal/realizarcalculossc.h"
#include "core/thermal/realizarcalculossp.h"

#include <benchmark/benchmark.h>
#include <ctime>
#include <utility>
#include <vector>

namespace {

using namespace kelvora;

class PrompterNulo : public Prompter {
public:
    Respuesta MsgBox(const Mensaje&) override { return Respuesta::Aceptar; }
    std::optional<std::string> InputBox(const Entrada&) override { return std::nullopt; }
};

class SinBaseDatos : public AccesoMateriales {
public:
    bool ExisteBaseDatos() override { return false; }
    void AbrirConexion() override {}
    std::string LeerMaterial(int32_t, std::string&) override { return ""; }
    void CerrarConexion() override {}
};

// A nominal of 14 plg or more reads no pipe row.
class SinTubos : public FuenteTubos {
public:
    std::optional<FilaTubos> BuscarTubo(double) override { return std::nullopt; }
};

using Cajas = std::vector<std::pair<int, const char*>>;

// TI − TA = 1400 °F: N = 1401.
const Cajas kPlana = {{1, "1500"}, {2, "140"}, {3, "100"}, {4, "5"},
                      {5, "1"},    {6, "0.9"}, {7, "2"},   {8, "0.8"}};
const Cajas kTuberia = {{1, "1500"}, {2, "140"}, {3, "100"}, {4, "5"},
                        {5, "14"},   {6, "1"},   {7, "0.9"}};

struct Proyecto {
    Proyecto(TipoEntrada tipo, int32_t producto, const Cajas& cajas)
        : ventana(DescripcionVentanaDatos(tipo), {prompter, contexto, materiales, bomba, {}, {}}),
          grafica(contexto.Unidades, prompter, bomba, tubos),
          resultados(tipo == TipoEntrada::SuperficiesPlanas
                             ? TipoResultados::SuperficiesPlanas
                             : TipoResultados::SuperficiesCilindricas,
                     contexto.Unidades, prompter, bomba) {
        ventana.SetTipoAnalisis(producto);
        resultados.SetTipoAnalisis(producto);
        for (const auto& [caja, texto] : cajas) {
            ventana.SetTexto(caja, texto);
        }
    }

    PrompterNulo prompter;
    ContextoAplicacion contexto;
    SinBaseDatos materiales;
    BombaSinVentana bomba{1'000'000'000};
    SinTubos tubos;
    ModeloEntrada ventana;
    ModeloGraficas grafica;
    ModeloResultados resultados;
};

// The plain routine over the same sweep as the series: the user's TS, then TA upward.
double TSDelPunto(int i) {
    return i == 0 ? 140.0 : 100.0 + (i - 1);
}

bool LlamadaSP(Proyecto& p, int i) {
    ArgumentosSP a;
    a.TemperaturaInterior = 1500;
    a.TemperaturaSuperficieAislamiento = TSDelPunto(i);
    a.TemperaturaAmbiente = 100;
    a.VelocidadAire = 5;
    a.EmisividadSuperficieAislamiento = 0.9;
    a.EmisividadSuperficieDesnuda = 0.8;
    a.CodigoMaterialSuperficieAislamiento = 1;
    a.CodigoMaterialSuperficieDesnuda = 2;
    a.modoGrafica = true;
    a.tipoGrafica = kGraficaCalor;
    const bool bien = RealizarCalculosSP(p.resultados, a);
    benchmark::DoNotOptimize(a.espesorGrafica);
    return bien;
}

bool LlamadaSC(Proyecto& p, int i) {
    ArgumentosSC a;
    a.TemperaturaInterior = 1500;
    a.TemperaturaSuperficieAislamiento = TSDelPunto(i);
    a.TemperaturaAmbiente = 100;
    a.VelocidadAire = 5;
    a.DiametroTuberia = 14;
    a.CodigoMaterialSuperficieAislamiento = 1;
    a.EmisividadSuperficieAislamiento = 0.9;
    a.modoGrafica = true;
    a.tipoGrafica = kGraficaCalor;
    const bool bien = RealizarCalculosSC(p.resultados, a, p.tubos);
    benchmark::DoNotOptimize(a.espesorGrafica);
    return bien;
}

// CPU time of this thread: the machine is shared, and waiting for it is not the series' cost.
double Segundos() {
    timespec ahora{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &ahora);
    return static_cast<double>(ahora.tv_sec) + static_cast<double>(ahora.tv_nsec) * 1e-9;
}

// Each iteration runs the series once (N + 1 = 1402 calculations, with the window read at each
// point) and the plain routine as often; the counters give both times and their ratio.
void SerieContraLlamadas(benchmark::State& estado, TipoEntrada tipo, int32_t producto,
                         const Cajas& cajas, bool (*llamada)(Proyecto&, int)) {
    Proyecto p(tipo, producto, cajas);
    double serie = 0;
    double llamadas = 0;
    for (auto _ : estado) {
        double inicio = Segundos();
        p.grafica.setTipoGrafica(kGraficaCalor, p.ventana, 1);
        if (!p.grafica.CalcularSerie()) {
            estado.SkipWithError("la serie se detuvo");
            return;
        }
        serie += Segundos() - inicio;
        inicio = Segundos();
        for (int i = 0; i <= p.grafica.Serie().N; ++i) {
            if (!llamada(p, i)) {
                estado.SkipWithError("la rutina devolvió False");
                return;
            }
        }
        llamadas += Segundos() - inicio;
    }
    estado.counters["puntos"] = p.grafica.Serie().N + 1;
    estado.counters["serie_ms"] = 1000 * serie / static_cast<double>(estado.iterations());
    estado.counters["llamadas_ms"] = 1000 * llamadas / static_cast<double>(estado.iterations());
    estado.counters["cociente"] = serie / llamadas;
}

void SeriePlana(benchmark::State& estado) {
    SerieContraLlamadas(estado, TipoEntrada::SuperficiesPlanas, 1, kPlana, LlamadaSP);
}
BENCHMARK(SeriePlana)->Unit(benchmark::kMillisecond)->MinTime(2.0);

// A hot interior of 9,650 °C (17,402 °F): some 17,300 points and as many rows of the table,
// which must grow without copying what it holds. Target: under 1 s.
void SerieYTablaExtremas(benchmark::State& estado) {
    Cajas cajas = kPlana;
    cajas[0].second = "17402";
    Proyecto p(TipoEntrada::SuperficiesPlanas, 1, cajas);
    for (auto _ : estado) {
        p.grafica.setTipoGrafica(kGraficaCalor, p.ventana, 1);
        if (!p.grafica.CalcularSerie()) {
            estado.SkipWithError("la serie se detuvo");
            return;
        }
    }
    estado.counters["filas"] = p.grafica.MSFG().Rows();
}
BENCHMARK(SerieYTablaExtremas)->Unit(benchmark::kMillisecond)->MinTime(3.0);

void SerieTuberia(benchmark::State& estado) {
    SerieContraLlamadas(estado, TipoEntrada::SuperficiesCilindricas, 9, kTuberia, LlamadaSC);
}
BENCHMARK(SerieTuberia)->Unit(benchmark::kMillisecond)->MinTime(2.0);

}  // namespace
