#pragma once

#include "core/materials/tubos.h"

#include <string>

namespace kelvora {

/// Pipe rows read from table Tubos, one connection per lookup.
class FuenteTubosBD : public FuenteTubos {
public:
    explicit FuenteTubosBD(std::string cadenaConexion);

    std::optional<FilaTubos> BuscarTubo(double nominal) override;

private:
    std::string mCadenaConexion;
};

}  // namespace kelvora
