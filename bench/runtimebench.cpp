#include "core/runtime/formato.h"
#include "core/runtime/numeros.h"

#include <benchmark/benchmark.h>

namespace {

void FormatDeResultado(benchmark::State& estado) {
    double valor = 1234.5678;
    for (auto _ : estado) {
        benchmark::DoNotOptimize(kelvora::Format(valor, "0,000.0#"));
        valor += 0.001;
    }
}
BENCHMARK(FormatDeResultado);

void ValDeCaja(benchmark::State& estado) {
    for (auto _ : estado) {
        benchmark::DoNotOptimize(kelvora::Val("  1234.5678 "));
    }
}
BENCHMARK(ValDeCaja);

}  // namespace
