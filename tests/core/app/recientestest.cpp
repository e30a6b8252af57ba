#include "core/app/recientes.h"
#include "support/dobles.h"

#include <gtest/gtest.h>

#include <set>
#include <sstream>

namespace kelvora {
namespace {

using prueba::SettingsMemoria;

constexpr const char* kSeccion = "ArchivosRecientes";

// "A|B|" is File-1 = A, File-2 = B, File-3 empty; "" is no key at all.
std::vector<std::string> Partir(const std::string& lista) {
    std::vector<std::string> partes;
    if (lista.empty()) {
        return partes;
    }
    std::stringstream flujo(lista + "|");
    std::string parte;
    while (std::getline(flujo, parte, '|')) {
        partes.push_back(parte);
    }
    return partes;
}

std::string Lista(SettingsMemoria& ajustes) {
    std::string lista;
    for (int i = 1; i <= 5; ++i) {
        const auto it = ajustes.valores.find({"Kelvora", kSeccion, "File-" + std::to_string(i)});
        if (it == ajustes.valores.end()) {
            break;
        }
        lista += (i > 1 ? "|" : "") + it->second;
    }
    return lista;
}

TEST(Recientes, AgregarConSusRarezas) {
    struct Caso {
        const char* numero;
        const char* antes;
        const char* nombre;
        const char* numeroDespues;
        const char* despues;
    };
    // clang-format off
    const Caso casos[] = {
        // A new name shifts entries 1..n-1: the old entry n is lost while n < 5.
        {"",    "",          "A",   "1", "A"},
        {"1",   "A",         "B",   "2", "B|"},
        {"2",   "A|B",       "C",   "3", "C|A|"},
        {"3",   "C|A|",      "D",   "4", "D|C|A|"},
        {"4",   "D|C|A|",    "E",   "5", "E|D|C|A|"},
        {"5",   "A|B|C|D|E", "F",   "5", "F|A|B|C|D"},
        // A known name swaps places with entry 1, and the count still grows.
        {"3",   "A|B|C",     "B",   "4", "B|A|C|"},
        {"5",   "A|B|C|D|E", "E",   "5", "E|B|C|D|A"},
        {"1",   "A",         "A",   "2", "A|"},
        {"2",   " A |B",     "B",   "3", "B|A|"},
        // Case counts in a path; a count that is not a number is 0; counts past 5 stop at 5.
        {"1",   "/d/X.adk",  "/d/x.adk", "2", "/d/x.adk|"},
        {"abc", "A|B",       "C",   "1", "C|B"},
        {"9",   "A|B|C|D|E", "F",   "5", "F|A|B|C|D"},
        {"-3",  "",          "A",   "1", "A"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        SettingsMemoria ajustes;
        if (*caso.numero != '\0') {
            ajustes.valores[{"Kelvora", kSeccion, "NumFileRecents"}] = caso.numero;
        }
        const std::vector<std::string> antes = Partir(caso.antes);
        for (size_t i = 0; i < antes.size(); ++i) {
            ajustes.valores[{"Kelvora", kSeccion, "File-" + std::to_string(i + 1)}] = antes[i];
        }
        AgregarArchivoReciente(ajustes, caso.nombre);
        const std::string numero = ajustes.valores[{"Kelvora", kSeccion, "NumFileRecents"}];
        EXPECT_EQ(numero, caso.numeroDespues) << caso.antes << " + " << caso.nombre;
        EXPECT_EQ(Lista(ajustes), caso.despues) << caso.antes << " + " << caso.nombre;
    }
}

TEST(Recientes, MenuSaltaVaciosYArchivosQueYaNoEstan) {
    SettingsMemoria ajustes;
    // clang-format off
    const std::vector<std::pair<std::string, std::string>> claves = {
        {"NumFileRecents", "4"},
        {"File-1",         " /datos/a.adk "},
        {"File-2",         ""},
        {"File-3",         "/datos/borrado.adk"},
        {"File-4",         "/datos/b&c.adk"},
        {"File-5",         "/datos/fuera.adk"},
    };
    // clang-format on
    for (const auto& [clave, valor] : claves) {
        ajustes.valores[{"Kelvora", kSeccion, clave}] = valor;
    }
    const std::set<std::string> existentes = {"/datos/a.adk", "/datos/b&c.adk", "/datos/fuera.adk"};
    const auto menu = ActualizarRecientes(
            ajustes, [&](const std::string& ruta) { return existentes.count(ruta) > 0; });
    ASSERT_EQ(menu.size(), 2U);
    EXPECT_EQ(menu[0].titulo, "&1. /datos/a.adk");
    EXPECT_EQ(menu[0].archivo, "/datos/a.adk");
    EXPECT_EQ(menu[1].titulo, "&2. /datos/b&c.adk");
    EXPECT_EQ(menu[1].archivo, "/datos/b&c.adk");
}

TEST(Recientes, AcortarRutaA80Caracteres) {
    const std::string largo(70, 'x');
    const std::string n80 = "/d/" + std::string(77, 'y');
    std::string enes;
    for (int i = 0; i < 85; ++i) {
        enes += "ñ";
    }
    std::string ultimas80;
    for (int i = 0; i < 80; ++i) {
        ultimas80 += "ñ";
    }
    struct Caso {
        std::string ruta;
        std::string esperado;
    };
    // clang-format off
    const Caso casos[] = {
        {n80,                                           n80},
        {"C:\\Documentos\\" + largo + "\\obra.adk",     "C:\\Documentos\\...\\obra.adk"},
        {"\\\\servidor\\obras\\" + largo + "\\a.adk",   "\\\\servidor\\...\\a.adk"},
        {"/home/ana/" + largo + "/p/obra.adk",          "/home/.../obra.adk"},
        {"C:\\" + std::string(90, 'a'),                 std::string(80, 'a')},
        {"/" + enes,                                    ultimas80},
        // Still too long after the cut: its last 80 characters.
        {"/home/" + largo + "/" + largo + ".adk",       "e/.../" + largo + ".adk"},
    };
    // clang-format on
    for (const Caso& caso : casos) {
        EXPECT_EQ(AcortarRuta(caso.ruta), caso.esperado) << caso.ruta;
    }
}

}  // namespace
}  // namespace kelvora
