#include "core/thermal/argumentosfrio.h"

namespace kelvora {

namespace {

constexpr int kUnidadTS = 2;
constexpr int kUnidadTBH = 4;
constexpr int kUnidadTPR = 5;

}  // namespace

void GuardarValoresFrio(ModeloResultados& ventana, const ArgumentosFrio& a) {
    ValoresPublicos& valores = ventana.Valores();
    valores.Establecer("MaterialSA", a.NombreMaterialAislamiento);
    const std::string& unidadTS = UnidadVisual(a.unidades, kUnidadTS);
    valores.Establecer("TS", ventana.DesdeFahrenheit(a.TemperaturaSuperficie, unidadTS));
    valores.Establecer("unitTS", unidadTS);
    const std::string& unidadTBH = UnidadVisual(a.unidades, kUnidadTBH);
    valores.Establecer("TBH", ventana.DesdeFahrenheit(a.TemperaturaBulboHumedo, unidadTBH));
    valores.Establecer("unitTBH", unidadTBH);
    const std::string& unidadTPR = UnidadVisual(a.unidades, kUnidadTPR);
    valores.Establecer("TPR", ventana.DesdeFahrenheit(a.TemperaturaPuntoRocio, unidadTPR));
    valores.Establecer("unitTPR", unidadTPR);
    valores.Establecer("HR", a.HumedadRelativa);
    valores.Establecer("hayTBH", a.hayTBH);
    valores.Establecer("hayHR", a.hayHR);
}

}  // namespace kelvora
