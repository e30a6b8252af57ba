#pragma once

#include <string>
#include <vector>

namespace kelvora {

/// One unit of the catalogue.
struct UnidadCatalogo {
    const char* simbolo;
    /// Plain spelling accepted as input but never offered; empty when there is none.
    const char* segundaGrafia;
    const char* nombre;
    /// The symbol as the existence lists hold it, without and with a family; empty when it is
    /// the symbol itself.
    const char* enListaGeneral;
    const char* enListaFamilia;
};

/// A family and its units in the order it offers them.
struct FamiliaCatalogo {
    const char* nombre;
    std::vector<UnidadCatalogo> unidades;
};

/// Every family, in catalogue order.
const std::vector<FamiliaCatalogo>& CatalogoUnidades();

/// The family of that name, without regard to case; nullptr when there is none.
const FamiliaCatalogo* BuscarFamilia(const std::string& nombre);

/// Where a unit stands in the catalogue: its family and 0-based place.
struct UbicacionUnidad {
    const FamiliaCatalogo* familia = nullptr;
    int indice = -1;

    const UnidadCatalogo& Unidad() const { return familia->unidades[indice]; }
};

/// The unit written with either spelling, without regard to case; no family when unknown.
UbicacionUnidad BuscarUnidad(const std::string& simbolo);

}  // namespace kelvora
