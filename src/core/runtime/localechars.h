#pragma once

#include <string>

namespace kelvora {

/// Separators and symbols of the user's regional settings, read once at start-up.
struct LocaleChars {
    std::string decimal = ".";
    std::string miles = ",";
    std::string moneda = "$";
    std::string separadorFecha = "/";

    static LocaleChars Punto();
    static LocaleChars Espanol();
};

/// The separators in force; tests and the start-up replace them.
const LocaleChars& LocaleActual();
void EstablecerLocale(const LocaleChars& locale);

/// Reads the separators of the process locale (LC_NUMERIC/LC_MONETARY from the environment).
LocaleChars LeerLocaleSistema();

}  // namespace kelvora
