#pragma once

#include <cstdint>
#include <string>
#include <utility>
#include <variant>

namespace kelvora {

/// The value of one field of a row: NULL, an integer, a float or a text.
class ValorCampo {
public:
    ValorCampo() = default;
    explicit ValorCampo(int64_t entero) : mValor(entero) {}
    explicit ValorCampo(double real) : mValor(real) {}
    explicit ValorCampo(std::string texto) : mValor(std::move(texto)) {}

    bool EsNulo() const;
    /// The field + 0: a number as a float, a text through CDbl; a NULL raises error 94.
    double Numero() const;
    /// "" + the field: a NULL reads as "", a number as its default text.
    std::string Texto() const;

private:
    std::variant<std::monostate, int64_t, double, std::string> mValor;
};

}  // namespace kelvora
