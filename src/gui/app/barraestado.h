#pragma once

#include <QStatusBar>

#include <array>

class QLabel;

namespace kelvora {

class Clock;

/// The frame's status bar `stbStatusBar`: two text panels, the NÚM, MAYÚS and INS key
/// states, and the time, whose tool tip is today's date in long form.
class BarraEstado : public QStatusBar {
    Q_OBJECT

public:
    explicit BarraEstado(Clock& reloj, QWidget* padre = nullptr);

protected:
    bool event(QEvent* evento) override;
    bool eventFilter(QObject* objeto, QEvent* evento) override;

private:
    QLabel* NuevoPanel(int numero, const QString& texto);
    void PonerEstadoTecla(QLabel* panel, bool activa);
    void AlternarTecla(QLabel* panel);
    void ActualizarHora();
    void ActualizarFecha();

    Clock& mReloj;
    std::array<QLabel*, 6> mPaneles{};
};

}  // namespace kelvora
