#include "gui/economics/capturaseconomico.h"

#include "gui/app/mdikelvora.h"
#include "gui/datafile/capturasejemplos.h"
#include "gui/economics/frmanalisiseconomico.h"

#include <QPushButton>

namespace kelvora {

namespace {

constexpr int kFuelOil = 3;
constexpr int kHoras7008 = 6;
constexpr int kDolares = 1;

// Areas of a small boiler in pie², fuel oil at 2.35 dollars a gallon, 80 % efficiency.
void Llenar(frmAnalisisEconomico& ventana) {
    ModeloEconomico& m = ventana.Modelo();
    const VentanaEconomica& v = m.Ventana();
    const char* dimensiones[] = {"120", "340", "85"};
    for (size_t o = 0; o < v.dimensiones.size(); ++o) {
        m.SetText(v.dimensiones[o].indice, dimensiones[o]);
    }
    m.SeleccionarHoras(kHoras7008);
    m.SeleccionarCombustible(kFuelOil);
    m.SeleccionarUnidad(v.valor.indice, kDolares);
    m.SetText(v.valor.indice, "2.35");
    m.SetText(v.eficiencia.indice, "80");
    ventana.Refrescar();
}

}  // namespace

std::function<QWidget*(QWidget&)> AnalisisEconomicoEjemplo(const char* archivo) {
    return [archivo](QWidget& ventana) -> QWidget* {
        auto& marco = static_cast<mdiKelvora&>(ventana);
        QWidget* mostrada = AbrirEjemplo(archivo, true)(ventana);
        QPushButton* boton = nullptr;
        for (const QWidget* hija : marco.VentanasHijas()) {
            if (auto* b = hija->findChild<QPushButton*>(QStringLiteral("cmdAnalisisEconomico"))) {
                boton = b;
            }
        }
        if (boton == nullptr) {
            return mostrada;
        }
        boton->click();
        auto* economico = qobject_cast<frmAnalisisEconomico*>(marco.VentanaActiva());
        if (economico == nullptr) {
            return mostrada;
        }
        Llenar(*economico);
        economico->findChild<QPushButton*>(QStringLiteral("cmdAceptar"))->click();
        return economico->parentWidget();
    };
}

}  // namespace kelvora
