#include "core/reports/textolargo.h"

#include "core/runtime/runtimeerror.h"

namespace kelvora {

namespace {

constexpr int kSubindiceFueraDeIntervalo = 9;

}  // namespace

std::string TextoLargo(const Grilla& grilla, int32_t indice) {
    const std::string& lista = grilla.Tag;
    size_t inicio = 0;
    for (int32_t i = 0; i < indice; ++i) {
        inicio = lista.find(';', inicio);
        if (inicio == std::string::npos) {
            throw RuntimeError(kSubindiceFueraDeIntervalo, "El subíndice está fuera del intervalo");
        }
        ++inicio;
    }
    return lista.substr(inicio, lista.find(';', inicio) - inicio);
}

bool EsCeldaLarga(const Grilla& grilla, int fila, int columna) {
    return static_cast<int64_t>(grilla.RowData(fila)) * grilla.ColData(columna) > 0;
}

}  // namespace kelvora
