#pragma once

#include <stdexcept>
#include <string>

namespace kelvora {

/// The one error type of the program: a run-time error with its number and description.
class RuntimeError : public std::runtime_error {
public:
    RuntimeError(int numero, std::string descripcion);

    /// An error of the runtime itself (5, 6, 11, 13), with its Spanish description.
    static RuntimeError DelRuntime(int numero);

    int number;
    std::string description;
};

namespace errores {
inline constexpr int LlamadaNoValida = 5;
inline constexpr int Desbordamiento = 6;
inline constexpr int DivisionPorCero = 11;
inline constexpr int TiposNoCoinciden = 13;
}  // namespace errores

}  // namespace kelvora
