#pragma once

#include <array>
#include <cstddef>
#include <vector>

namespace kelvora {

/// The computed values of one block of `ResultadosCalculo`, offsets 2 and 8 to 16.
struct BloqueCalculo {
    double TS = 0;
    double TM = 0;
    double k = 0;
    double f = 0;
    double E = 0;
    double Qr = 0;
    double Qc = 0;
    double Qt = 0;
    double Qdt = 0;
    double Ef = 0;
};

/// The inputs every block repeats: offsets 1, 3 and 4, and the three of offsets 5 to 7
/// (flat: jacket code, Es, Ed; pipes: nominal diameter, jacket code, Es).
struct EntradasBloque {
    double TI = 0;
    double TA = 0;
    double V = 0;
    std::array<double, 3> columnas5a7{};
};

/// Writes block b (from 0) into the slots after 17 · b; the seventeenth slot stays as it is.
void EscribirBloque(std::vector<double>& resultados, int bloque, const EntradasBloque& entradas,
                    const BloqueCalculo& valores);

/// Writes position p's (from 0) ideal and practical blocks, blocks 2p and 2p + 1.
void EscribirPosicion(std::vector<double>& resultados, std::size_t posicion,
                      const EntradasBloque& entradas, const BloqueCalculo& ideal,
                      const BloqueCalculo& practico);

}  // namespace kelvora
