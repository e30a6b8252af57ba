#pragma once

namespace kelvora {

/// A calendar date.
struct Fecha {
    int anio = 1899;
    int mes = 12;
    int dia = 30;

    /// 0 Sunday ... 6 Saturday.
    int DiaSemana() const;
    bool operator==(const Fecha&) const = default;
};

}  // namespace kelvora
