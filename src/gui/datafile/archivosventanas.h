#pragma once

#include "core/datafile/dialogosarchivo.h"
#include "core/datafile/entornoarchivos.h"
#include "core/materials/tubos.h"
#include "gui/entry/entornoventanas.h"

#include <QObject>

#include <memory>

namespace kelvora {

class mdiKelvora;

/// The windows of a calculation for the frame's commands: a new data entry window for a
/// product, a data file read into one, the saving of any window that has something to save,
/// and the question before a changed window closes. It lives as long as the frame.
class ArchivosVentanas : public QObject {
    Q_OBJECT

public:
    /// With the Open and Save dialogs and the pipe rows of the program.
    ArchivosVentanas(mdiKelvora& principal, ContextoAplicacion& contexto, SettingsStore& ajustes,
                     Prompter& prompter);
    ArchivosVentanas(mdiKelvora& principal, ContextoAplicacion& contexto, SettingsStore& ajustes,
                     Prompter& prompter, std::unique_ptr<DialogosArchivo> dialogos,
                     std::unique_ptr<FuenteTubos> tubos);
    ~ArchivosVentanas() override;

    /// The data entry window of a product code, numbered and shown; nullptr for another code.
    QWidget* NuevaVentanaDatos(int16_t tipo);
    bool LeerArchivo(const std::string& archivo);
    bool GuardarVentana(QWidget* ventana, bool comoNuevo);
    bool PreguntarGuardar(QWidget* ventana);

private:
    std::vector<std::string> Captions() const;

    mdiKelvora& mPrincipal;
    std::unique_ptr<DialogosArchivo> mDialogos;
    std::unique_ptr<FuenteTubos> mTubos;
    EntornoVentanas mEntorno;
    EntornoArchivos mArchivos;
};

}  // namespace kelvora
