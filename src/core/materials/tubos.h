#pragma once

#include "core/runtime/runtimeerror.h"

#include <optional>
#include <string>

namespace kelvora {

/// One row of table `Tubos`: real diameters of a nominal pipe size and the outer diameters of
/// the insulation sections of 1 to 4 plg.
struct FilaTubos {
    double Nominal = 0;
    double Real = 0;
    double Interior = 0;
    double Una = 0;
    double UnaMedia = 0;
    double Dos = 0;
    double DosMedia = 0;
    double Tres = 0;
    double TresMedia = 0;
    double Cuatro = 0;
};

/// Where the pipe calculations read pipe rows: the database, or a table in memory in tests.
class FuenteTubos {
public:
    virtual ~FuenteTubos() = default;

    /// The row of a nominal diameter in plg, nullopt when there is none; a failure of the
    /// source raises its RuntimeError.
    virtual std::optional<FilaTubos> BuscarTubo(double nominal) = 0;
};

inline constexpr int kErrorTuboNoEncontrado = 1005;

/// The nominal diameter as the text of the key column (default text through NormalizarDecimal).
std::string TextoNominal(double nominal);

/// Error 1005 "No se encontró un diámetro de <nominal> plg en la Base de Datos.".
RuntimeError ErrorTuboNoEncontrado(double nominal);

}  // namespace kelvora
