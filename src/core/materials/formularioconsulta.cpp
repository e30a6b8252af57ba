#include "core/materials/formularioconsulta.h"

#include "core/materials/sentencias.h"
#include "core/runtime/numeros.h"
#include "core/runtime/texto.h"

#include <utility>

namespace kelvora {

namespace {

const char* const kCampos[] = {"Codigo ", "UCASE(Descripcion) ", "Temperatura ", "Emisividad "};

const char* const kOperadores[] = {" = ", " <> ", " > ", " >= ", " < ", " <= ", " BETWEEN "};

// Per word relation: how the condition opens, joins two words and closes.
struct UnionPalabras {
    const char* inicio;
    const char* union_;
};

// clang-format off
const UnionPalabras kUniones[] = {
    {" LIKE '%",     "%' AND UCASE(Descripcion) LIKE '%"},
    {nullptr,        nullptr},
    {" LIKE '%",     "%' OR UCASE(Descripcion) LIKE '%"},
    {" NOT LIKE '%", "%' AND UCASE(Descripcion) NOT LIKE '%"},
};
// clang-format on

const std::vector<std::string>& RelacionesNumericas() {
    static const std::vector<std::string> relaciones = {
            "Igual a",   "Distinto de",     "Mayor que", "Mayor o igual a",
            "Menor que", "Menor o igual a", "Rango"};
    return relaciones;
}

const std::vector<std::string>& RelacionesPalabras() {
    static const std::vector<std::string> relaciones = {"Todas las palabras", "La frase exacta",
                                                        "Cualquiera de las palabras",
                                                        "Ninguna de estas palabras"};
    return relaciones;
}

// Split at every blank: two blanks in a row leave an empty word.
std::vector<std::string> Dividir(const std::string& texto) {
    std::vector<std::string> partes(1);
    for (char c : texto) {
        if (c == ' ') {
            partes.emplace_back();
        } else {
            partes.back() += c;
        }
    }
    return partes;
}

std::string NumeroDe(const std::string& texto) {
    return NumeroSql(Val(texto));
}

}  // namespace

FormularioConsulta::FormularioConsulta() {
    cboTipoConsulta_Click(0);
}

const std::vector<std::string>& FormularioConsulta::TiposConsulta() {
    static const std::vector<std::string> tipos = {"1. Código", "2. Descripción", "3. Temperatura",
                                                   "4. Emisividad"};
    return tipos;
}

void FormularioConsulta::cboTipoConsulta_Click(int indice) {
    if (indice < 0 || indice >= static_cast<int>(TiposConsulta().size())) {
        return;
    }
    mTipoConsulta = indice;
    mRelacion = 0;
}

const std::vector<std::string>& FormularioConsulta::Relaciones() const {
    return Palabras() ? RelacionesPalabras() : RelacionesNumericas();
}

void FormularioConsulta::cboRelacion_Click(int indice) {
    if (indice < 0 || indice >= static_cast<int>(Relaciones().size())) {
        return;
    }
    mRelacion = indice;
}

const std::string& FormularioConsulta::Texto(int i) const {
    return mTextos[static_cast<size_t>(i - 1)];
}

void FormularioConsulta::SetTexto(int i, std::string texto) {
    mTextos[static_cast<size_t>(i - 1)] = std::move(texto);
}

bool FormularioConsulta::Visible(int i) const {
    switch (i) {
        case 1:
            return !Palabras();
        case 2:
            return !Palabras() && mRelacion == kRelacionRango;
        default:
            return Palabras();
    }
}

bool FormularioConsulta::ConsultarHabilitado() const {
    if (Visible(3) && Trim(Texto(3)).empty()) {
        return false;
    }
    for (int i : {1, 2}) {
        if (Visible(i) && !IsNumeric(Texto(i))) {
            return false;
        }
    }
    return true;
}

std::string FormularioConsulta::ConstruirSentencia() {
    OrdenarRango();
    const std::string condicion = std::string(kCampos[mTipoConsulta]) +
                                  (Palabras() ? CondicionPalabras() : CondicionNumero());
    return SqlConsultaUsuario(condicion);
}

void FormularioConsulta::OrdenarRango() {
    if (Visible(2) && Val(Texto(2)) < Val(Texto(1))) {
        std::swap(mTextos[0], mTextos[1]);
    }
}

std::string FormularioConsulta::CondicionPalabras() const {
    std::string texto = UCase(Trim(Texto(3)));
    if (texto.empty()) {
        texto = "%";
    }
    const UnionPalabras& union_ = kUniones[mRelacion];
    if (union_.inicio == nullptr) {
        return " = '" + texto + "'";
    }
    const std::vector<std::string> palabras = Dividir(texto);
    std::string condicion = union_.inicio + palabras.front();
    for (size_t i = 1; i < palabras.size(); ++i) {
        condicion += union_.union_ + palabras[i];
    }
    return condicion + "%' ";
}

std::string FormularioConsulta::CondicionNumero() const {
    std::string condicion = kOperadores[mRelacion] + NumeroDe(Texto(1));
    if (mRelacion == kRelacionRango) {
        condicion += " AND " + NumeroDe(Texto(2));
    }
    return condicion;
}

}  // namespace kelvora
