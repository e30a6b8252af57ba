#include "gui/datafile/archivosventanas.h"

#include "core/datafile/guardarventana.h"
#include "core/datafile/leerarchivo.h"
#include "core/entry/descripcionentrada.h"
#include "core/materials/fuentetubosbd.h"
#include "gui/app/mdikelvora.h"
#include "gui/datafile/qtdialogosarchivo.h"
#include "gui/entry/frmdatosentrada.h"
#include "gui/materials/ventanasmateriales.h"
#include "gui/platform/texto.h"

namespace kelvora {

ArchivosVentanas::ArchivosVentanas(mdiKelvora& principal, ContextoAplicacion& contexto,
                                   SettingsStore& ajustes, Prompter& prompter)
    : ArchivosVentanas(principal, contexto, ajustes, prompter,
                       std::make_unique<QtDialogosArchivo>(&principal),
                       std::make_unique<FuenteTubosBD>(contexto.CadenaConexion)) {
}

ArchivosVentanas::ArchivosVentanas(mdiKelvora& principal, ContextoAplicacion& contexto,
                                   SettingsStore& ajustes, Prompter& prompter,
                                   std::unique_ptr<DialogosArchivo> dialogos,
                                   std::unique_ptr<FuenteTubos> tubos)
    : QObject(&principal),
      mPrincipal(principal),
      mDialogos(std::move(dialogos)),
      mTubos(std::move(tubos)),
      mEntorno{contexto,
               prompter,
               *mTubos,
               [this](QWidget* ventana) { mPrincipal.AgregarHija(ventana); },
               [this] { return Captions(); },
               [this](QWidget* ventana) { return PreguntarGuardar(ventana); }},
      mArchivos{contexto, prompter, ajustes, [this](const std::string& archivo) {
                    mPrincipal.AgregarArchivoReciente(archivo);
                }} {
    mEntorno.ConsultarMateriales = AbrirConsultaMateriales;
}

ArchivosVentanas::~ArchivosVentanas() = default;

QWidget* ArchivosVentanas::NuevaVentanaDatos(int16_t tipo) {
    const DescripcionEntrada* descripcion = DescripcionParaProducto(tipo);
    if (descripcion == nullptr) {
        return nullptr;
    }
    auto* ventana = new frmDatosEntrada(*descripcion, mEntorno);
    ventana->Modelo().SetCaption(CaptionNumerado(descripcion->caption, mEntorno));
    ventana->PonerProducto(tipo);
    mPrincipal.AgregarHija(ventana);
    return ventana;
}

bool ArchivosVentanas::LeerArchivo(const std::string& archivo) {
    const CrearVentanaDatos crear = [this](VentanaEntrada, int16_t Tipo) -> VentanaArchivo* {
        return qobject_cast<frmDatosEntrada*>(NuevaVentanaDatos(Tipo));
    };
    return kelvora::LeerArchivo(archivo, mArchivos, crear);
}

bool ArchivosVentanas::GuardarVentana(QWidget* ventana, bool comoNuevo) {
    auto* archivo = dynamic_cast<VentanaArchivo*>(ventana);
    return archivo != nullptr &&
           kelvora::GuardarVentana(*archivo, comoNuevo, mArchivos, *mDialogos);
}

bool ArchivosVentanas::PreguntarGuardar(QWidget* ventana) {
    auto* archivo = dynamic_cast<VentanaArchivo*>(ventana);
    return archivo == nullptr || kelvora::PreguntarGuardar(*archivo, mArchivos, *mDialogos);
}

// A closed window waits hidden for its deletion; it holds its number no longer.
std::vector<std::string> ArchivosVentanas::Captions() const {
    std::vector<std::string> captions;
    for (const QWidget* ventana : mPrincipal.VentanasHijas()) {
        const QWidget* marco = ventana->parentWidget();
        if (marco == nullptr || !marco->isHidden()) {
            captions.push_back(S(ventana->windowTitle()));
        }
    }
    return captions;
}

}  // namespace kelvora
