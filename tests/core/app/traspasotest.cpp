#include "core/app/traspaso.h"

#include <gtest/gtest.h>

namespace kelvora {
namespace {

std::string Cabecera(uint32_t caracteres, uint32_t bytes) {
    std::string cabecera;
    for (const uint32_t valor : {caracteres, bytes}) {
        for (int i = 0; i < 4; ++i) {
            cabecera += static_cast<char>((valor >> (8 * i)) & 0xFF);
        }
    }
    return cabecera;
}

TEST(Traspaso, RegistroDelNombre) {
    struct Caso {
        std::string texto;
        std::string registro;
    };
    // "ñ" is one character of two bytes; the empty text goes as one zero byte.
    // clang-format off
    const Caso casos[] = {
        {"",             Cabecera(0, 1) + std::string(1, '\0')},
        {"/d/a.adk",     Cabecera(8, 8) + "/d/a.adk"},
        {"/d/año.adk",   Cabecera(10, 11) + "/d/año.adk"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        const std::string registro = CodificarTraspaso(caso.texto);
        EXPECT_EQ(registro, caso.registro) << caso.texto;
        const LecturaTraspaso lectura = DecodificarTraspaso(registro);
        EXPECT_EQ(lectura.estado, EstadoTraspaso::Completo) << caso.texto;
        EXPECT_EQ(lectura.texto, caso.texto);
    }
}

TEST(Traspaso, LecturaPorPartesYRegistrosMalos) {
    const std::string registro = CodificarTraspaso("/d/a.adk");
    for (size_t largo = 0; largo < registro.size(); ++largo) {
        EXPECT_EQ(DecodificarTraspaso(registro.substr(0, largo)).estado, EstadoTraspaso::Incompleto)
                << largo;
    }
    EXPECT_EQ(DecodificarTraspaso(Cabecera(1, 0xFFFFFFFF)).estado, EstadoTraspaso::Invalido);
    EXPECT_EQ(NombreCanalTraspaso("ana.pérez"), "FornalisSA.Kelvora_APPLICATION.ana_p__rez");
}

}  // namespace
}  // namespace kelvora
