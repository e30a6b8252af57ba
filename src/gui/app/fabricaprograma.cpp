#include "gui/app/fabricaprograma.h"

#include "gui/platform/texto.h"

#include <QPrinterInfo>

namespace kelvora {

FabricaVentanas CrearFabrica(mdiKelvora&, ContextoAplicacion&, SettingsStore&, Prompter&) {
    FabricaVentanas fabrica;
    fabrica.NombreImpresora = [] { return S(QPrinterInfo::defaultPrinterName()); };
    return fabrica;
}

}  // namespace kelvora
