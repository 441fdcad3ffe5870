#pragma once

#include <optional>
#include <string_view>

#include "engine/outcome.h"

/// The operators and functions, on finite doubles. An overflow, an invalid operation and an integer
/// out of range are faults; underflow is 0 and no fault.
namespace zel {

/// The constants have 15 digits on purpose: cos(90) is about 1,6E-15 because of it.
inline constexpr double kEuler = 2.71828182845905;
inline constexpr double kPi = 3.14159265358979;

/// The natural logarithm of the gamma function; nothing where an arithmetic fault stops the series.
std::optional<double> LnGamma(double v);

/// One of "+-\/*@^#" applied to two values. The function code of "@" is the left value, rounded;
/// that of "#" is the right value, as it stands.
Outcome ApplyOperator(double left, double right, char op);

/// a - Int(a / b) * b, where Int rounds down. b must not be 0.
double FlooredModulo(double a, double b);

}  // namespace zel
