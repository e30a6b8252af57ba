#include "core/materials/valorcampo.h"

#include "core/materials/errorbd.h"
#include "core/runtime/numeros.h"

namespace kelvora {

bool ValorCampo::EsNulo() const {
    return std::holds_alternative<std::monostate>(mValor);
}

double ValorCampo::Numero() const {
    if (const auto* entero = std::get_if<int64_t>(&mValor)) {
        return static_cast<double>(*entero);
    }
    if (const auto* real = std::get_if<double>(&mValor)) {
        return *real;
    }
    if (const auto* texto = std::get_if<std::string>(&mValor)) {
        return CDbl(*texto);
    }
    throw ErrorUsoNull();
}

std::string ValorCampo::Texto() const {
    if (const auto* texto = std::get_if<std::string>(&mValor)) {
        return *texto;
    }
    return EsNulo() ? std::string() : TextoNumero(Numero());
}

}  // namespace kelvora
