// Fuzz target of the data file reader: any bytes must end in a result or in the program's own
// RuntimeError, never in a crash, a hang or a runaway allocation.
//
// A longer session, with the whole core instrumented (clang only):
//
//   CXX=clang++ cmake -S . -B build-fuzz -G Ninja -DKELVORA_GUI=OFF -DKELVORA_BENCH=OFF \
//       -DCMAKE_BUILD_TYPE=RelWithDebInfo \
//       -DCMAKE_CXX_FLAGS="-fsanitize=fuzzer-no-link,address,undefined"
//   cmake --build build-fuzz --target fuzz_lector_datos -j2
//   mkdir -p /tmp/corpus && cp tests/fixtures/datafile/* /tmp/corpus/
//   build-fuzz/bin/fuzz_lector_datos -max_total_time=3600 -max_len=65536 -rss_limit_mb=512 \
//       -timeout=5 /tmp/corpus
//
// New inputs go to the first folder given; a crash is written as crash-<hash> in the current
// folder and replays with `fuzz_lector_datos crash-<hash>`.

#include "core/datafile/lecturadatos.h"
#include "core/datafile/validarvariables.h"
#include "core/runtime/runtimeerror.h"

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace {

// Goes on at every box, as the command line does.
class PrompterQueSigue : public kelvora::Prompter {
public:
    kelvora::Respuesta MsgBox(const kelvora::Mensaje& mensaje) override {
        return kelvora::RespuestaQueSigue(mensaje.botones);
    }
    std::optional<std::string> InputBox(const kelvora::Entrada&) override { return std::nullopt; }
};

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* datos, size_t largo) {
    const std::string_view bytes(reinterpret_cast<const char*>(datos), largo);
    kelvora::classUnidades unidades;
    PrompterQueSigue prompter;
    try {
        const int16_t tipo = kelvora::LeerDatosArchivo(bytes, unidades, prompter);
        kelvora::ValidarVariablesArchivo(tipo, unidades, prompter);
    } catch (const kelvora::RuntimeError&) {
    }
    return 0;
}
