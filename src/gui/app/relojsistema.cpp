#include "gui/app/relojsistema.h"

#include <QDate>

namespace kelvora {

Fecha RelojSistema::Hoy() {
    const QDate hoy = QDate::currentDate();
    return {hoy.year(), hoy.month(), hoy.day()};
}

}  // namespace kelvora
