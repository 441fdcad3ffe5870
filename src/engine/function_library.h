#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "engine/outcome.h"

/// The operators and functions, on finite doubles. An overflow, an invalid operation and an integer
/// out of range are faults; underflow is 0 and no fault.
namespace zel {

/// The constants have 15 digits on purpose: cos(90) is about 1,6E-15 because of it.
inline constexpr double kEuler = 2.71828182845905;
inline constexpr double kPi = 3.14159265358979;

/// From 171 on a factorial is too large.
inline constexpr double kLargestFactorial = 170;

/// The natural logarithm of the gamma function; nothing where an arithmetic fault stops the series.
std::optional<double> LnGamma(double v);

/// Why an operation has no value. Each but the fault has a message.
enum class Failure {
  none,
  fault,
  syntax,
  logarithm_of_negative,
  root_of_negative,
  factorial_of_negative,
  factorial_too_large,
  zero_divisor,
  no_ln_gamma,
};

/// The value of an operation, or why it has none.
struct Computed {
  double value = 0;
  Failure failure = Failure::none;
};

/// One of "+-\/*@^#" applied to two values. The function code of "@" is the left value, rounded;
/// that of "#" is the right value, as it stands.
Computed ComputeOperator(double left, double right, char op);

/// The message of an error of an operator with this left value, in the current language; a fault
/// has none.
std::string FailureMessage(Failure failure, double left, char op);

/// ComputeOperator with the message of an error.
Outcome ApplyOperator(double left, double right, char op);

/// a - Int(a / b) * b, where Int rounds down. b must not be 0.
double FlooredModulo(double a, double b);

}  // namespace zel
