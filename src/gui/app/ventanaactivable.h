#pragma once

#include <QWidget>

class QMdiSubWindow;

namespace kelvora {

/// A child window of the frame that runs its activation steps each time it becomes the active
/// child, or the active window when it stands alone.
class VentanaActivable : public QWidget {
    Q_OBJECT

public:
    using QWidget::QWidget;

    Q_INVOKABLE virtual void Activar() = 0;

protected:
    bool event(QEvent* evento) override;
    /// Called when the window is placed in its frame; ties the frame's activation to Activar.
    virtual void AlEntrarEnMarco(QMdiSubWindow* marco);
};

}  // namespace kelvora
