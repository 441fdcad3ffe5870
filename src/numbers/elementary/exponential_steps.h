#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "numbers/elementary/double_double.h"
#include "numbers/rounding_steps.h"

/// The first stage of e^x, which power takes too: x is a whole number of steps of ln(2)/128 and a
/// rest of at most half a step; 2^(i/128) comes from a table and the rest goes into a polynomial
/// (Tang 1989). docs/numbers.md derives the bounds.
namespace zel {

inline constexpr DoubleDouble kLn2 = {0x1.62e42fefa39efp-1, 0x1.abc9e3b39803fp-56};

inline constexpr std::size_t kPowersOfTwo = 128;

/// 2^(i/128): high at 2i, low at 2i + 1.
inline constexpr auto kPowersOfTwoTable = [] {
  const DoubleDouble step = {kLn2.high / kPowersOfTwo, kLn2.low / kPowersOfTwo};
  DoubleDouble root = {1, 0};
  for (int n = 18; n > 0; --n)
    root = DoubleDouble{1, 0} + multiply(multiply(step, root), reciprocal(n));
  std::array<double, 2 * kPowersOfTwo> table{};
  DoubleDouble power = {1, 0};
  for (std::size_t i = 0; i < kPowersOfTwo; ++i) {
    table[2 * i] = power.high;
    table[2 * i + 1] = power.low;
    power = multiply(power, root);
  }
  return table;
}();

/// (high + low) * scale, where scale is a power of two.
struct ScaledExponential {
  double high;
  double low;
  double scale;
};

/// Beyond, the power of two is none of a normal number.
inline constexpr double kLargestExponent = 708;
/// How far high + low may be from the exact exponential, relative to it.
inline constexpr double kExponentialError = 0x1p-68;

/// e^(high + low), for |high| <= kLargestExponent and |low| <= 2^-43.
template <class Arithmetic>
ZEL_ALWAYS_INLINE ScaledExponential exponentialOf(double high, double low) {
  constexpr double kStepsPerUnit = kPowersOfTwo / kLn2.high;
  constexpr double kStepHigh = 0x1.62e42fefp-1 / kPowersOfTwo;  // times a number of steps: exact
  constexpr double kStepLow = 0x1.473de6af278edp-34 / kPowersOfTwo;
  const double shifted = multiplyAdd<Arithmetic>(high, kStepsPerUnit, kWholeNumbers);
  const double steps = shifted - kWholeNumbers;
  const auto bits = std::bit_cast<std::uint64_t>(shifted);
  const std::size_t i = 2 * (bits % kPowersOfTwo);
  // Where the second is the larger one it is so small that what is lost does not matter.
  const DoubleDouble rest = sumOfOrdered(multiplyAdd<Arithmetic>(-steps, kStepHigh, high),
                                         multiplyAdd<Arithmetic>(-steps, kStepLow, low));
  const double r = rest.high;
  const double beyond_r = multiplyAdd<Arithmetic>(
      r * r, polynomial<Arithmetic>(r, 1.0 / 2, 1.0 / 6, 1.0 / 24, 1.0 / 120, 1.0 / 720),
      multiplyAdd<Arithmetic>(rest.low, r, rest.low));
  const double power = kPowersOfTwoTable[i];
  const DoubleDouble product = exactProduct<Arithmetic>(power, r);
  const DoubleDouble sum = sumOfOrdered(power, product.high);
  const double power_low = multiplyAdd<Arithmetic>(kPowersOfTwoTable[i + 1], 1 + r, product.low);
  const auto scale = std::bit_cast<double>(((bits / kPowersOfTwo) + 1023) << 52);
  return {sum.high, sum.low + multiplyAdd<Arithmetic>(power, beyond_r, power_low), scale};
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate exponentialCandidate(double x) {
  const ScaledExponential result = exponentialOf<Arithmetic>(x, 0);
  const Candidate unscaled =
      rounded<Arithmetic>(result.high, result.low, result.high, kExponentialError);
  return Candidate{unscaled.value * result.scale, unscaled.other * result.scale}.sureOnlyIf(
      std::fabs(x) <= kLargestExponent);
}

}  // namespace zel
