#include "core/thermal/tuberia.h"

#include "core/runtime/aritmetica.h"

#include <optional>

namespace kelvora {

double EspesorEquivalente(double r2, double r1) {
    return Comprobar(Log(Dividir(r2, r1)) * r2);
}

double PorPie(double Q, double pi, double D) {
    return Comprobar(Comprobar(Q * pi) * D) / 12;
}

FilaTubos LeerTubo(FuenteTubos& tubos, double nominal) {
    const std::optional<FilaTubos> fila = tubos.BuscarTubo(nominal);
    if (!fila) {
        throw ErrorTuboNoEncontrado(nominal);
    }
    return *fila;
}

}  // namespace kelvora
