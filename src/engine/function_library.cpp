#include "engine/function_library.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>
#include <string>

#include "base/language.h"
#include "base/number_text.h"
#include "engine/compiler.h"

namespace zel {
namespace {

constexpr double kLargestFactorial = 170;

Outcome syntaxError() { return Outcome::error(Localize("Error de sintaxis.")); }

Outcome functionError(std::string_view name, std::string_view detail) {
  return Outcome::error(Localize("Error en Función") + " '" + std::string(name) + "'\r\n" +
                        Localize("Detalle") + ": " + Localize(detail));
}

Outcome divisorError(char op) {
  return Outcome::error(std::string("Error: Operador ") + op + ": " +
                        Localize("El denominador debe ser distinto de cero."));
}

/// e^LnGamma(v) with the 15-digit e.
Outcome gamma(double v) {
  const auto logarithm = LnGamma(v);
  if (!logarithm)
    return Outcome::error(Localize("La función LnGamma no existe para el valor solicitado."));
  return Outcome::of(std::pow(kEuler, *logarithm));
}

Outcome lnGamma(double v) {
  const auto logarithm = LnGamma(v);
  if (!logarithm)
    return Outcome::error(Localize("La función LnGamma no existe para el valor solicitado."));
  return Outcome::of(*logarithm);
}

Outcome sign(double v) { return Outcome::of(v > 0 ? 1 : v < 0 ? -1 : 0); }

/// Degrees to radians before the function, also before the arc tangent, whose argument is no angle:
/// this is meant. Scaling a huge argument can overflow.
template <class Function>
Outcome ofDegrees(double v, Function function) {
  const double scaled = v * kPi;
  return std::isfinite(scaled) ? Outcome::of(function(scaled / 180)) : Outcome::fault();
}

bool takesLogarithm(std::int32_t code) { return code == 4 || code == 5; }
bool takesRoot(std::int32_t code) { return code == 7 || code == 8 || code == 15 || code == 17; }

Outcome computePrefixFunction(std::int32_t code, double v) {
  switch (code) {
    case 0: return lnGamma(v);
    case 1: return gamma(v);
    case 2: return Outcome::of(std::fabs(v));
    case 3:
    case 16: return sign(v);
    case 4: return Outcome::of(std::log(v));
    case 5: return Outcome::of(std::log10(v));
    case 6: return Outcome::of(std::exp(v));
    case 7:
    case 15: return Outcome::of(std::sqrt(v));
    case 8:
    case 17: return Outcome::of(std::pow(v, 1.0 / 3.0));
    case 9: return v == 0 ? Outcome::fault() : Outcome::of(1 / v);
    case 10:
    case 14: return ofDegrees(v, [](double radians) { return std::sin(radians); });
    case 11: return ofDegrees(v, [](double radians) { return std::cos(radians); });
    case 12: return ofDegrees(v, [](double radians) { return std::tan(radians); });
    default: return ofDegrees(v, [](double radians) { return std::atan(radians); });
  }
}

Outcome applyPrefixFunction(double function, double v) {
  const auto code = roundToInt32(function);
  if (!code) return Outcome::fault();
  if (*code < 0 || *code >= static_cast<std::int32_t>(PrefixFunctions.size())) return syntaxError();
  const std::string_view name = PrefixFunctions[static_cast<std::size_t>(*code)];
  if (takesLogarithm(*code) && !(v > 0))
    return functionError(name, "El logaritmando debe ser numérico y mayor que cero.");
  if (takesRoot(*code) && v < 0)
    return functionError(name, "El valor debe ser numérico y mayor o igual que cero.");
  return computePrefixFunction(*code, v);
}

Outcome factorial(double v) {
  if (v != std::nearbyint(v)) return gamma(v + 1);
  if (v == 0) return Outcome::of(1);
  double product = v;
  for (double i = 1; i <= v - 1; ++i) product *= v - i;
  return Outcome::of(product);
}

Outcome applyPostfixFunction(double v, double code) {
  if (code != 0) return syntaxError();
  if (v < 0) return functionError(PostfixFunctions[0], "El valor debe ser numérico y positivo.");
  if (v > kLargestFactorial)
    return functionError(PostfixFunctions[0], "El resultado es demasiado grande.");
  return factorial(v);
}

/// Both values are rounded first, so a divisor that rounds to 0 is a fault and not the error of a
/// divisor that is 0: this is meant.
Outcome divideIntegers(double left, double right) {
  const auto dividend = roundToInt32(left);
  const auto divisor = roundToInt32(right);
  if (!dividend || !divisor || *divisor == 0) return Outcome::fault();
  if (*dividend == std::numeric_limits<std::int32_t>::min() && *divisor == -1)
    return Outcome::fault();
  return Outcome::of(*dividend / *divisor);
}

}  // namespace

std::optional<double> LnGamma(double v) {
  constexpr std::array<double, 6> kCoefficients = {76.1800917294715,    -86.5053203294168,
                                                   24.0140982408309,    -1.23173957245015,
                                                   0.00120865097386618, -5.395239384953E-06};
  double tmp = v + 5.5;
  if (!(tmp > 0)) return std::nullopt;
  tmp -= (v + 0.5) * std::log(tmp);
  double ser = 1.00000000019001;
  double y = v;
  for (const double coefficient : kCoefficients) {
    y += 1;
    if (y == 0) return std::nullopt;
    ser += coefficient / y;
  }
  if (v == 0) return std::nullopt;
  const double argument = 2.506628274631 * ser / v;
  if (!(argument > 0)) return std::nullopt;
  const double result = std::log(argument) - tmp;
  if (!std::isfinite(result)) return std::nullopt;
  return result;
}

Outcome ApplyOperator(double left, double right, char op) {
  switch (op) {
    case '+': return Outcome::of(left + right);
    case '-': return Outcome::of(left - right);
    case '*': return Outcome::of(left * right);
    case '/': return right == 0 ? divisorError(op) : Outcome::of(left / right);
    case '\\': return right == 0 ? divisorError(op) : divideIntegers(left, right);
    case '^': return Outcome::of(std::pow(left, right));
    case '@': return applyPrefixFunction(left, right);
    default: return applyPostfixFunction(left, right);
  }
}

double FlooredModulo(double a, double b) { return a - std::floor(a / b) * b; }

}  // namespace zel
