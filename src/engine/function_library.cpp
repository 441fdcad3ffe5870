// What each operator and function gives for two numbers. A computation ends in a value, in an error
// that has a message, or in a fault, which is whatever leaves the range of a double. The arguments
// are checked in the order in which their messages come first.

#include "engine/function_library.h"

#include <array>
#include <cmath>
#include <cstdint>
#include <limits>

#include "base/language.h"
#include "engine/compiler.h"
#include "engine/gamma_steps.h"
#include "numbers/elementary/elementary.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

constexpr Computed failed(Failure failure) { return {0, failure}; }

/// A value that is no finite number is a fault.
Computed finite(double value) {
  return std::isfinite(value) ? Computed{value, Failure::none} : failed(Failure::fault);
}

/// e^LnGamma(v) with the 15-digit e.
Computed gamma(double v) {
  const auto logarithm = LnGamma(v);
  return logarithm ? finite(power(kEuler, *logarithm)) : failed(Failure::no_ln_gamma);
}

Computed lnGamma(double v) {
  const auto logarithm = LnGamma(v);
  return logarithm ? finite(*logarithm) : failed(Failure::no_ln_gamma);
}

Computed sign(double v) { return finite(v > 0 ? 1 : v < 0 ? -1 : 0); }

/// Degrees to radians before the function, also before the arc tangent, whose argument is no angle:
/// this is meant. Scaling a huge argument can overflow.
template <class Function>
Computed ofDegrees(double v, Function function) {
  const double scaled = v * kPi;
  return std::isfinite(scaled) ? finite(function(scaled / 180)) : failed(Failure::fault);
}

bool takesLogarithm(std::int32_t code) { return code == 4 || code == 5; }
bool takesRoot(std::int32_t code) { return code == 7 || code == 8 || code == 15 || code == 17; }

Computed computePrefixFunction(std::int32_t code, double v) {
  switch (code) {
    case 0: return lnGamma(v);
    case 1: return gamma(v);
    case 2: return finite(std::fabs(v));
    case 3:
    case 16: return sign(v);
    case 4: return finite(naturalLogarithm(v));
    case 5: return finite(decimalLogarithm(v));
    case 6: return finite(exponential(v));
    case 7:
    case 15: return finite(std::sqrt(v));
    case 8:
    case 17: return finite(power(v, 1.0 / 3.0));
    case 9: return v == 0 ? failed(Failure::fault) : finite(1 / v);
    case 10:
    case 14: return ofDegrees(v, sine);
    case 11: return ofDegrees(v, cosine);
    case 12: return ofDegrees(v, tangent);
    default: return ofDegrees(v, arcTangent);
  }
}

Computed applyPrefixFunction(double function, double v) {
  const auto code = roundToInt32(function);
  if (!code) return failed(Failure::fault);
  if (*code < 0 || *code >= static_cast<std::int32_t>(PrefixFunctions.size()))
    return failed(Failure::syntax);
  if (takesLogarithm(*code) && !(v > 0)) return failed(Failure::logarithm_of_negative);
  if (takesRoot(*code) && v < 0) return failed(Failure::root_of_negative);
  return computePrefixFunction(*code, v);
}

Computed factorial(double v) {
  if (v != std::nearbyint(v)) return gamma(v + 1);
  if (v == 0) return finite(1);
  double product = v;
  for (int i = 1; i <= v - 1; ++i) product *= v - i;
  return finite(product);
}

Computed applyPostfixFunction(double v, double code) {
  if (code != 0) return failed(Failure::syntax);
  if (v < 0) return failed(Failure::factorial_of_negative);
  if (v > kLargestFactorial) return failed(Failure::factorial_too_large);
  return factorial(v);
}

/// Both values are rounded first, so a divisor that rounds to 0 is a fault and not the error of a
/// divisor that is 0: this is meant.
Computed divideIntegers(double left, double right) {
  const auto dividend = roundToInt32(left);
  const auto divisor = roundToInt32(right);
  if (!dividend || !divisor || *divisor == 0) return failed(Failure::fault);
  if (*dividend == std::numeric_limits<std::int32_t>::min() && *divisor == -1)
    return failed(Failure::fault);
  const std::int32_t quotient = *dividend / *divisor;
  return finite(quotient);
}

/// The name of the function that "@" or "#" applied.
std::string_view functionName(double left, char op) {
  if (op == '#') return PostfixFunctions[0];
  return PrefixFunctions[static_cast<std::size_t>(roundToInt32(left).value_or(0))];
}

std::string_view detail(Failure failure) {
  switch (failure) {
    case Failure::logarithm_of_negative:
      return "El logaritmando debe ser numérico y mayor que cero.";
    case Failure::root_of_negative: return "El valor debe ser numérico y mayor o igual que cero.";
    case Failure::factorial_of_negative: return "El valor debe ser numérico y positivo.";
    default: return "El resultado es demasiado grande.";
  }
}

}  // namespace

std::optional<double> LnGamma(double v) {
  const GammaSeries series = gammaSeries(v, naturalLogarithm(v + 5.5));
  if (!(series.argument > 0)) return std::nullopt;
  const double result = naturalLogarithm(series.argument) - series.rest;
  if (!std::isfinite(result)) return std::nullopt;
  return result;
}

Computed ComputeOperator(double left, double right, char op) {
  switch (op) {
    case '+': return finite(left + right);
    case '-': return finite(left - right);
    case '*': return finite(left * right);
    case '/': return right == 0 ? failed(Failure::zero_divisor) : finite(left / right);
    case '\\': return right == 0 ? failed(Failure::zero_divisor) : divideIntegers(left, right);
    case '^': return finite(power(left, right));
    case '@': return applyPrefixFunction(left, right);
    default: return applyPostfixFunction(left, right);
  }
}

std::string FailureMessage(Failure failure, double left, char op) {
  switch (failure) {
    case Failure::syntax: return Localize("Error de sintaxis.");
    case Failure::no_ln_gamma:
      return Localize("La función LnGamma no existe para el valor solicitado.");
    case Failure::zero_divisor:
      return std::string("Error: Operador ") + op + ": " +
             Localize("El denominador debe ser distinto de cero.");
    default:
      return Localize("Error en Función") + " '" + std::string(functionName(left, op)) + "'\r\n" +
             Localize("Detalle") + ": " + Localize(detail(failure));
  }
}

Outcome ApplyOperator(double left, double right, char op) {
  const Computed computed = ComputeOperator(left, right, op);
  if (computed.failure == Failure::none) return Outcome::of(computed.value);
  if (computed.failure == Failure::fault) return Outcome::fault();
  return Outcome::error(FailureMessage(computed.failure, left, op));
}

double FlooredModulo(double a, double b) { return a - std::floor(a / b) * b; }

}  // namespace zel
