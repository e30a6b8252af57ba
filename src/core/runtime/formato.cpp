#include "core/runtime/formato.h"

#include "core/runtime/digitos.h"
#include "core/runtime/localechars.h"
#include "core/runtime/numeros.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdio>

namespace kelvora {

namespace {

using detalle::Digitos;

// A digit pattern section: placeholders around the decimal point, grouping, exponent, literals.
struct Patron {
    std::string prefijo;
    std::string sufijo;
    int cerosEnteros = 0;
    int cerosDecimales = 0;
    int maxDecimales = 0;
    bool agrupar = false;
    bool porcentaje = false;
    bool exponente = false;
    bool exponenteConMas = false;
    int cerosExponente = 0;
};

bool EsMarcador(char c) {
    return c == '0' || c == '#';
}

Patron LeerPatron(std::string_view seccion) {
    Patron p;
    size_t i = 0;
    while (i < seccion.size() && !EsMarcador(seccion[i]) && seccion[i] != '.') {
        if (seccion[i] == '%') {
            p.porcentaje = true;
        }
        if (seccion[i] != '\\') {
            p.prefijo += seccion[i];
        }
        ++i;
    }
    bool decimales = false;
    for (; i < seccion.size(); ++i) {
        const char c = seccion[i];
        if (c == '.') {
            decimales = true;
        } else if (c == ',' && !decimales) {
            p.agrupar = true;
        } else if (EsMarcador(c) && !decimales) {
            p.cerosEnteros += c == '0' ? 1 : 0;
        } else if (EsMarcador(c)) {
            p.cerosDecimales += c == '0' ? 1 : 0;
            ++p.maxDecimales;
        } else if ((c == 'E' || c == 'e') && i + 1 < seccion.size() &&
                   (seccion[i + 1] == '+' || seccion[i + 1] == '-')) {
            p.exponente = true;
            p.exponenteConMas = seccion[i + 1] == '+';
            i += 2;
            while (i < seccion.size() && EsMarcador(seccion[i])) {
                p.cerosExponente += seccion[i] == '0' ? 1 : 0;
                ++i;
            }
            --i;
        } else {
            break;
        }
    }
    for (; i < seccion.size(); ++i) {
        if (seccion[i] == '%') {
            p.porcentaje = true;
        }
        if (seccion[i] != '\\') {
            p.sufijo += seccion[i];
        }
    }
    return p;
}

// Adds one unit at the last digit of a decimal digit string; returns true on a carry out.
bool Incrementar(std::string& cifras) {
    for (size_t i = cifras.size(); i-- > 0;) {
        if (cifras[i] != '9') {
            ++cifras[i];
            return false;
        }
        cifras[i] = '0';
    }
    cifras.insert(0, "1");
    return true;
}

// Integer and fraction digits of |valor| rounded half-up to `decimales` places.
struct Fijo {
    std::string entero;
    std::string fraccion;
};

Fijo RedondearFijo(const Digitos& d, int decimales) {
    const int n = static_cast<int>(d.cifras.size());
    int enteros = std::max(0, d.puntoDecimal);
    std::string cifras;
    // Digit j of d has the place value 10^(puntoDecimal - 1 - j).
    for (int lugar = enteros - 1; lugar >= -decimales; --lugar) {
        const int j = d.puntoDecimal - 1 - lugar;
        cifras += (j >= 0 && j < n) ? d.cifras[j] : '0';
    }
    const int siguiente = d.puntoDecimal + decimales;
    if (siguiente >= 0 && siguiente < n && d.cifras[siguiente] >= '5' && Incrementar(cifras)) {
        ++enteros;
    }
    return {cifras.substr(0, enteros), cifras.substr(enteros)};
}

std::string Agrupar(const std::string& entero, const std::string& miles) {
    std::string resultado;
    const int n = static_cast<int>(entero.size());
    for (int i = 0; i < n; ++i) {
        if (i > 0 && (n - i) % 3 == 0) {
            resultado += miles;
        }
        resultado += entero[i];
    }
    return resultado;
}

std::string QuitarCerosIniciales(std::string entero) {
    const size_t primero = entero.find_first_not_of('0');
    return primero == std::string::npos ? "" : entero.substr(primero);
}

std::string FormatoFijo(double valor, const Patron& p) {
    const LocaleChars& lc = LocaleActual();
    const Digitos d = detalle::DigitosDe(valor, 15);
    Fijo f = RedondearFijo(d, p.maxDecimales);
    std::string entero = QuitarCerosIniciales(f.entero);
    if (static_cast<int>(entero.size()) < p.cerosEnteros) {
        entero.insert(0, p.cerosEnteros - entero.size(), '0');
    }
    while (static_cast<int>(f.fraccion.size()) > p.cerosDecimales && !f.fraccion.empty() &&
           f.fraccion.back() == '0') {
        f.fraccion.pop_back();
    }
    std::string texto = p.agrupar ? Agrupar(entero, lc.miles) : entero;
    if (p.maxDecimales > 0 && (!f.fraccion.empty() || p.cerosDecimales > 0)) {
        texto += lc.decimal + f.fraccion;
    } else if (p.maxDecimales > 0 && p.cerosDecimales == 0) {
        texto += lc.decimal;
    }
    return texto;
}

std::string FormatoCientifico(double valor, const Patron& p) {
    const LocaleChars& lc = LocaleActual();
    const int significativas = 1 + p.maxDecimales;
    std::string mantisa(significativas, '0');
    int exponente = 0;
    if (valor != 0) {
        const Digitos d = detalle::DigitosDe(valor, 15);
        std::string cifras = d.cifras + std::string(15, '0');
        mantisa = cifras.substr(0, significativas);
        exponente = d.puntoDecimal - 1;
        if (cifras[significativas] >= '5' && Incrementar(mantisa)) {
            mantisa.pop_back();
            ++exponente;
        }
    }
    std::string fraccion = mantisa.substr(1);
    while (static_cast<int>(fraccion.size()) > p.cerosDecimales && fraccion.back() == '0') {
        fraccion.pop_back();
    }
    std::string texto = mantisa.substr(0, 1);
    if (!fraccion.empty()) {
        texto += lc.decimal + fraccion;
    }
    texto += exponente < 0 ? "E-" : (p.exponenteConMas ? "E+" : "E");
    std::string cifrasExp = std::to_string(std::abs(exponente));
    if (static_cast<int>(cifrasExp.size()) < p.cerosExponente) {
        cifrasExp.insert(0, p.cerosExponente - cifrasExp.size(), '0');
    }
    return texto + cifrasExp;
}

std::string FormatoPatron(double valor, std::string_view patron) {
    const size_t separador = patron.find(';');
    const bool negativo = valor < 0;
    std::string_view seccion = patron.substr(0, separador);
    if (negativo && separador != std::string_view::npos) {
        seccion = patron.substr(separador + 1);
        seccion = seccion.substr(0, seccion.find(';'));
    }
    const Patron p = LeerPatron(seccion);
    const double magnitud = std::fabs(valor) * (p.porcentaje ? 100 : 1);
    const std::string cuerpo =
            p.exponente ? FormatoCientifico(magnitud, p) : FormatoFijo(magnitud, p);
    const bool signo = negativo && separador == std::string_view::npos;
    return (signo ? "-" : "") + p.prefijo + cuerpo + p.sufijo;
}

std::string PatronNombrado(std::string_view patron) {
    if (patron == "Scientific") {
        return "0.00E+00";
    }
    if (patron == "Fixed") {
        return "0.00";
    }
    if (patron == "Standard") {
        return "#,##0.00";
    }
    if (patron == "Percent") {
        return "0.00%";
    }
    return std::string(patron);
}

constexpr std::array<const char*, 7> kDias = {"domingo", "lunes",   "martes", "miércoles",
                                              "jueves",  "viernes", "sábado"};
constexpr std::array<const char*, 12> kMeses = {"enero",      "febrero", "marzo",     "abril",
                                                "mayo",       "junio",   "julio",     "agosto",
                                                "septiembre", "octubre", "noviembre", "diciembre"};

std::string DosCifras(int n) {
    char b[8];
    std::snprintf(b, sizeof b, "%02d", n);
    return b;
}

std::string Token(const Fecha& f, char letra, int veces) {
    switch (letra) {
        case 'd':
            if (veces >= 4) {
                return kDias[f.DiaSemana()];
            }
            if (veces == 3) {
                return std::string(kDias[f.DiaSemana()]).substr(0, 3);
            }
            return veces == 2 ? DosCifras(f.dia) : std::to_string(f.dia);
        case 'm':
            if (veces >= 4) {
                return kMeses[f.mes - 1];
            }
            if (veces == 3) {
                return std::string(kMeses[f.mes - 1]).substr(0, 3);
            }
            return veces == 2 ? DosCifras(f.mes) : std::to_string(f.mes);
        default:
            if (veces >= 3) {
                return std::to_string(f.anio);
            }
            return DosCifras(f.anio % 100);
    }
}

}  // namespace

int Fecha::DiaSemana() const {
    // Zeller-style count for the Gregorian calendar.
    static constexpr std::array<int, 12> t = {0, 3, 2, 5, 0, 3, 5, 1, 4, 6, 2, 4};
    const int y = mes < 3 ? anio - 1 : anio;
    return (y + y / 4 - y / 100 + y / 400 + t[mes - 1] + dia) % 7;
}

std::string Format(double valor, std::string_view patron) {
    if (patron.empty() || patron == "General Number") {
        return TextoNumero(valor);
    }
    return FormatoPatron(valor, PatronNombrado(patron));
}

std::string Format(const Fecha& fecha, std::string_view patron) {
    if (patron == "Long Date") {
        return Format(fecha, "dddd, d \\de mmmm \\de yyyy");
    }
    if (patron == "Short Date") {
        return Format(fecha, "dd/mm/yyyy");
    }
    std::string texto;
    for (size_t i = 0; i < patron.size();) {
        const char c = static_cast<char>(std::tolower(static_cast<unsigned char>(patron[i])));
        if (c == 'd' || c == 'm' || c == 'y') {
            size_t j = i;
            while (j < patron.size() && std::tolower(static_cast<unsigned char>(patron[j])) == c) {
                ++j;
            }
            texto += Token(fecha, c, static_cast<int>(j - i));
            i = j;
        } else if (patron[i] == '\\' && i + 1 < patron.size()) {
            texto += patron[i + 1];
            i += 2;
        } else if (patron[i] == '/') {
            texto += LocaleActual().separadorFecha;
            ++i;
        } else {
            texto += patron[i++];
        }
    }
    return texto;
}

}  // namespace kelvora
