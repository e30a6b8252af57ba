#include "gui/economics/analisiseconomico.h"

#include "core/economics/traspasoresultados.h"
#include "core/thermal/productos.h"
#include "gui/app/relojsistema.h"
#include "gui/economics/frmanalisiseconomico.h"
#include "gui/entry/entornoventanas.h"
#include "gui/platform/texto.h"
#include "gui/thermal/frmresultados.h"

#include <QPushButton>

namespace kelvora {

namespace {

// The design caption, the product of the results and the lowest free number among its sisters.
std::string CaptionEconomico(const frmAnalisisEconomico& ventana, int32_t tipoAnalisis,
                             const EntornoVentanas& entorno) {
    const std::string base = std::string(ventana.Modelo().Ventana().caption) + " - " +
                             NombreProducto(tipoAnalisis, false);
    return CaptionNumerado(base, entorno);
}

void AbrirAnalisisEconomico(const frmResultados& resultados, const EntornoVentanas& entorno) {
    const std::optional<TipoEconomico> tipo = AnalisisEconomicoDe(resultados.Modelo());
    if (!tipo) {
        return;
    }
    const ValoresAnalisis valores = ValoresParaAnalisis(resultados.Modelo());
    auto* ventana = new frmAnalisisEconomico(*tipo, entorno.contexto, entorno.prompter,
                                             std::make_unique<RelojSistema>());
    ventana->setVariables(valores);
    ventana->setWindowTitle(Q(CaptionEconomico(*ventana, valores.TipoAnalisis, entorno)));
    entorno.AgregarHija(ventana);
}

}  // namespace

void ConectarAnalisisEconomico(frmResultados& resultados, const EntornoVentanas& entorno) {
    auto* boton = resultados.findChild<QPushButton*>(QStringLiteral("cmdAnalisisEconomico"));
    if (boton == nullptr || !AnalisisEconomicoDe(resultados.Modelo())) {
        return;
    }
    boton->setEnabled(true);
    QObject::connect(boton, &QPushButton::clicked, &resultados,
                     [&resultados, entorno] { AbrirAnalisisEconomico(resultados, entorno); });
}

}  // namespace kelvora
