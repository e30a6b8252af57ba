#pragma once

#include "core/app/contexto.h"

#include <QWidget>

namespace kelvora {

/// The page setup's sample `picVistaPrevia`: the sheet with its margins and mock text on a scale
/// of one unit a millimetre from −200 to 200 both ways; the pointer's position is its tool tip.
class MuestraPagina : public QWidget {
    Q_OBJECT

public:
    explicit MuestraPagina(QWidget* padre = nullptr);

    void Dibujar(const ConfiguracionPagina& pagina);
    QSize sizeHint() const override { return {260, 260}; }

protected:
    void paintEvent(QPaintEvent* evento) override;
    void mouseMoveEvent(QMouseEvent* evento) override;

private:
    double Escala() const;
    QPointF Centro() const;

    ConfiguracionPagina mPagina;
};

}  // namespace kelvora
