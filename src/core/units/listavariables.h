#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace kelvora {

/// A named quantity: its value in the unit of `Unit`; an empty unit for a pure number.
struct Variable {
    std::string Name;
    double Value = 0;
    std::string Unit;
};

/// Named quantities in order of insertion. Names need not be unique; every lookup takes the
/// first record whose name matches without regard to case.
class ListaVariables {
public:
    /// Appends a record; error 6 when the count would pass 32,767.
    void Agregar(const Variable& variable);
    /// Removes the first match, keeping the order of the others; nothing when none matches.
    void Quitar(const std::string& nombre);
    /// The first match, or nullptr.
    Variable* Buscar(const std::string& nombre);
    const Variable* Buscar(const std::string& nombre) const;
    void Vaciar();
    int16_t Cuenta() const;
    /// A copy of the record at a 1-based index; error 9 outside 1..count.
    Variable Registro(int16_t indice) const;

private:
    std::vector<Variable> mVariables;
};

}  // namespace kelvora
