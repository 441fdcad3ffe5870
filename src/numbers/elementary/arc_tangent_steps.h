#pragma once

#include <array>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "numbers/elementary/circular_steps.h"

/// The first stage of the arc tangent: |x| or its inverse is near c = i/64, whose arc tangent comes
/// from a table, and the arc tangent of the difference, (t - c) / (1 + tc), is a polynomial.
namespace zel {

inline constexpr std::size_t kArcs = 65;

/// The arc tangents of i/64, then those of 64/i: high and low in turn.
inline constexpr auto kArcTable = [] {
  std::array<double, 4 * kArcs> table{};
  DoubleDouble arc = {0, 0};
  for (std::size_t i = 0; i < kArcs; ++i) {
    const DoubleDouble other = DoubleDouble{kPiInTwo.high / 2, kPiInTwo.low / 2} - arc;
    table[2 * i] = arc.high;
    table[2 * i + 1] = arc.low;
    table[2 * (kArcs + i)] = other.high;
    table[2 * (kArcs + i) + 1] = other.low;
    const int n = static_cast<int>(i);
    const DoubleDouble step = multiply({64, 0}, reciprocal(4096 + n * (n + 1)));
    const DoubleDouble square = multiply(step, step);
    DoubleDouble sum = {0, 0};
    for (int odd = 21; odd > 0; odd -= 2) sum = reciprocal(odd) - multiply(sum, square);
    arc = arc + multiply(step, sum);
  }
  return table;
}();

/// How far the sum may be from the exact arc tangent, relative to it.
inline constexpr double kArcTangentError = 0x1.6p-66;
/// Beyond, an inverse is too small for exact products.
inline constexpr double kLargestTangent = 0x1p900;

/// The arc tangent of a magnitude.
template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble arcTangentOf(double magnitude) {
  const bool is_steep = magnitude > 1;
  const double dividend = is_steep ? 1 : magnitude;
  const double divisor = is_steep ? magnitude : 1;
  const double shifted = dividend / divisor * 64 + kWholeNumbers;
  const double c = (shifted - kWholeNumbers) / 64;
  const std::size_t i =
      2 * ((std::bit_cast<std::uint64_t>(shifted) % 128) + (is_steep ? kArcs : 0));

  const DoubleDouble taken = exactProduct<Arithmetic>(c, divisor);
  const DoubleDouble added = exactProduct<Arithmetic>(c, dividend);
  const double above = dividend - taken.high;
  const DoubleDouble below = sumOfOrdered(divisor, added.high);
  const double quotient = above / below.high;
  const DoubleDouble back = exactProduct<Arithmetic>(quotient, below.high);
  const double remainder = multiplyAdd<Arithmetic>(-quotient, below.low + added.low,
                                                   (above - back.high) - back.low - taken.low);
  const double square = quotient * quotient;
  const double beyond = multiplyAdd<Arithmetic>(
      quotient * square, polynomial<Arithmetic>(square, -1.0 / 3, 1.0 / 5, -1.0 / 7, 1.0 / 9),
      remainder / below.high);
  const DoubleDouble sum = sumOfOrdered(kArcTable[i], is_steep ? -quotient : quotient);
  return {sum.high, kArcTable[i + 1] + sum.low + (is_steep ? -beyond : beyond)};
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate arcTangentCandidate(double x) {
  constexpr std::uint64_t kSign = std::uint64_t{1} << 63;
  const double magnitude = std::fabs(x);
  const DoubleDouble arc = arcTangentOf<Arithmetic>(magnitude);
  const Candidate candidate = rounded<Arithmetic>(arc.high, arc.low, arc.high, kArcTangentError);
  const std::uint64_t sign = std::bit_cast<std::uint64_t>(x) & kSign;
  return Candidate{withSign(candidate.value, sign), withSign(candidate.other, sign)}.sureOnlyIf(
      magnitude <= kLargestTangent);
}

}  // namespace zel
