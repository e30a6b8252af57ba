#pragma once

#include "core/economics/ahorro.h"
#include "core/thermal/productos.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace kelvora {

class EventPump;
class FuenteTubos;
class ModeloEconomico;
class ModeloEntrada;

/// What the calculation of one position gave, as the results window shows it (texts of its
/// grid) and as numbers for ordering.
struct PosicionComparada {
    std::string k;
    std::string ideal;
    std::string practico;
    std::string perdida;
    std::string eficiencia;
    double espesorPractico = 0;
    double perdidaPractica = 0;
};

enum class EstadoProducto { Calculado, FueraDeServicio, Fallido };

/// One product of the family for the duty.
struct ProductoComparado {
    int16_t codigo = 0;
    std::string nombre;
    /// Service limit, °F.
    double limite = 0;
    EstadoProducto estado = EstadoProducto::Calculado;
    /// The routine's message when it failed.
    std::string mensaje;
    std::vector<PosicionComparada> posiciones;
    /// The yearly saving, when economic data were given.
    std::optional<Ahorro> ahorro;

    /// The thickest practical position, and the sum of the practical losses.
    double Espesor() const;
    double Perdida() const;
};

/// Every product of a hot analysis for one duty, calculated products first, by practical
/// thickness and then by loss.
struct Comparacion {
    Analisis analisis = Analisis::SP;
    std::vector<ProductoComparado> productos;

    /// True when no product can serve the interior temperature.
    bool TodosFueraDeServicio() const;
};

/// The products of a hot entry window's family, each calculated by the window's routine with
/// the window's data as they stand, as "C&alcular" would; none needs a window of its own.
/// `economia`, when given and its checks pass, adds the yearly saving of each product.
Comparacion CompararProductos(const ModeloEntrada& ventana, FuenteTubos& tubos, EventPump& bomba,
                              const ModeloEconomico* economia = nullptr);

/// True for the windows whose products can be compared: flat and pipe, hot.
bool PuedeCompararse(Analisis analisis);

}  // namespace kelvora
