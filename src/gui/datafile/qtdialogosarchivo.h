#pragma once

#include "core/datafile/dialogosarchivo.h"

#include <QString>

class QWidget;

namespace kelvora {

/// The Open and Save dialogs as QFileDialog.
class QtDialogosArchivo : public DialogosArchivo {
public:
    explicit QtDialogosArchivo(QWidget* padre = nullptr);

    std::optional<std::string> Abrir(const OpcionesDialogo& opciones) override;
    std::optional<std::string> Guardar(const OpcionesDialogo& opciones) override;

private:
    QWidget* mPadre;
};

/// A filter of pairs "description|pattern|..." as the file dialog takes it: the descriptions,
/// each naming its pattern, separated by ";;".
QString FiltroQt(const std::string& filtro);

}  // namespace kelvora
