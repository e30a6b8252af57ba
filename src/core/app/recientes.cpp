#include "core/app/recientes.h"

#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

#include <algorithm>

namespace kelvora {

namespace {

constexpr const char* kSeccion = "ArchivosRecientes";
constexpr const char* kClaveNumero = "NumFileRecents";
constexpr int kMaximo = 5;
constexpr int kLargoMaximo = 80;

std::string ClaveArchivo(int i) {
    return "File-" + std::to_string(i);
}

// Only keys File-1 to File-5 exist, so a count edited by hand outside 0..5 is held to it;
// this also keeps the menu within its six entries.
int LeerNumero(SettingsStore& ajustes) {
    try {
        const int n = CInt(Val(ajustes.GetSetting(kTituloAplicacion, kSeccion, kClaveNumero, "0")));
        return std::clamp(n, 0, kMaximo);
    } catch (const RuntimeError&) {
        return 0;
    }
}

std::string LeerEntrada(SettingsStore& ajustes, int i) {
    return Trim(ajustes.GetSetting(kTituloAplicacion, kSeccion, ClaveArchivo(i), ""));
}

bool EsSeparador(char32_t c) {
    return c == U'\\' || c == U'/';
}

// Characters before the first folder that follows the root: "\\" of a network path, "/" of
// an absolute path here, else the three characters of a drive such as "C:\".
size_t LargoRaiz(const std::u32string& c) {
    if (c.size() >= 2 && EsSeparador(c[0]) && EsSeparador(c[1])) {
        return 2;
    }
    if (!c.empty() && EsSeparador(c[0])) {
        return 1;
    }
    return std::min<size_t>(3, c.size());
}

}  // namespace

void AgregarArchivoReciente(SettingsStore& ajustes, const std::string& nombre) {
    int n = LeerNumero(ajustes);
    std::vector<std::string> entradas(static_cast<size_t>(n) + 2);
    int posicion = 0;
    for (int i = 1; i <= n; ++i) {
        entradas[i] = LeerEntrada(ajustes, i);
        // Paths are compared exactly: the file system here tells case apart.
        if (posicion == 0 && entradas[i] == nombre) {
            posicion = i;
        }
    }
    if (posicion == 0) {
        for (int i = n - 1; i >= 1; --i) {
            entradas[i + 1] = entradas[i];
        }
        entradas[1] = nombre;
    } else {
        std::swap(entradas[1], entradas[posicion]);
    }
    n = std::min(n + 1, kMaximo);
    ajustes.SaveSetting(kTituloAplicacion, kSeccion, kClaveNumero, std::to_string(n));
    for (int i = 1; i <= n; ++i) {
        ajustes.SaveSetting(kTituloAplicacion, kSeccion, ClaveArchivo(i), entradas[i]);
    }
}

std::vector<EntradaReciente> ActualizarRecientes(
        SettingsStore& ajustes, const std::function<bool(const std::string&)>& existe) {
    std::vector<EntradaReciente> menu;
    const int n = LeerNumero(ajustes);
    for (int i = 1; i <= n; ++i) {
        const std::string s = LeerEntrada(ajustes, i);
        if (s.empty() || !existe(s)) {
            continue;
        }
        const std::string numero = std::to_string(menu.size() + 1);
        menu.push_back({"&" + numero + ". " + AcortarRuta(s), s});
    }
    return menu;
}

std::string AcortarRuta(const std::string& ruta) {
    const std::u32string c = Caracteres(ruta);
    if (c.size() <= kLargoMaximo) {
        return ruta;
    }
    const size_t raiz = LargoRaiz(c);
    const auto primera =
            std::find_if(c.begin() + static_cast<std::ptrdiff_t>(raiz), c.end(), EsSeparador);
    const size_t finPrefijo =
            primera == c.end() ? raiz : static_cast<size_t>(primera - c.begin()) + 1;
    const auto ultima = std::find_if(c.rbegin(), c.rend(), EsSeparador);
    const size_t inicioCola =
            ultima == c.rend() ? c.size() : static_cast<size_t>(c.rend() - ultima) - 1;
    std::u32string t = c.substr(0, finPrefijo) + U"..." + c.substr(inicioCola);
    if (t.size() > kLargoMaximo) {
        t = t.substr(t.size() - kLargoMaximo);
    }
    return Utf8(t);
}

}  // namespace kelvora
