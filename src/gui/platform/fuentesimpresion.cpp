#include "gui/platform/fuentesimpresion.h"

#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"

#include <QFontDatabase>

#include <algorithm>
#include <cmath>
#include <map>
#include <string>

namespace kelvora {

namespace {

constexpr double kMmPorPunto = 25.4 / 72.0;

struct Sustituta {
    const char* nombre;
    const char* familia;
};

// clang-format off
constexpr Sustituta kSustitutas[] = {
    {"Courier New",     "Liberation Mono"},
    {"Arial",           "Liberation Sans"},
    {"Times New Roman", "Liberation Serif"},
};
// clang-format on

QString FamiliaDe(const std::string& nombre) {
    for (const Sustituta& s : kSustitutas) {
        if (IgualTexto(nombre, s.nombre)) {
            return QString::fromUtf8(s.familia);
        }
    }
    return QString::fromStdString(nombre);
}

std::string MensajeFaltante(const std::string& nombre, const QString& familia) {
    std::string texto = "La fuente \"" + nombre + "\" no está instalada";
    if (familia != QString::fromStdString(nombre)) {
        texto += " (se dibuja con \"" + familia.toStdString() + "\")";
    }
    return texto + ". Elija otra fuente en Configurar página.";
}

// Looking a family up in the font database is slow: each answer is kept.
bool Instalada(const QString& familia) {
    static std::map<QString, bool> instaladas;
    const auto it = instaladas.find(familia);
    if (it != instaladas.end()) {
        return it->second;
    }
    return instaladas[familia] = QFontDatabase::hasFamily(familia);
}

}  // namespace

QFont FuenteImpresion(const Fuente& fuente) {
    const QString familia = FamiliaDe(fuente.nombre);
    if (!Instalada(familia)) {
        throw RuntimeError(errores::LlamadaNoValida, MensajeFaltante(fuente.nombre, familia));
    }
    QFont qfuente(familia);
    qfuente.setPixelSize(std::max(
            1, static_cast<int>(std::lround(fuente.tamano * kMmPorPunto * kUnidadesPorMm))));
    qfuente.setBold(fuente.negrita);
    qfuente.setItalic(fuente.cursiva);
    qfuente.setHintingPreference(QFont::PreferNoHinting);
    return qfuente;
}

}  // namespace kelvora
