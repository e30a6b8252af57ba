#include "gui/materials/capturasmateriales.h"

#include "gui/materials/frmconsultarmateriales.h"
#include "gui/materials/frminsertarmaterial.h"
#include "gui/materials/ventanasmateriales.h"

#include <QApplication>

namespace kelvora {

std::function<QWidget*(QWidget&)> AbrirConsultaMaterialesCaptura() {
    return [](QWidget& marco) -> QWidget* {
        auto* materiales = marco.findChild<VentanasMateriales*>();
        materiales->ConsultarMateriales();
        return materiales->Ventana()->parentWidget();
    };
}

std::unique_ptr<QWidget> InsertarMaterialCaptura(ContextoAplicacion& contexto, Prompter& prompter) {
    DerivarRutas(contexto, QApplication::applicationDirPath().toStdString());
    auto ventana = std::make_unique<frmInsertarMaterial>(EntornoInsertar{prompter, contexto});
    ventana->Modelo().Borrar();
    ventana->Modelo().SetTexto(2, "Chaqueta de aluminio gofrado");
    ventana->Modelo().SetTexto(3, "0.12");
    ventana->Modelo().SetTexto(4, "150");
    ventana->Refrescar();
    return ventana;
}

}  // namespace kelvora
