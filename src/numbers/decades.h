#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>

/// Powers of ten for the rounding to 15 digits, made by the compiler.
namespace zel {

/// A number as the unevaluated sum of two doubles, good to about 100 bits.
struct DoubleDouble {
  double high = 0;
  double low = 0;
};

/// The exact product of two doubles far from overflow and underflow, without a fused multiply-add.
constexpr DoubleDouble multiplyExactly(double a, double b) {
  constexpr double kSplitter = 134217729;  // 2^27 + 1
  const double a_shifted = a * kSplitter;
  const double b_shifted = b * kSplitter;
  const double a_high = a_shifted - (a_shifted - a);
  const double b_high = b_shifted - (b_shifted - b);
  const double a_low = a - a_high;
  const double b_low = b - b_high;
  const double product = a * b;
  const double error =
      ((a_high * b_high - product) + a_high * b_low + a_low * b_high) + a_low * b_low;
  return {product, error};
}

constexpr DoubleDouble normalised(double high, double low) {
  const double sum = high + low;
  return {sum, low - (sum - high)};
}

constexpr DoubleDouble multiply(DoubleDouble a, DoubleDouble b) {
  const DoubleDouble product = multiplyExactly(a.high, b.high);
  return normalised(product.high, product.low + (a.high * b.low + a.low * b.high));
}

constexpr DoubleDouble reciprocal(DoubleDouble a) {
  const double first = 1 / a.high;
  const DoubleDouble product = multiply({first, 0}, a);
  const double rest = ((1 - product.high) - product.low) / a.high;
  return normalised(first, rest);
}

/// Of a whole number.
constexpr DoubleDouble reciprocal(int a) { return reciprocal({static_cast<double>(a), 0}); }

/// The values d,dd... x 10^exponent. Those from `low` to below `high` have 15 digits before the
/// point when they are multiplied by `scale` = 10^(14 - exponent).
struct Decade {
  double low = 0;
  double high = 0;
  double scale = 0;       // to the nearest double
  double scale_rest = 0;  // what is missing from it; 0 for 10^0 to 10^22
  double inverse = 0;     // 1 / scale, to the nearest double
  double drift = 0;       // what is missing from it, times the scale
};

/// The decades of normal numbers.
inline constexpr int kFirstDecade = -308;
inline constexpr int kLastDecade = 308;
/// Those that the arithmetic of the rounding is safe for. The others are no numbers in the table.
inline constexpr int kLowestDecade = -280;
inline constexpr int kHighestDecade = 290;
/// Those whose scale is exact and whose rounding needs no check when it is done with a fused
/// multiply-add.
inline constexpr int kLowestExactDecade = -4;
inline constexpr int kHighestExactDecade = 14;

constexpr DoubleDouble powerOfTen(int exponent) {
  DoubleDouble power = {1, 0};
  DoubleDouble factor = {10, 0};
  for (int rest = exponent < 0 ? -exponent : exponent; rest > 0; rest /= 2) {
    if (rest % 2 == 1) power = multiply(power, factor);
    if (rest > 1) factor = multiply(factor, factor);
  }
  return exponent < 0 ? reciprocal(power) : power;
}

constexpr bool isSafeDecade(int exponent) {
  return exponent >= kLowestDecade && exponent <= kHighestDecade;
}

constexpr Decade decadeOfExponent(int exponent) {
  if (!isSafeDecade(exponent)) {
    constexpr double kNone = std::numeric_limits<double>::quiet_NaN();
    return {kNone, kNone, kNone, kNone, kNone, kNone};
  }
  const DoubleDouble scale = powerOfTen(14 - exponent);
  const DoubleDouble inverse = powerOfTen(exponent - 14);
  return {
      powerOfTen(exponent).high, powerOfTen(exponent + 1).high, scale.high, scale.low, inverse.high,
      inverse.low * scale.high};
}

inline constexpr auto kDecades = [] {
  std::array<Decade, kLastDecade - kFirstDecade + 1> decades;
  for (int exponent = kFirstDecade; exponent <= kLastDecade; ++exponent)
    decades[static_cast<std::size_t>(exponent - kFirstDecade)] = decadeOfExponent(exponent);
  return decades;
}();

constexpr const Decade& decade(int exponent) {
  return kDecades[static_cast<std::size_t>(exponent - kFirstDecade)];
}

/// Where in kDecades a magnitude belongs. 0, subnormal numbers and what is no finite number belong
/// to decades that are not safe.
inline std::size_t indexOfDecade(double magnitude) {
  constexpr std::uint64_t kLogarithm = 315653;  // of 2 to the base 10, times 2^20
  constexpr std::uint64_t kOffset = 1023 * kLogarithm - (std::uint64_t{-kFirstDecade} << 20);
  const std::uint64_t binary = std::bit_cast<std::uint64_t>(magnitude) >> 52;
  const std::size_t index = (binary * kLogarithm - kOffset) >> 20;
  return index + (magnitude >= kDecades[index].high ? 1U : 0U);
}

/// The decade of a magnitude, as an exponent.
inline int decadeOf(double magnitude) {
  return static_cast<int>(indexOfDecade(magnitude)) + kFirstDecade;
}

}  // namespace zel
