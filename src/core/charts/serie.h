#pragma once

#include <cstdint>
#include <vector>

namespace kelvora {

/// The two charts: surface temperature, and heat loss, against the practical thickness.
inline constexpr int16_t kGraficaTemperatura = 1;
inline constexpr int16_t kGraficaCalor = 2;

/// The points of a chart, 0 to N: thickness (plg) and the chart's value.
struct SerieGrafica {
    std::vector<double> X;
    std::vector<double> Y;
    int32_t N = -1;

    bool Vacia() const { return X.empty(); }
};

/// The plotted range and its margins.
struct EjesGrafica {
    double Xlow = 0;
    double Xhigh = 0;
    double Ylow = 0;
    double Yhigh = 0;
    double mX = 0;
    double mY = 0;
};

/// One row of the data table: the mean value of a run of equal thicknesses, and the thickness.
struct FilaTablaGrafica {
    double y;
    double x;
};

/// Last index of a sweep from TA to TI in steps of 1 °F: integer part of (TI − TA) + 1; error 6
/// beyond the 32-bit range.
int32_t UltimoPunto(double TI, double TA);

/// Xlow at the last point, Xhigh about two percent in from the start (1 when that is 0), the
/// least and greatest value, and margins of a tenth of each range.
EjesGrafica CalcularEjes(const SerieGrafica& serie);

/// A point that ends the curve and the table: thickness 0 in the temperature chart, the
/// greatest value in the heat chart.
bool FinDeCurva(const SerieGrafica& serie, const EjesGrafica& ejes, int16_t tipoGrafica, int i);

/// From point 1, one row per run of consecutive points of equal thickness, up to the run that
/// holds a point that ends the curve.
std::vector<FilaTablaGrafica> TablaSerie(const SerieGrafica& serie, const EjesGrafica& ejes,
                                         int16_t tipoGrafica);

}  // namespace kelvora
