#include "core/thermal/bloque.h"

#include "core/thermal/ventanaresultados.h"

namespace kelvora {

void EscribirBloque(std::vector<double>& resultados, int bloque, const EntradasBloque& entradas,
                    const BloqueCalculo& valores) {
    const std::array<double, kFilasDatos> ranuras = {entradas.TI,
                                                     valores.TS,
                                                     entradas.TA,
                                                     entradas.V,
                                                     entradas.columnas5a7[0],
                                                     entradas.columnas5a7[1],
                                                     entradas.columnas5a7[2],
                                                     valores.TM,
                                                     valores.k,
                                                     valores.f,
                                                     valores.E,
                                                     valores.Qr,
                                                     valores.Qc,
                                                     valores.Qt,
                                                     valores.Qdt,
                                                     valores.Ef};
    const auto base = static_cast<size_t>(kFilasPorBloque * bloque);
    for (size_t i = 0; i < ranuras.size(); ++i) {
        resultados.at(base + i) = ranuras[i];
    }
}

void EscribirPosicion(std::vector<double>& resultados, std::size_t posicion,
                      const EntradasBloque& entradas, const BloqueCalculo& ideal,
                      const BloqueCalculo& practico) {
    const int bloque = static_cast<int>(2 * posicion);
    EscribirBloque(resultados, bloque, entradas, ideal);
    EscribirBloque(resultados, bloque + 1, entradas, practico);
}

}  // namespace kelvora
