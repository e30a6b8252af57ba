#pragma once

#include "core/units/listavariables.h"

#include <cstdint>
#include <string>
#include <vector>

namespace kelvora {

namespace errores {
inline constexpr int SinConversion = 1001;
inline constexpr int UnidadDesconocida = 1003;
}  // namespace errores

/// The unit catalogue with its conversions, and a list of named quantities. The unit
/// operations hold no state and may be called on any instance. Symbols, families and names
/// compare without regard to case.
class classUnidades {
public:
    /// True when the unit is in the list of the family, or of all units for an empty family.
    /// Those lists hold "ac" for "acre" (all units) and "pies" for "pie" ("Longitud").
    bool ExistUnit(const std::string& Unit, const std::string& Type) const;
    /// The families of the converter's list, "Personalizar..." last; "Moneda" is not there.
    std::vector<std::string> getTypeUnits() const;
    /// The family's units in catalogue order; empty for a name that is no family.
    std::vector<std::string> getUnits(const std::string& Type) const;
    /// The 1-based place of the unit in its family, either spelling; 0 when unknown.
    int16_t getIndexUnit(const std::string& Unit) const;
    /// The display name of the unit, either spelling; empty when unknown.
    std::string getNameUnit(const std::string& Unit) const;
    /// The value converted by the formula of the ordered pair; equal symbols return it
    /// unchanged. Error 1001 when the pair has none, 6 and 11 from the arithmetic.
    double Convert(double valor, const std::string& desde, const std::string& hasta) const;

    /// Appends a record, duplicates and unknown units included.
    void AddVariable(const std::string& Name, double Value, const std::string& Unit);
    /// Removes the first match; nothing when none matches.
    void RemoveVariable(const std::string& Name);
    /// Sets value and unit of the first match; appends when none matches.
    void ModifyVariable(const std::string& Name, double Value, const std::string& Unit);
    /// The first match's unit; empty when none matches.
    std::string getUnitVariable(const std::string& Name) const;
    /// The first match's value; 0 when none matches.
    double getValueVariable(const std::string& Name) const;
    /// Sets the unit of the first match, or appends it with value 0. Error 1003, and the list
    /// unchanged, when the unit is unknown to ExistUnit with an empty family.
    void setUnitVariable(const std::string& Name, const std::string& Unit);
    /// Sets the value of the first match, or appends it with an empty unit.
    void setValueVariable(const std::string& Name, double Value);
    void ResetVariables();
    bool ExistVariable(const std::string& Name) const;
    int16_t Count() const;
    /// Replaces the list by a copy of the other's, in order. Copying onto itself empties it.
    void setVariables(const classUnidades& otras);
    /// "$", "US$" or "€" for the currency's name; empty otherwise.
    std::string getUnitCurrency(const std::string& Name) const;

    /// A copy of the record at a 1-based index; error 9 outside 1..Count.
    Variable getVariableRec(int16_t indice) const;
    void addVariableRec(const Variable& variable);

private:
    ListaVariables mVariables;
};

}  // namespace kelvora
