#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

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

/// The decades that the arithmetic of the rounding is safe for.
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

inline constexpr auto kDecades = [] {
  std::array<Decade, kHighestDecade - kLowestDecade + 1> decades;
  for (int exponent = kLowestDecade; exponent <= kHighestDecade; ++exponent) {
    const DoubleDouble scale = powerOfTen(14 - exponent);
    const DoubleDouble inverse = powerOfTen(exponent - 14);
    decades[static_cast<std::size_t>(exponent - kLowestDecade)] = {powerOfTen(exponent).high,
                                                                   powerOfTen(exponent + 1).high,
                                                                   scale.high,
                                                                   scale.low,
                                                                   inverse.high,
                                                                   inverse.low * scale.high};
  }
  return decades;
}();

constexpr const Decade& decade(int exponent) {
  return kDecades[static_cast<std::size_t>(exponent - kLowestDecade)];
}

/// The decade of a magnitude, as an exponent; one that is out of range where the magnitude is 0,
/// no finite number, or out of the range of the table.
inline int decadeOf(double magnitude) {
  const auto bits = std::bit_cast<std::uint64_t>(magnitude);
  const int binary = static_cast<int>(bits >> 52) - 1023;
  const int exponent = (binary * 315653) >> 20;  // floor(binary * log10(2))
  if (exponent < kLowestDecade || exponent >= kHighestDecade) return kHighestDecade + 1;
  return exponent + (magnitude >= decade(exponent).high ? 1 : 0);
}

}  // namespace zel
