#include "core/app/contexto.h"
#include "core/comparacion/comparacion.h"
#include "core/entry/modeloentrada.h"
#include "core/materials/tubos.h"

#include <benchmark/benchmark.h>

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

class SinMateriales : public AccesoMateriales {
public:
    bool ExisteBaseDatos() override { return false; }
    void AbrirConexion() override {}
    std::string LeerMaterial(int32_t, std::string&) override { return ""; }
    void CerrarConexion() override {}
};

class SinTubos : public FuenteTubos {
public:
    std::optional<FilaTubos> BuscarTubo(double) override { return std::nullopt; }
};

// The seven flat hot products for a typical duty: 600 °F inside, 140 °F outside, 80 °F air.
void BM_CompararPlanasCalor(benchmark::State& estado) {
    PrompterNulo prompter;
    ContextoAplicacion contexto;
    contexto.LeerEmisividadBD = false;
    SinMateriales materiales;
    BombaNula bomba;
    SinTubos tubos;
    ModeloEntrada ventana(DescripcionVentanaDatos(TipoEntrada::SuperficiesPlanas),
                          {prompter, contexto, materiales, bomba, [] {}, [](int) {}});
    ventana.SetTipoAnalisis(1);
    const std::pair<int, const char*> datos[] = {{1, "600"}, {2, "140"}, {3, "80"}, {4, "5"},
                                                 {5, "0"},   {6, "0.9"}, {7, "0"},  {8, "0.8"}};
    for (const auto& [caja, texto] : datos) {
        ventana.SetTexto(caja, texto);
    }
    for (auto _ : estado) {
        benchmark::DoNotOptimize(CompararProductos(ventana, tubos, bomba));
    }
}
BENCHMARK(BM_CompararPlanasCalor)->Unit(benchmark::kMicrosecond);

}  // namespace
