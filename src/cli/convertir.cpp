#include "cli/convertir.h"

#include "core/runtime/localechars.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/units/catalogo.h"
#include "core/units/unidades.h"

#include <CLI/CLI.hpp>
#include <array>
#include <charconv>
#include <cmath>
#include <iostream>
#include <optional>

namespace kelvora::cli {

namespace {

// The whole argument as a number, with a point or a comma as the decimal mark, whatever the
// locale, so that a script gets the same answer everywhere.
std::optional<double> LeerValor(std::string texto) {
    std::string limpio = NormalizarDecimal(texto);
    if (!limpio.empty() && limpio.front() == '+') {
        limpio.erase(0, 1);
    }
    double valor = 0;
    const char* fin = limpio.data() + limpio.size();
    const auto [resto, error] = std::from_chars(limpio.data(), fin, valor);
    if (limpio.empty() || error != std::errc() || resto != fin || !std::isfinite(valor)) {
        return std::nullopt;
    }
    return valor;
}

// The default text with the point as decimal mark, for scripts that read it back.
std::string TextoConPunto(double valor) {
    const std::string texto = TextoNumero(valor);
    const std::string& decimal = LocaleActual().decimal;
    const size_t pos = decimal == "." ? std::string::npos : texto.find(decimal);
    if (pos == std::string::npos) {
        return texto;
    }
    return texto.substr(0, pos) + "." + texto.substr(pos + decimal.size());
}

void ListarFamilias() {
    for (const FamiliaCatalogo& familia : CatalogoUnidades()) {
        std::cout << familia.nombre << '\n';
    }
}

int ListarUnidades(const std::string& familia) {
    const classUnidades unidades;
    const std::vector<std::string> simbolos = unidades.getUnits(familia);
    if (simbolos.empty()) {
        std::cerr << "Familia de unidades desconocida: " << familia << '\n';
        return kSalidaUso;
    }
    for (const std::string& simbolo : simbolos) {
        std::cout << simbolo << '\t' << unidades.getNameUnit(simbolo) << '\n';
    }
    return kSalidaBien;
}

int Convertir(const std::string& texto, const std::string& desde, const std::string& hasta) {
    const std::optional<double> valor = LeerValor(texto);
    if (!valor) {
        std::cerr << "El valor no es un número: " << texto << '\n';
        return kSalidaUso;
    }
    try {
        const double resultado = classUnidades().Convert(*valor, desde, hasta);
        std::cout << TextoConPunto(resultado) << '\n';
        return kSalidaBien;
    } catch (const RuntimeError& error) {
        std::cerr << "Error " << error.number << ": " << error.description << '\n';
        return kSalidaDetenido;
    }
}

}  // namespace

Ejecucion DeclararConvertir(CLI::App& comando) {
    auto argumentos = std::make_shared<std::array<std::string, 3>>();
    comando.add_option("VALOR", (*argumentos)[0], "El valor, con punto o coma decimal.")
            ->required();
    comando.add_option("DESDE", (*argumentos)[1], "Símbolo de la unidad del valor (p. ej. °F).")
            ->required();
    comando.add_option("HASTA", (*argumentos)[2], "Símbolo de la unidad pedida (p. ej. °C).")
            ->required();
    return [argumentos] {
        const auto& [valor, desde, hasta] = *argumentos;
        return Convertir(valor, desde, hasta);
    };
}

Ejecucion DeclararUnidades(CLI::App& comando) {
    auto familia = std::make_shared<std::string>();
    const CLI::Option* dada = comando.add_option(
            "FAMILIA", *familia, "Una familia de unidades; sin ella, la lista de las familias.");
    return [familia, dada] {
        if (dada->count() == 0) {
            ListarFamilias();
            return kSalidaBien;
        }
        return ListarUnidades(*familia);
    };
}

}  // namespace kelvora::cli
