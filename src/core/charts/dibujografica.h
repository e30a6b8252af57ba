#pragma once

#include "core/charts/serie.h"

#include <string>

namespace kelvora {

class Surface;

/// The user scale of the picture: plot units from (ScaleLeft, ScaleTop) over ScaleWidth and
/// ScaleHeight (negative: values grow upward), on a picture of ancho × alto surface units.
struct EscalaGrafica {
    double ScaleLeft = 0;
    double ScaleTop = 0;
    double ScaleWidth = 0;
    double ScaleHeight = 0;
    double ancho = 0;
    double alto = 0;

    /// X from Xlow − mX over 2·mX + Xhigh; Y from Yhigh + mY down to Ylow − mY.
    static EscalaGrafica De(const EjesGrafica& ejes, double ancho, double alto);

    /// A scale of no width or height cannot be drawn on.
    bool Valida() const;
    double XSuperficie(double x) const;
    double YSuperficie(double y) const;
    double XGrafica(double xSuperficie) const;
    double YGrafica(double ySuperficie) const;
};

/// The words of a chart.
struct TextosGrafica {
    std::string titulo;
    std::string etiquetaX;
    /// "TS" or "Qv", over the value axis.
    std::string letrasY;
};

/// Draws a computed series on a picture: the curve with its end rule, the frame, five numbers
/// on each axis, the title, the X label and the letters of the Y axis. Nothing is drawn on a
/// scale that is not valid.
void DibujarGrafica(Surface& superficie, const EscalaGrafica& escala, const SerieGrafica& serie,
                    const EjesGrafica& ejes, int16_t tipoGrafica, const TextosGrafica& textos);

}  // namespace kelvora
