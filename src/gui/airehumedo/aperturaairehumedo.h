#pragma once

#include <QObject>
#include <QPointer>

class QMdiSubWindow;

namespace kelvora {

class Prompter;
class frmAireHumedo;
class mdiKelvora;
struct ContextoAplicacion;

/// The frame's one moist-air window. It keeps the window's destination: the cold data entry
/// window that was the active child before it. Lives as long as the frame.
class AperturaAireHumedo : public QObject {
    Q_OBJECT

public:
    AperturaAireHumedo(mdiKelvora& principal, ContextoAplicacion& contexto, Prompter& prompter);

    /// "Herramientas › &Aire Húmedo...": the window, made when it is not open, at the top.
    void AireHumedo();
    frmAireHumedo* Ventana() const;

private:
    void Activada(QMdiSubWindow* marco);

    mdiKelvora& mPrincipal;
    ContextoAplicacion& mContexto;
    Prompter& mPrompter;
    QPointer<frmAireHumedo> mVentana;
};

}  // namespace kelvora
