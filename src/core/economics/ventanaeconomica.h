#pragma once

#include <string>
#include <vector>

namespace kelvora {

/// The two economic windows.
enum class TipoEconomico { SuperficiesPlanas, SuperficiesCilindricas };

/// A text box of an economic window: its index in `txtValor` (its label has the same index),
/// the caption of its label and its tool tip, which is the word the messages use.
struct CajaEconomica {
    int indice;
    const char* etiqueta;
    const char* toolTip;
};

/// What sets one economic window apart from its sister; the shared model does the rest.
struct VentanaEconomica {
    const char* nombre;
    const char* caption;
    /// The window's kind for saving and printing once a result stands.
    const char* tag;
    /// Family of the orientation boxes' units, and the unit the calculation takes them in.
    const char* familia;
    const char* unidadCalculo;
    /// 1-based entry at which the unit lists and the hours list start.
    int entradaInicial;
    /// Article of the orientation boxes in the messages, as written within and at the start of
    /// a sentence.
    const char* articulo;
    const char* articuloInicial;
    CajaEconomica eficiencia;
    /// Areas or lengths, one per orientation, in the order of the losses.
    std::vector<CajaEconomica> dimensiones;
    CajaEconomica nombreCombustible;
    /// The price; its unit list holds the currencies.
    CajaEconomica valor;
    CajaEconomica poder;
    /// The saving of each orientation, then the total.
    std::vector<CajaEconomica> resultados;
    /// Orientations in the order in which their savings are added up.
    std::vector<int> ordenTotal;
    /// Hint indices of the hours list and the fuel list.
    int indiceHoras;
    int indiceCombustible;
    /// Hints by index; the price's hint takes the fuel's word behind it.
    std::vector<const char*> ayudas;

    int Orientaciones() const { return static_cast<int>(dimensiones.size()); }
    /// Every box inside the data frame: efficiency, orientations, name, price, calorific value.
    std::vector<CajaEconomica> Entradas() const;
};

const VentanaEconomica& DescripcionEconomica(TipoEconomico tipo);

/// The hint of a box of an economic window; the price's takes the fuel's word. Empty for an
/// index without one.
std::string AyudaEconomica(const VentanaEconomica& ventana, int indice, const std::string& palabra);

}  // namespace kelvora
