#include "core/runtime/localechars.h"

#include <clocale>

namespace kelvora {

namespace {

LocaleChars& Actual() {
    static LocaleChars locale;
    return locale;
}

std::string TextoO(const char* texto, const char* siVacio) {
    return texto != nullptr && *texto != '\0' ? std::string(texto) : std::string(siVacio);
}

}  // namespace

LocaleChars LocaleChars::Punto() {
    return {};
}

LocaleChars LocaleChars::Espanol() {
    return {",", ".", "€", "/"};
}

const LocaleChars& LocaleActual() {
    return Actual();
}

void EstablecerLocale(const LocaleChars& locale) {
    Actual() = locale;
}

LocaleChars LeerLocaleSistema() {
    const std::string anterior = TextoO(std::setlocale(LC_ALL, nullptr), "C");
    std::setlocale(LC_ALL, "");
    const std::lconv* lc = std::localeconv();
    LocaleChars locale;
    locale.decimal = TextoO(lc->decimal_point, ".");
    locale.miles = TextoO(lc->thousands_sep, locale.decimal == "," ? "." : ",");
    locale.moneda = TextoO(lc->currency_symbol, "$");
    std::setlocale(LC_ALL, anterior.c_str());
    return locale;
}

}  // namespace kelvora
