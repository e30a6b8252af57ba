#include "core/runtime/numeros.h"

#include "core/runtime/digitos.h"
#include "core/runtime/localechars.h"
#include "core/runtime/runtimeerror.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdio>
#include <limits>

namespace kelvora {

namespace detalle {

Digitos DigitosDe(double valor, int significativas) {
    Digitos d;
    if (valor == 0) {
        return d;
    }
    // The runtime has no text for an infinity or a NaN: whatever produced one overflowed.
    if (!std::isfinite(valor)) {
        throw RuntimeError::DelRuntime(errores::Desbordamiento);
    }
    // to_chars ignores the C locale, which the windowing library sets from the environment.
    char buffer[64];
    const auto fin = std::to_chars(buffer, buffer + sizeof buffer, std::fabs(valor),
                                   std::chars_format::scientific, significativas - 1);
    const std::string texto(buffer, fin.ptr);
    const size_t e = texto.find('e');
    for (size_t i = 0; i < e; ++i) {
        if (texto[i] != '.') {
            d.cifras += texto[i];
        }
    }
    while (!d.cifras.empty() && d.cifras.back() == '0') {
        d.cifras.pop_back();
    }
    d.puntoDecimal = std::stoi(texto.substr(e + 1)) + 1;
    return d;
}

}  // namespace detalle

namespace {

using detalle::Digitos;

bool EsBlancoVal(char c) {
    return c == ' ' || c == '\t' || c == '\n' || c == '\r';
}

bool EsDigito(char c) {
    return c >= '0' && c <= '9';
}

// The power of ten of the leading digit of [-]digits[.digits][e[±]digits], saturated far
// beyond the Double range; nullopt for a zero.
std::optional<int64_t> Magnitud(std::string_view numero) {
    constexpr int64_t kTope = 1'000'000'000;
    const size_t e = numero.find_first_of("eE");
    int64_t exponente = 0;
    if (e != std::string_view::npos) {
        size_t p = e + 1;
        const bool negativo = p < numero.size() && numero[p] == '-';
        if (p < numero.size() && (numero[p] == '+' || numero[p] == '-')) {
            ++p;
        }
        for (; p < numero.size(); ++p) {
            exponente = std::min(exponente * 10 + (numero[p] - '0'), kTope);
        }
        exponente = negativo ? -exponente : exponente;
    }
    const std::string_view mantisa = numero.substr(0, e);
    const size_t punto = std::min(mantisa.find('.'), mantisa.size());
    const size_t primera = mantisa.find_first_of("123456789");
    if (primera == std::string_view::npos) {
        return std::nullopt;
    }
    const auto posicion = static_cast<int64_t>(punto) - static_cast<int64_t>(primera);
    return exponente + (primera < punto ? posicion - 1 : posicion);
}

// Overflow and underflow are told apart by the number's magnitude, digits and exponent together.
double ConvertirBuffer(const std::string& buffer) {
    double resultado = 0;
    const auto [ptr, ec] = std::from_chars(buffer.data(), buffer.data() + buffer.size(), resultado);
    if (ec == std::errc::result_out_of_range) {
        const std::optional<int64_t> magnitud = Magnitud(buffer);
        if (magnitud && *magnitud >= 0) {
            throw RuntimeError::DelRuntime(errores::Desbordamiento);
        }
        return 0;
    }
    (void)ptr;
    return resultado;
}

double ValBase(std::string_view t, size_t pos, int base) {
    int64_t valor = 0;
    int cifras = 0;
    while (pos < t.size()) {
        const char c = static_cast<char>(std::toupper(static_cast<unsigned char>(t[pos])));
        int digito = -1;
        if (EsDigito(c)) {
            digito = c - '0';
        } else if (base == 16 && c >= 'A' && c <= 'F') {
            digito = c - 'A' + 10;
        }
        if (digito < 0 || digito >= base) {
            break;
        }
        valor = valor * base + digito;
        if (valor > 0xFFFFFFFFLL) {
            throw RuntimeError::DelRuntime(errores::Desbordamiento);
        }
        ++cifras;
        ++pos;
    }
    const bool largo = pos < t.size() && t[pos] == '&';
    if (!largo && valor <= 0xFFFF && (base == 16 ? cifras <= 4 : valor <= 0xFFFF)) {
        return static_cast<int16_t>(static_cast<uint16_t>(valor));
    }
    return static_cast<int32_t>(static_cast<uint32_t>(valor));
}

void SaltarBlancos(std::string_view t, size_t& pos) {
    while (pos < t.size() && EsBlancoVal(t[pos])) {
        ++pos;
    }
}

// Collects digits (blanks between them skipped) into buffer.
void LeerCifras(std::string_view t, size_t& pos, std::string& buffer) {
    while (pos < t.size() && (EsDigito(t[pos]) || EsBlancoVal(t[pos]))) {
        if (EsDigito(t[pos])) {
            buffer += t[pos];
        }
        ++pos;
    }
}

double AplicarSufijo(std::string_view t, size_t pos, double valor, bool conDecimales) {
    if (pos >= t.size()) {
        return valor;
    }
    switch (t[pos]) {
        case '%':
        case '&':
            if (conDecimales) {
                throw RuntimeError::DelRuntime(errores::TiposNoCoinciden);
            }
            return valor;
        case '!':
            return static_cast<float>(valor);
        default:
            return valor;
    }
}

// Locale number parse state: what has been seen in the prefix and suffix.
struct Marcas {
    bool signo = false;
    bool moneda = false;
    bool parentesis = false;
    bool negativo = false;
};

bool Empieza(std::string_view t, size_t pos, const std::string& s) {
    return !s.empty() && t.substr(pos, s.size()) == s;
}

bool LeerPrefijo(std::string_view t, size_t& pos, Marcas& m, const LocaleChars& lc) {
    bool algo = true;
    while (algo) {
        algo = false;
        SaltarBlancos(t, pos);
        if (pos >= t.size()) {
            return true;
        }
        if ((t[pos] == '+' || t[pos] == '-') && !m.signo) {
            m.signo = true;
            m.negativo = t[pos] == '-';
            ++pos;
            algo = true;
        } else if (t[pos] == '(' && !m.parentesis) {
            m.parentesis = true;
            ++pos;
            algo = true;
        } else if (Empieza(t, pos, lc.moneda) && !m.moneda) {
            m.moneda = true;
            pos += lc.moneda.size();
            algo = true;
        }
    }
    return true;
}

bool LeerSufijo(std::string_view t, size_t& pos, Marcas& m, const LocaleChars& lc) {
    bool cerrado = !m.parentesis;
    while (true) {
        SaltarBlancos(t, pos);
        if (pos >= t.size()) {
            break;
        }
        if ((t[pos] == '+' || t[pos] == '-') && !m.signo) {
            m.signo = true;
            m.negativo = t[pos] == '-';
            ++pos;
        } else if (t[pos] == ')' && !cerrado) {
            cerrado = true;
            ++pos;
        } else if (Empieza(t, pos, lc.moneda) && !m.moneda) {
            m.moneda = true;
            pos += lc.moneda.size();
        } else {
            return false;
        }
    }
    return cerrado;
}

std::optional<double> ParsearBaseLocale(std::string_view t, size_t pos, int base, bool negativo) {
    size_t fin = pos;
    while (fin < t.size() && std::isxdigit(static_cast<unsigned char>(t[fin]))) {
        ++fin;
    }
    if (fin == pos) {
        return std::nullopt;
    }
    try {
        const double v = ValBase(t, pos, base);
        return negativo ? -v : v;
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
}

// Digits with the locale's decimal and thousands separators; false when there is no digit.
bool ParsearMantisa(std::string_view t, size_t& pos, const LocaleChars& lc, std::string& buffer) {
    bool hayCifra = false;
    bool hayDecimal = false;
    while (pos < t.size()) {
        if (EsDigito(t[pos])) {
            buffer += t[pos++];
            hayCifra = true;
        } else if (!hayDecimal && Empieza(t, pos, lc.decimal)) {
            buffer += '.';
            pos += lc.decimal.size();
            hayDecimal = true;
        } else if (hayCifra && !hayDecimal && Empieza(t, pos, lc.miles)) {
            pos += lc.miles.size();
        } else {
            break;
        }
    }
    return hayCifra;
}

bool ParsearExponente(std::string_view t, size_t& pos, std::string& buffer) {
    if (pos >= t.size() || (t[pos] != 'e' && t[pos] != 'E')) {
        return true;
    }
    size_t p = pos + 1;
    std::string exp = "e";
    if (p < t.size() && (t[p] == '+' || t[p] == '-')) {
        exp += t[p++];
    }
    const size_t inicioCifras = p;
    while (p < t.size() && EsDigito(t[p])) {
        exp += t[p++];
    }
    if (p == inicioCifras) {
        return false;
    }
    buffer += exp;
    pos = p;
    return true;
}

int32_t RedondearEntero(double valor, double minimo, double maximo) {
    if (!std::isfinite(valor)) {
        throw RuntimeError::DelRuntime(errores::Desbordamiento);
    }
    const double r = std::nearbyint(valor);
    if (r < minimo || r > maximo) {
        throw RuntimeError::DelRuntime(errores::Desbordamiento);
    }
    return static_cast<int32_t>(r);
}

std::string TextoDigitos(double valor, int significativas, const std::string& decimal) {
    if (valor == 0) {
        return "0";
    }
    const Digitos d = detalle::DigitosDe(valor, significativas);
    const int n = static_cast<int>(d.cifras.size());
    const int exponente = d.puntoDecimal - 1;
    const bool cientifico =
            exponente >= significativas || (exponente < 0 && (-exponente - 1) + n > significativas);
    std::string texto = valor < 0 ? "-" : "";
    if (cientifico) {
        texto += d.cifras.substr(0, 1);
        if (n > 1) {
            texto += decimal + d.cifras.substr(1);
        }
        char e[16];
        std::snprintf(e, sizeof e, "E%c%02d", exponente < 0 ? '-' : '+', std::abs(exponente));
        return texto + e;
    }
    if (d.puntoDecimal <= 0) {
        return texto + "0" + decimal + std::string(-d.puntoDecimal, '0') + d.cifras;
    }
    if (d.puntoDecimal >= n) {
        return texto + d.cifras + std::string(d.puntoDecimal - n, '0');
    }
    return texto + d.cifras.substr(0, d.puntoDecimal) + decimal + d.cifras.substr(d.puntoDecimal);
}

}  // namespace

double Val(std::string_view t) {
    size_t pos = 0;
    SaltarBlancos(t, pos);
    if (pos < t.size() && t[pos] == '&') {
        if (pos + 1 < t.size() && (t[pos + 1] == 'H' || t[pos + 1] == 'h')) {
            return ValBase(t, pos + 2, 16);
        }
        if (pos + 1 < t.size() && (t[pos + 1] == 'O' || t[pos + 1] == 'o')) {
            return ValBase(t, pos + 2, 8);
        }
        return 0;
    }
    std::string buffer;
    if (pos < t.size() && (t[pos] == '+' || t[pos] == '-')) {
        if (t[pos] == '-') {
            buffer += '-';
        }
        ++pos;
    }
    const size_t inicio = buffer.size();
    LeerCifras(t, pos, buffer);
    bool conDecimales = false;
    if (pos < t.size() && t[pos] == '.') {
        ++pos;
        std::string fraccion;
        LeerCifras(t, pos, fraccion);
        conDecimales = !fraccion.empty();
        buffer += "." + fraccion;
    }
    if (buffer.size() == inicio || buffer.substr(inicio) == ".") {
        return 0;
    }
    if (buffer.back() == '.') {
        buffer.pop_back();
    }
    if (pos < t.size() && std::string_view("eEdD").find(t[pos]) != std::string_view::npos) {
        ++pos;
        std::string exponente = "e";
        if (pos < t.size() && (t[pos] == '+' || t[pos] == '-')) {
            exponente += t[pos++];
        }
        std::string cifras;
        LeerCifras(t, pos, cifras);
        if (!cifras.empty()) {
            buffer += exponente + cifras;
        }
    }
    if (buffer[inicio] == '.') {
        buffer.insert(inicio, "0");
    }
    const double valor = ConvertirBuffer(buffer);
    return AplicarSufijo(t, pos, valor, conDecimales);
}

std::optional<double> ParsearNumeroLocale(std::string_view t) {
    const LocaleChars& lc = LocaleActual();
    size_t pos = 0;
    Marcas marcas;
    LeerPrefijo(t, pos, marcas, lc);
    if (pos >= t.size()) {
        return std::nullopt;
    }
    if (t[pos] == '&' && pos + 1 < t.size()) {
        const char b = static_cast<char>(std::toupper(static_cast<unsigned char>(t[pos + 1])));
        if (b == 'H' || b == 'O') {
            size_t fin = pos + 2;
            while (fin < t.size() && std::isxdigit(static_cast<unsigned char>(t[fin]))) {
                ++fin;
            }
            size_t resto = fin;
            if (!LeerSufijo(t, resto, marcas, lc)) {
                return std::nullopt;
            }
            return ParsearBaseLocale(t, pos + 2, b == 'H' ? 16 : 8, marcas.negativo);
        }
    }
    std::string buffer;
    if (!ParsearMantisa(t, pos, lc, buffer) || !ParsearExponente(t, pos, buffer)) {
        return std::nullopt;
    }
    if (!LeerSufijo(t, pos, marcas, lc)) {
        return std::nullopt;
    }
    if (buffer.front() == '.') {
        buffer.insert(0, "0");
    }
    if (buffer.back() == '.') {
        buffer.pop_back();
    }
    double valor = 0;
    try {
        valor = ConvertirBuffer(buffer);
    } catch (const RuntimeError&) {
        return std::nullopt;
    }
    const bool negativo = marcas.negativo != marcas.parentesis;
    return negativo ? -valor : valor;
}

bool IsNumeric(std::string_view texto) {
    return ParsearNumeroLocale(texto).has_value();
}

double CDbl(std::string_view texto) {
    const auto valor = ParsearNumeroLocale(texto);
    if (!valor) {
        throw RuntimeError::DelRuntime(errores::TiposNoCoinciden);
    }
    return *valor;
}

int16_t CInt(double valor) {
    return static_cast<int16_t>(RedondearEntero(valor, -32768, 32767));
}

int32_t CLng(double valor) {
    return RedondearEntero(valor, -2147483648.0, 2147483647.0);
}

int16_t CInt(std::string_view texto) {
    return CInt(CDbl(texto));
}

float CSng(double valor) {
    const auto f = static_cast<float>(valor);
    if (std::isinf(f) && std::isfinite(valor)) {
        throw RuntimeError::DelRuntime(errores::Desbordamiento);
    }
    return f;
}

std::string TextoNumero(double valor) {
    return TextoDigitos(valor, 15, LocaleActual().decimal);
}

std::string TextoNumero(float valor) {
    return TextoDigitos(valor, 7, LocaleActual().decimal);
}

std::string Str(double valor) {
    std::string texto = TextoDigitos(valor, 15, ".");
    const bool negativo = texto.front() == '-';
    const size_t cifra = negativo ? 1 : 0;
    if (texto.compare(cifra, 2, "0.") == 0) {
        texto.erase(cifra, 1);
    }
    return negativo ? texto : " " + texto;
}

}  // namespace kelvora
