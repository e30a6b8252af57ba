#pragma once

#include <QMainWindow>

class QMdiArea;

namespace kelvora {

struct ContextoAplicacion;

/// The main window: a multiple-document frame that owns every child window.
class mdiKelvora : public QMainWindow {
    Q_OBJECT

public:
    explicit mdiKelvora(ContextoAplicacion& contexto, QWidget* padre = nullptr);

private:
    ContextoAplicacion& mContexto;
    QMdiArea* mArea;
};

}  // namespace kelvora
