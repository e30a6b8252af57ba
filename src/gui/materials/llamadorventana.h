#pragma once

#include "core/materials/modeloconsultamateriales.h"

#include <QPointer>
#include <QWidget>

namespace kelvora {

/// A data entry window as the caller of the material list. The chosen code goes into its
/// box `txtValor_<caja>` as an edit of the box, so the window takes it as a typed change and
/// looks the material up.
class LlamadorVentana : public LlamadorConsulta {
public:
    void SetVentana(QWidget* ventana) { mVentana = ventana; }
    QWidget* Ventana() const { return mVentana; }

    void PonerTexto(int caja, const std::string& texto) override;

private:
    QPointer<QWidget> mVentana;
};

}  // namespace kelvora
