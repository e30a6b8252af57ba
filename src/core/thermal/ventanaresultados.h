#pragma once

#include "core/thermal/valorespublicos.h"

#include <array>
#include <string>
#include <utility>
#include <vector>

namespace kelvora {

/// The four results windows.
enum class TipoResultados {
    SuperficiesPlanas,
    SuperficiesCilindricas,
    SuperficiesPlanasFrio,
    SuperficiesCilindricasFrio
};

/// One data row of a block of the results grid.
struct FilaResultado {
    const char* etiqueta;
    /// The unit column; for a converted row the entry of the display unit names instead.
    const char* unidad;
    /// 1 to 3: a temperature, converted from "°F" to that entry of the display unit names.
    int unidadVisual;
    const char* formato;
    /// The material row shows the code as a plain number and carries its row number.
    bool material;
};

inline constexpr int kFilasPorBloque = 17;
inline constexpr int kFilasDatos = 16;
/// Grid rows before the first block: the company line and the title.
inline constexpr int kFilasEncabezado = 2;
/// Offset of the thickness row in a block.
inline constexpr int kFilaEspesor = 11;

/// What sets one results window apart from its sisters; the shared model does the rest.
struct VentanaResultados {
    const char* nombre;
    const char* caption;
    const char* titulo;
    /// The window's kind for saving and printing.
    const char* tag;
    int filas;
    /// Position of each pair of blocks, ideal and practical, in order.
    std::vector<const char*> posiciones;
    std::array<FilaResultado, kFilasDatos> datos;
    /// The public values in listing order, with the value they hold before a calculation.
    std::vector<std::pair<const char*, ValorPublico>> valores;
    const char* captionCerrar;
    bool analisisEconomico;

    int Bloques() const { return static_cast<int>(posiciones.size()) * 2; }
    /// Slots of `ResultadosCalculo`, 17 per block.
    int Ranuras() const { return Bloques() * kFilasPorBloque; }
};

const VentanaResultados& DescripcionResultados(TipoResultados tipo);

/// Second line of a block heading: the thickness case of block b.
const char* CasoBloque(int bloque);

}  // namespace kelvora
