#include "gui/app/mdikelvora.h"

#include "core/app/contexto.h"

#include <QMdiArea>

namespace kelvora {

mdiKelvora::mdiKelvora(ContextoAplicacion& contexto, QWidget* padre)
    : QMainWindow(padre), mContexto(contexto), mArea(new QMdiArea(this)) {
    setObjectName(QStringLiteral("mdiKelvora"));
    setWindowTitle(QStringLiteral("Fornalis S.A. - Cálculo de Aislamiento Óptimo - Kelvora"));
    setCentralWidget(mArea);
    resize(1024, 720);
}

}  // namespace kelvora
