#include "gui/datafile/qtdialogosarchivo.h"

#include "gui/platform/texto.h"

#include <QFileDialog>

namespace kelvora {

namespace {

std::optional<std::string> Mostrar(QFileDialog& dialogo, const OpcionesDialogo& opciones) {
    dialogo.setNameFilter(FiltroQt(opciones.filtro));
    dialogo.setDefaultSuffix(Q(opciones.extension));
    dialogo.setDirectory(Q(opciones.carpetaInicial));
    if (dialogo.exec() != QDialog::Accepted || dialogo.selectedFiles().isEmpty()) {
        return std::nullopt;
    }
    return S(dialogo.selectedFiles().front());
}

}  // namespace

QtDialogosArchivo::QtDialogosArchivo(QWidget* padre) : mPadre(padre) {
}

std::optional<std::string> QtDialogosArchivo::Abrir(const OpcionesDialogo& opciones) {
    QFileDialog dialogo(mPadre, QStringLiteral("Abrir"));
    dialogo.setAcceptMode(QFileDialog::AcceptOpen);
    dialogo.setFileMode(QFileDialog::ExistingFile);
    dialogo.setOption(QFileDialog::ReadOnly, false);
    return Mostrar(dialogo, opciones);
}

std::optional<std::string> QtDialogosArchivo::Guardar(const OpcionesDialogo& opciones) {
    QFileDialog dialogo(mPadre, QStringLiteral("Guardar como"));
    dialogo.setAcceptMode(QFileDialog::AcceptSave);
    dialogo.setFileMode(QFileDialog::AnyFile);
    return Mostrar(dialogo, opciones);
}

QString FiltroQt(const std::string& filtro) {
    const QStringList partes = Q(filtro).split(QLatin1Char('|'));
    QStringList descripciones;
    for (qsizetype i = 0; i < partes.size(); i += 2) {
        descripciones << partes[i];
    }
    return descripciones.join(QStringLiteral(";;"));
}

}  // namespace kelvora
