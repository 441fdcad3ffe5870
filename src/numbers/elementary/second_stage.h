#pragma once

#include "numbers/elementary/functions.h"

/// The elementary functions where the first stage leaves them in doubt, and everywhere else.
namespace zel {

/// The nearest double to the exact value by the arithmetic of 256 bits alone, for finite arguments
/// at which the function has a finite value other than 0.
double wideValue(Elementary function, double x);
/// |x|^y likewise, for a finite x other than 0 and a finite y.
double widePower(double x, double y);

/// The nearest double to the value of the function at any x, as std::sin and its kin have it: NaN
/// where there is no value, an infinity at a pole and beyond the largest number.
double settle(Elementary function, double x);
/// The same of x^y, with the special cases of std::pow.
double settlePower(double x, double y);

}  // namespace zel
