#pragma once

#include <QObject>

class QAbstractScrollArea;

namespace kelvora {

/// Wheel scrolling of a grid: one line per notch of the wheel (120 units), up or down.
class RuedaGrilla : public QObject {
    Q_OBJECT

public:
    /// Hooks the grid; the hook goes with it.
    explicit RuedaGrilla(QAbstractScrollArea& grilla);

protected:
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QAbstractScrollArea& mGrilla;
};

}  // namespace kelvora
