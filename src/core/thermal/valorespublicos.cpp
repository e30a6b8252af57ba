#include "core/thermal/valorespublicos.h"

namespace kelvora {

void ValoresPublicos::Establecer(std::string_view nombre, ValorPublico valor) {
    for (Entrada& entrada : mValores) {
        if (entrada.first == nombre) {
            entrada.second = std::move(valor);
            return;
        }
    }
    mValores.emplace_back(std::string(nombre), std::move(valor));
}

bool ValoresPublicos::Existe(std::string_view nombre) const {
    return Buscar(nombre) != nullptr;
}

std::string ValoresPublicos::Texto(std::string_view nombre) const {
    const ValorPublico* valor = Buscar(nombre);
    const auto* texto = valor == nullptr ? nullptr : std::get_if<std::string>(valor);
    return texto == nullptr ? std::string() : *texto;
}

double ValoresPublicos::Numero(std::string_view nombre) const {
    const ValorPublico* valor = Buscar(nombre);
    const auto* numero = valor == nullptr ? nullptr : std::get_if<double>(valor);
    return numero == nullptr ? 0 : *numero;
}

bool ValoresPublicos::Booleano(std::string_view nombre) const {
    const ValorPublico* valor = Buscar(nombre);
    const auto* bandera = valor == nullptr ? nullptr : std::get_if<bool>(valor);
    return bandera != nullptr && *bandera;
}

const ValorPublico* ValoresPublicos::Buscar(std::string_view nombre) const {
    for (const Entrada& entrada : mValores) {
        if (entrada.first == nombre) {
            return &entrada.second;
        }
    }
    return nullptr;
}

}  // namespace kelvora
