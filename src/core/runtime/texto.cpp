#include "core/runtime/texto.h"

namespace kelvora {

namespace {

constexpr char32_t kInvalido = 0xFFFD;

int LongitudSecuencia(unsigned char primero) {
    if (primero < 0x80) {
        return 1;
    }
    if ((primero & 0xE0) == 0xC0) {
        return 2;
    }
    if ((primero & 0xF0) == 0xE0) {
        return 3;
    }
    if ((primero & 0xF8) == 0xF0) {
        return 4;
    }
    return 0;
}

// Decodes one character at pos and advances pos; an invalid byte yields U+FFFD.
char32_t Decodificar(std::string_view texto, size_t& pos) {
    const auto primero = static_cast<unsigned char>(texto[pos]);
    const int n = LongitudSecuencia(primero);
    if (n == 0 || pos + n > texto.size()) {
        ++pos;
        return kInvalido;
    }
    if (n == 1) {
        ++pos;
        return primero;
    }
    char32_t c = primero & (0xFF >> (n + 1));
    for (int i = 1; i < n; ++i) {
        const auto b = static_cast<unsigned char>(texto[pos + i]);
        if ((b & 0xC0) != 0x80) {
            ++pos;
            return kInvalido;
        }
        c = (c << 6) | (b & 0x3F);
    }
    pos += n;
    return c;
}

char32_t Mayuscula(char32_t c) {
    if (c >= U'a' && c <= U'z') {
        return c - 32;
    }
    if ((c >= 0xE0 && c <= 0xFE && c != 0xF7)) {
        return c - 32;
    }
    if (c == 0xFF) {
        return 0x178;
    }
    if (c >= 0x100 && c <= 0x17F && c != 0x130 && c != 0x131 && c != 0x138 && c != 0x149 &&
        c != 0x17F) {
        const bool parImpar = (c >= 0x139 && c <= 0x148) || (c >= 0x179 && c <= 0x17E);
        const bool minuscula = parImpar ? (c % 2 == 0) : (c % 2 == 1);
        return minuscula ? c - 1 : c;
    }
    return c;
}

char32_t Minuscula(char32_t c) {
    if (c >= U'A' && c <= U'Z') {
        return c + 32;
    }
    if (c >= 0xC0 && c <= 0xDE && c != 0xD7) {
        return c + 32;
    }
    if (c == 0x178) {
        return 0xFF;
    }
    if (c >= 0x100 && c <= 0x17F && Mayuscula(c + 1) == c) {
        return c + 1;
    }
    return c;
}

bool EsBlancoLimpiable(char c) {
    return c == '\n' || c == '\r' || c == '\t' || c == ' ';
}

std::string Transformar(std::string_view texto, char32_t (*f)(char32_t)) {
    std::string resultado;
    resultado.reserve(texto.size());
    size_t pos = 0;
    while (pos < texto.size()) {
        const size_t inicio = pos;
        const char32_t c = Decodificar(texto, pos);
        if (c == kInvalido) {
            resultado.append(texto.substr(inicio, pos - inicio));
        } else {
            resultado += Utf8(f(c));
        }
    }
    return resultado;
}

}  // namespace

std::string LTrim(std::string_view texto) {
    const size_t inicio = texto.find_first_not_of(' ');
    return inicio == std::string_view::npos ? std::string() : std::string(texto.substr(inicio));
}

std::string RTrim(std::string_view texto) {
    const size_t fin = texto.find_last_not_of(' ');
    return fin == std::string_view::npos ? std::string() : std::string(texto.substr(0, fin + 1));
}

std::string Trim(std::string_view texto) {
    return LTrim(RTrim(texto));
}

std::string UCase(std::string_view texto) {
    return Transformar(texto, Mayuscula);
}

std::string LCase(std::string_view texto) {
    return Transformar(texto, Minuscula);
}

bool IgualTexto(std::string_view a, std::string_view b) {
    return UCase(a) == UCase(b);
}

std::u32string Caracteres(std::string_view texto) {
    std::u32string resultado;
    size_t pos = 0;
    while (pos < texto.size()) {
        resultado.push_back(Decodificar(texto, pos));
    }
    return resultado;
}

std::string Utf8(char32_t c) {
    std::string s;
    if (c < 0x80) {
        s += static_cast<char>(c);
    } else if (c < 0x800) {
        s += static_cast<char>(0xC0 | (c >> 6));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else if (c < 0x10000) {
        s += static_cast<char>(0xE0 | (c >> 12));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    } else {
        s += static_cast<char>(0xF0 | (c >> 18));
        s += static_cast<char>(0x80 | ((c >> 12) & 0x3F));
        s += static_cast<char>(0x80 | ((c >> 6) & 0x3F));
        s += static_cast<char>(0x80 | (c & 0x3F));
    }
    return s;
}

std::string Utf8(std::u32string_view caracteres) {
    std::string s;
    for (const char32_t c : caracteres) {
        s += Utf8(c);
    }
    return s;
}

int Len(std::string_view texto) {
    int n = 0;
    size_t pos = 0;
    while (pos < texto.size()) {
        Decodificar(texto, pos);
        ++n;
    }
    return n;
}

std::string Mid(std::string_view texto, int inicio, int longitud) {
    const std::u32string c = Caracteres(texto);
    if (inicio < 1 || static_cast<size_t>(inicio) > c.size()) {
        return {};
    }
    const size_t desde = static_cast<size_t>(inicio - 1);
    const size_t cuantos = longitud < 0 ? std::u32string::npos : static_cast<size_t>(longitud);
    return Utf8(std::u32string_view(c).substr(desde, cuantos));
}

int InStr(std::string_view texto, std::string_view buscado, bool sinCaso) {
    const std::string t = sinCaso ? UCase(texto) : std::string(texto);
    const std::string b = sinCaso ? UCase(buscado) : std::string(buscado);
    const size_t pos = t.find(b);
    return pos == std::string::npos ? 0 : Len(std::string_view(t).substr(0, pos)) + 1;
}

std::string NormalizarDecimal(std::string& texto) {
    const size_t coma = texto.find(',');
    if (coma != std::string::npos) {
        texto[coma] = '.';
    }
    return Trim(texto);
}

std::string LimpiarTexto(std::string_view texto, std::string_view quitar) {
    std::string resultado = Trim(texto);
    size_t inicio = 0;
    while (inicio < resultado.size() && EsBlancoLimpiable(resultado[inicio])) {
        ++inicio;
    }
    size_t fin = resultado.size();
    while (fin > inicio && EsBlancoLimpiable(resultado[fin - 1])) {
        --fin;
    }
    resultado = resultado.substr(inicio, fin - inicio);
    if (quitar.empty()) {
        return resultado;
    }
    const std::string q = UCase(quitar);
    std::string limpio;
    size_t pos = 0;
    while (pos < resultado.size()) {
        if (UCase(std::string_view(resultado).substr(pos, quitar.size())) == q) {
            pos += quitar.size();
        } else {
            limpio += resultado[pos++];
        }
    }
    return limpio;
}

}  // namespace kelvora
