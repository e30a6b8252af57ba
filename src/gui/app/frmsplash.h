#pragma once

#include <QWidget>

#include <memory>

class QTimer;

namespace Ui {
class frmSplash;
}

namespace kelvora {

struct ContextoAplicacion;

/// The start-up window: product, version and maker, on top of everything. It stays up until
/// the user closes it (Aceptar or Esc) or its timer ticks the second time.
class frmSplash : public QWidget {
    Q_OBJECT

public:
    static constexpr int kIntervaloMs = 60000;

    /// Sets SplashVisible of the context, which its closing clears.
    explicit frmSplash(ContextoAplicacion& contexto, int intervaloMs = kIntervaloMs,
                       QWidget* padre = nullptr);
    ~frmSplash() override;

protected:
    void keyPressEvent(QKeyEvent* evento) override;
    void closeEvent(QCloseEvent* evento) override;

private:
    void timUnload_Timer();

    std::unique_ptr<Ui::frmSplash> mUi;
    ContextoAplicacion& mContexto;
    QTimer* mTimUnload;
    int mTics = 0;
};

}  // namespace kelvora
