#include "core/thermal/productos.h"

#include "core/runtime/aritmetica.h"

#include <array>

namespace kelvora {

namespace {

// clang-format off
constexpr std::array<Producto, kUltimoProducto> kCatalogo = {{
    {"Velmar de 80 kg/m³",     Analisis::SP,     1400, 0.217,   0.0019},
    {"Velmar de 100 kg/m³",    Analisis::SP,     1400, 0.2199,  0.0017},
    {"Velmar de 140 kg/m³",    Analisis::SP,     1400, 0.234,   0.0015},
    {"Dorlin",                 Analisis::SP,      650, 0.21,    0.0022},
    {"Kandor",                 Analisis::SP,      650, 0.234,   0.0022},
    {"Sarvel",                 Analisis::SP,      850, 0.21,    0.0022},
    {"Lorvan",                 Analisis::SP,      850, 0.212,   0.002},
    {"Nivara",                 Analisis::SC,     1400, 0.234,   0.0015},
    {"Dorlin",                 Analisis::SC,      650, 0.21,    0.0022},
    {"Kandor",                 Analisis::SC,      650, 0.234,   0.0022},
    {"Sarvel",                 Analisis::SC,      850, 0.21,    0.0022},
    {"Orbelas",                Analisis::SC,      850, 0.2219,  0.0018},
    {"Tavelas de Poliuretano", Analisis::SPFrio,  850, 0.20304, 0.00214},
    {"Orbelas de Poliuretano", Analisis::SCFrio,  850, 0.20304, 0.00209},
}};
// clang-format on

const char* SufijoAnalisis(Analisis analisis) {
    switch (analisis) {
        case Analisis::SP:
            return " (Superficies Planas - Calor)";
        case Analisis::SC:
            return " (Superficies Cilíndricas - Calor)";
        case Analisis::SPFrio:
            return " (Superficies Planas - Frío)";
        case Analisis::SCFrio:
            return " (Superficies Cilíndricas - Frío)";
    }
    return "";
}

}  // namespace

const Producto* BuscarProducto(int codigo) {
    if (codigo < kPrimerProducto || codigo > kUltimoProducto) {
        return nullptr;
    }
    return &kCatalogo[static_cast<size_t>(codigo - kPrimerProducto)];
}

std::string NombreProducto(int codigo, bool conAnalisis) {
    const Producto* producto = BuscarProducto(codigo);
    if (producto == nullptr) {
        return "";
    }
    std::string nombre = producto->nombre;
    return conAnalisis ? nombre + SufijoAnalisis(producto->analisis) : nombre;
}

double TemperaturaMaximaProducto(int codigo) {
    const Producto* producto = BuscarProducto(codigo);
    return producto == nullptr ? 0 : producto->limite;
}

double ConductividadTermica(int codigo, double Tm) {
    const Producto* producto = BuscarProducto(codigo);
    const double a = producto == nullptr ? 0 : producto->a;
    const double b = producto == nullptr ? 0 : producto->b;
    return Comprobar(a * Exp(Comprobar(b * Tm)));
}

}  // namespace kelvora
