#pragma once

#include "core/reports/grilla.h"
#include "core/verificacion/verificacion.h"

#include <optional>
#include <string>

namespace kelvora {

class Prompter;

/// The characteristic length the verification starts with, in m.
inline constexpr double kLongitudPredeterminada = 1;

/// The model of the verification window: the data of one result, the characteristic length
/// the user types and the report grid of the last verification.
class ModeloVerificacion {
public:
    /// origen is the caption of the results window the data come from.
    ModeloVerificacion(DatosVerificacion datos, const std::string& origen, Prompter& prompter);

    /// Verifies with the typed length in m and rebuilds the report; a length that is not a
    /// positive number, or data the method refuses, get a message and leave the report as it
    /// was.
    bool Calcular(const std::string& longitud);

    const Grilla& Informe() const { return mInforme; }
    /// The last verification that stood; none before the first.
    const std::optional<Verificacion>& Resultado() const { return mResultado; }
    const std::string& Caption() const { return mCaption; }

private:
    void Avisar(const std::string& texto);

    DatosVerificacion mDatos;
    Prompter& mPrompter;
    std::string mCaption;
    std::optional<Verificacion> mResultado;
    Grilla mInforme;
};

}  // namespace kelvora
