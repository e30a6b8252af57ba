#pragma once

#include <QString>

#include <string>

namespace kelvora {

/// UTF-8 text of the core to and from Qt strings.
inline QString Q(const std::string& texto) {
    return QString::fromStdString(texto);
}
inline std::string S(const QString& texto) {
    return texto.toStdString();
}

/// The separators of the user's locale, as the core reads them.
void EstablecerLocaleDesdeQt();

}  // namespace kelvora
