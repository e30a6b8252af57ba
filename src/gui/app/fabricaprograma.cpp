#include "gui/app/fabricaprograma.h"

#include "gui/datafile/archivosventanas.h"
#include "gui/materials/ventanasmateriales.h"
#include "gui/platform/texto.h"

#include <QPrinterInfo>

#include <functional>

namespace kelvora {

FabricaVentanas CrearFabrica(mdiKelvora& principal, ContextoAplicacion& contexto,
                             SettingsStore& ajustes, Prompter& prompter) {
    FabricaVentanas fabrica;
    auto* calculo = new ArchivosVentanas(principal, contexto, ajustes, prompter);
    fabrica.NuevaVentanaDatos = std::bind_front(&ArchivosVentanas::NuevaVentanaDatos, calculo);
    fabrica.LeerArchivo = std::bind_front(&ArchivosVentanas::LeerArchivo, calculo);
    fabrica.GuardarVentana = std::bind_front(&ArchivosVentanas::GuardarVentana, calculo);
    fabrica.PreguntarGuardar = std::bind_front(&ArchivosVentanas::PreguntarGuardar, calculo);
    fabrica.NombreImpresora = [] { return S(QPrinterInfo::defaultPrinterName()); };
    auto* materiales = new VentanasMateriales(principal, contexto, prompter);
    fabrica.InsertarMaterial = std::bind_front(&VentanasMateriales::InsertarMaterial, materiales);
    fabrica.ConsultarMateriales =
            std::bind_front(&VentanasMateriales::ConsultarMateriales, materiales);
    return fabrica;
}

}  // namespace kelvora
