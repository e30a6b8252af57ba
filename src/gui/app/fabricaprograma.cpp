#include "gui/app/fabricaprograma.h"

#include "gui/airehumedo/aperturaairehumedo.h"
#include "gui/app/mdikelvora.h"
#include "gui/charts/aperturagraficas.h"
#include "gui/datafile/archivosventanas.h"
#include "gui/materials/ventanasmateriales.h"
#include "gui/platform/texto.h"
#include "gui/reports/impresionventanas.h"

#include <QTimer>

#include <functional>
#include <memory>

namespace kelvora {

namespace {

// The printer system takes milliseconds to load: the frame first shows, then, a moment later,
// asks for the printer's name and brings its commands into line.
std::function<std::string()> NombreImpresoraTrasArrancar(mdiKelvora& principal) {
    constexpr int kEsperaMs = 250;
    auto arrancado = std::make_shared<bool>(false);
    QTimer::singleShot(kEsperaMs, &principal, [&principal, arrancado] {
        *arrancado = true;
        principal.Actualizar();
    });
    return [arrancado] { return *arrancado ? ImpresionVentanas::NombreImpresora() : ""; };
}

}  // namespace

FabricaVentanas CrearFabrica(mdiKelvora& principal, ContextoAplicacion& contexto,
                             SettingsStore& ajustes, Prompter& prompter) {
    FabricaVentanas fabrica;
    auto* calculo = new ArchivosVentanas(principal, contexto, ajustes, prompter);
    fabrica.NuevaVentanaDatos = std::bind_front(&ArchivosVentanas::NuevaVentanaDatos, calculo);
    fabrica.LeerArchivo = std::bind_front(&ArchivosVentanas::LeerArchivo, calculo);
    fabrica.GuardarVentana = std::bind_front(&ArchivosVentanas::GuardarVentana, calculo);
    fabrica.PreguntarGuardar = std::bind_front(&ArchivosVentanas::PreguntarGuardar, calculo);
    fabrica.NombreImpresora = NombreImpresoraTrasArrancar(principal);
    auto* impresion = new ImpresionVentanas(principal, contexto, ajustes, prompter);
    fabrica.VistaPreliminar = std::bind_front(&ImpresionVentanas::VistaPreliminar, impresion);
    fabrica.Imprimir = std::bind_front(&ImpresionVentanas::Imprimir, impresion);
    fabrica.ExportarPdf = std::bind_front(&ImpresionVentanas::ExportarPdf, impresion);
    fabrica.ConfigurarPagina = std::bind_front(&ImpresionVentanas::ConfigurarPagina, impresion);
    auto* materiales = new VentanasMateriales(principal, contexto, prompter);
    fabrica.InsertarMaterial = std::bind_front(&VentanasMateriales::InsertarMaterial, materiales);
    fabrica.ConsultarMateriales =
            std::bind_front(&VentanasMateriales::ConsultarMateriales, materiales);
    auto* graficas = new AperturaGraficas(principal, contexto, prompter);
    fabrica.Graficar = std::bind_front(&AperturaGraficas::Graficar, graficas);
    auto* aire = new AperturaAireHumedo(principal, contexto, prompter);
    fabrica.AireHumedo = std::bind_front(&AperturaAireHumedo::AireHumedo, aire);
    return fabrica;
}

}  // namespace kelvora
