#include "gui/platform/texto.h"

#include "core/runtime/localechars.h"

#include <QLocale>

namespace kelvora {

void EstablecerLocaleDesdeQt() {
    const QLocale sistema = QLocale::system();
    LocaleChars locale;
    locale.decimal = S(sistema.decimalPoint());
    locale.miles = S(sistema.groupSeparator());
    locale.moneda = S(sistema.currencySymbol());
    EstablecerLocale(locale);
}

}  // namespace kelvora
