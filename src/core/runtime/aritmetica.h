#pragma once

namespace kelvora {

/// Checked arithmetic with the runtime's errors: 11 division by zero, 6 overflow (and 0/0),
/// 5 invalid argument. No result is ever NaN or infinite.
double Dividir(double a, double b);
double Potencia(double base, double exponente);
double Exp(double x);
double Log(double x);
double Sqr(double x);
/// Raises error 6 when a result is not finite.
double Comprobar(double resultado);

}  // namespace kelvora
