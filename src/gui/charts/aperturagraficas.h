#pragma once

#include <QObject>

#include <memory>

class QWidget;

namespace kelvora {

class FuenteTubos;
class Prompter;
class mdiKelvora;
struct ContextoAplicacion;

/// The charts of the frame's Graficar menu. It lives as long as the frame.
class AperturaGraficas : public QObject {
    Q_OBJECT

public:
    /// With the pipe rows of the program's database.
    AperturaGraficas(mdiKelvora& principal, ContextoAplicacion& contexto, Prompter& prompter);
    AperturaGraficas(mdiKelvora& principal, ContextoAplicacion& contexto, Prompter& prompter,
                     std::unique_ptr<FuenteTubos> tubos);
    ~AperturaGraficas() override;

    /// A chart of kind `tipo` (1 surface temperature, 2 heat loss) of a data entry window: a
    /// new chart window in the frame that computes and draws its series. Nothing for another
    /// window.
    void Graficar(QWidget* ventana, int tipo);

private:
    mdiKelvora& mPrincipal;
    ContextoAplicacion& mContexto;
    Prompter& mPrompter;
    std::unique_ptr<FuenteTubos> mTubos;
};

/// "&Graficar" of a data entry window: the frame's chart menu as a pop-up under the button,
/// its left edge at the button's.
void MostrarMenuGraficar(QWidget& boton);

}  // namespace kelvora
