#include "cli/convertir.h"

#include "core/runtime/localechars.h"
#include "core/runtime/numeros.h"
#include "core/runtime/runtimeerror.h"
#include "core/runtime/texto.h"
#include "core/units/catalogo.h"
#include "core/units/unidades.h"

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

int Uso(const char* uso) {
    std::cerr << "Uso: kelvora-cli " << uso << '\n';
    return kSalidaUso;
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

}  // namespace

int ComandoConvertir(const Argumentos& argumentos) {
    if (argumentos.size() != 3) {
        return Uso("convertir VALOR DESDE HASTA");
    }
    const std::optional<double> valor = LeerValor(argumentos[0]);
    if (!valor) {
        std::cerr << "El valor no es un número: " << argumentos[0] << '\n';
        return kSalidaUso;
    }
    try {
        const double resultado = classUnidades().Convert(*valor, argumentos[1], argumentos[2]);
        std::cout << TextoConPunto(resultado) << '\n';
        return kSalidaBien;
    } catch (const RuntimeError& error) {
        std::cerr << "Error " << error.number << ": " << error.description << '\n';
        return kSalidaDetenido;
    }
}

int ComandoUnidades(const Argumentos& argumentos) {
    if (argumentos.size() > 1) {
        return Uso("unidades [FAMILIA]");
    }
    if (argumentos.empty()) {
        ListarFamilias();
        return kSalidaBien;
    }
    return ListarUnidades(argumentos[0]);
}

}  // namespace kelvora::cli
