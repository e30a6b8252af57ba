#include "core/runtime/codificacion.h"

#include "core/runtime/texto.h"

#include <array>

namespace kelvora {

namespace {

// Code points of bytes 0x80 to 0x9F.
constexpr std::array<char32_t, 32> kAltos = {
        0x20AC, 0x81,   0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
        0x2039, 0x0152, 0x8D,   0x017D, 0x8F,   0x90,   0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
        0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x9D,   0x017E, 0x0178};

char32_t CaracterDe(unsigned char byte) {
    return byte >= 0x80 && byte <= 0x9F ? kAltos[byte - 0x80] : byte;
}

char ByteDe(char32_t c) {
    if (c < 0x80 || (c >= 0xA0 && c <= 0xFF)) {
        return static_cast<char>(c);
    }
    for (size_t i = 0; i < kAltos.size(); ++i) {
        if (kAltos[i] == c) {
            return static_cast<char>(0x80 + i);
        }
    }
    return '?';
}

}  // namespace

std::string DesdeWindows1252(std::string_view bytes) {
    std::string texto;
    texto.reserve(bytes.size());
    for (const char b : bytes) {
        texto += Utf8(CaracterDe(static_cast<unsigned char>(b)));
    }
    return texto;
}

std::string AWindows1252(std::string_view texto) {
    std::string bytes;
    for (const char32_t c : Caracteres(texto)) {
        bytes += ByteDe(c);
    }
    return bytes;
}

}  // namespace kelvora
