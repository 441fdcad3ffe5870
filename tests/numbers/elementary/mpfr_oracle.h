#pragma once

#include <cstdint>
#include <span>

#include "numbers/elementary/functions.h"

namespace zel::test {

/// What MPFR says is the nearest double, subnormals and overflow included.
double nearestByMpfr(Elementary function, double x);
double nearestPowerByMpfr(double x, double y);

/// How far high + low is from the exact value, relative to it, in a precision of 400 bits; or the
/// sum of many parts.
double relativeErrorByMpfr(Elementary function, double x, DoubleDouble value);
double relativeErrorByMpfr(Elementary function, double x, std::span<const double> parts);

/// The same for 2^(i/n) and for the sine of i steps of a circle of n.
double relativeErrorOfPowerOfTwo(std::size_t i, std::size_t n, DoubleDouble value);
double relativeErrorOfSineOfSteps(std::size_t i, std::size_t n, DoubleDouble value);

/// 64 bits of 2^exponent * 2/pi, from that of 2^1 on.
std::uint64_t quarterTurnsOfPowerOfTwo(int exponent);

}  // namespace zel::test
