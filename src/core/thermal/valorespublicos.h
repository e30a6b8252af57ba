#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <variant>
#include <vector>

namespace kelvora {

/// A public value of a window: a text, a number or a flag.
using ValorPublico = std::variant<std::string, double, bool>;

/// The named public values of a window, in a fixed order, so that a listing can show them all.
class ValoresPublicos {
public:
    using Entrada = std::pair<std::string, ValorPublico>;

    /// Sets the value of a name, appending the name when it is new.
    void Establecer(std::string_view nombre, ValorPublico valor);

    bool Existe(std::string_view nombre) const;
    /// The value of a name; an unknown name reads as the empty text, 0 or False.
    std::string Texto(std::string_view nombre) const;
    double Numero(std::string_view nombre) const;
    bool Booleano(std::string_view nombre) const;

    const std::vector<Entrada>& Todos() const { return mValores; }

private:
    const ValorPublico* Buscar(std::string_view nombre) const;

    std::vector<Entrada> mValores;
};

}  // namespace kelvora
