#include "gui/capturas/capturas.h"

#include "gui/airehumedo/capturasairehumedo.h"
#include "gui/app/fabricaprograma.h"
#include "gui/app/frmaboutbox.h"
#include "gui/app/frmsplash.h"
#include "gui/app/mdikelvora.h"
#include "gui/charts/capturasgraficas.h"
#include "gui/datafile/capturasejemplos.h"
#include "gui/economics/capturaseconomico.h"
#include "gui/materials/capturasmateriales.h"
#include "gui/reports/capturasimpresion.h"

#include <QMenu>
#include <QMenuBar>

namespace kelvora {

namespace {

std::unique_ptr<QWidget> Principal(EntornoCaptura& e) {
    auto ventana = std::make_unique<mdiKelvora>(e.contexto, e.ajustes, e.reloj);
    ventana->PonerFabrica(CrearFabrica(*ventana, e.contexto, e.ajustes, *e.prompter));
    ventana->resize(900, 600);
    return ventana;
}

// Opens a menu of the main window's bar under its title.
std::function<QWidget*(QWidget&)> AbrirMenu(const char* nombre) {
    return [nombre](QWidget& ventana) -> QWidget* {
        auto* menu = ventana.findChild<QMenu*>(QString::fromLatin1(nombre));
        auto* barra = ventana.findChild<QMenuBar*>();
        const QRect titulo = barra->actionGeometry(menu->menuAction());
        menu->popup(barra->mapToGlobal(titulo.bottomLeft()));
        return menu;
    };
}

}  // namespace

const std::vector<Captura>& Capturas() {
    // clang-format off
    static const std::vector<Captura> capturas = {
        {"mdikelvora",         Principal, {}},
        {"mdikelvora-archivo", Principal, AbrirMenu("mnuArchivo")},
        {"frmsplash",  [](EntornoCaptura& e) { return std::make_unique<frmSplash>(e.contexto); }, {}},
        {"frmaboutbox", [](EntornoCaptura&) { return std::make_unique<frmAboutBox>(); }, {}},
        {"frmdatosentradasuperficiesplanas",         MarcoCapturas<EntornoCaptura>, AbrirEjemplo("data/ejemplos/velmar80.adk", false)},
        {"frmdatosentradasuperficiescilindricas",    MarcoCapturas<EntornoCaptura>, AbrirEjemplo("data/ejemplos/nivara.adk", false)},
        {"frmdatosentradasuperficiesplanasfrio",     MarcoCapturas<EntornoCaptura>, AbrirEjemplo("data/ejemplos/tavelas-poliuretano.adk", false)},
        {"frmdatosentradasuperficiescilindricasfrio", MarcoCapturas<EntornoCaptura>, AbrirEjemplo("data/ejemplos/orbelas-poliuretano.adk", false)},
        {"frmresultadossuperficiesplanas",           MarcoCapturas<EntornoCaptura>, AbrirEjemplo("data/ejemplos/velmar80.adk", true)},
        {"frmresultadossuperficiescilindricas",      MarcoCapturas<EntornoCaptura>, AbrirEjemplo("data/ejemplos/nivara.adk", true)},
        {"frmresultadossuperficiesplanasfrio",       MarcoCapturas<EntornoCaptura>, AbrirEjemplo("data/ejemplos/tavelas-poliuretano.adk", true)},
        {"frmresultadossuperficiescilindricasfrio",  MarcoCapturas<EntornoCaptura>, AbrirEjemplo("data/ejemplos/orbelas-poliuretano.adk", true)},
        {"frmanalisiseconomicosuperficiesplanas",    MarcoCapturas<EntornoCaptura>, AnalisisEconomicoEjemplo("data/ejemplos/velmar80.adk")},
        {"frmgraficas-grafica",                      MarcoCapturas<EntornoCaptura>, GraficaEjemplo("data/ejemplos/velmar80.adk", 1, 0)},
        {"frmgraficas-tabla",                        MarcoCapturas<EntornoCaptura>, GraficaEjemplo("data/ejemplos/velmar80.adk", 1, 1)},
        {"frmconsultarmateriales",                   MarcoCapturas<EntornoCaptura>, AbrirConsultaMaterialesCaptura()},
        {"frminsertarmaterial",                      InsertarMaterialCaptura<EntornoCaptura>, {}},
        {"frmairehumedo",                            MarcoCapturas<EntornoCaptura>, AireHumedoCaptura()},
        {"frmvistapreliminar",                       MarcoCapturas<EntornoCaptura>, VistaPreliminarEjemplo(AbrirEjemplo("data/ejemplos/velmar80.adk", true))},
        {"frmconfigurarpagina", [](EntornoCaptura& e) { return ConfigurarPaginaCaptura(e.contexto, e.ajustes); }, {}},
        // Printed pages: the picture is replaced by the first page of the PDF written beside it.
        {"impreso-resultados-planas",            MarcoCapturas<EntornoCaptura>, ImpresoEjemplo("impreso-resultados-planas", AbrirEjemplo("data/ejemplos/velmar80.adk", true))},
        {"impreso-resultados-cilindricas",       MarcoCapturas<EntornoCaptura>, ImpresoEjemplo("impreso-resultados-cilindricas", AbrirEjemplo("data/ejemplos/nivara.adk", true))},
        {"impreso-resultados-planas-frio",       MarcoCapturas<EntornoCaptura>, ImpresoEjemplo("impreso-resultados-planas-frio", AbrirEjemplo("data/ejemplos/tavelas-poliuretano.adk", true))},
        {"impreso-resultados-cilindricas-frio",  MarcoCapturas<EntornoCaptura>, ImpresoEjemplo("impreso-resultados-cilindricas-frio", AbrirEjemplo("data/ejemplos/orbelas-poliuretano.adk", true))},
        {"impreso-grafica",                      MarcoCapturas<EntornoCaptura>, ImpresoEjemplo("impreso-grafica", GraficaEjemplo("data/ejemplos/velmar80.adk", 1, 0))},
    };
    // clang-format on
    return capturas;
}

}  // namespace kelvora
