#include "gui/materials/llamadorventana.h"

#include "gui/platform/texto.h"

#include <QLineEdit>

namespace kelvora {

void LlamadorVentana::PonerTexto(int caja, const std::string& texto) {
    if (mVentana == nullptr) {
        return;
    }
    auto* destino = mVentana->findChild<QLineEdit*>(QStringLiteral("txtValor_%1").arg(caja));
    if (destino == nullptr) {
        return;
    }
    // insert() over the whole text is an edit: the box tells it with textEdited.
    destino->selectAll();
    destino->insert(Q(texto));
}

}  // namespace kelvora
