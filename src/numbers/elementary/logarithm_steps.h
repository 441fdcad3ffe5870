#pragma once

#include <array>
#include <bit>
#include <cfloat>
#include <cstddef>
#include <cstdint>

#include "numbers/elementary/exponential_steps.h"

/// The first stage of the logarithms: x = 2^k m with m near 1 + j/128, an inverse of that from a
/// table makes 1 + r of m, and the logarithm of 1 + r is a polynomial (Tang 1990).
namespace zel {

inline constexpr DoubleDouble kDecimalPerNatural = {0x1.bcb7b1526e50ep-2, 0x1.95355baaafad3p-57};

inline constexpr std::size_t kLogarithms = 128;

/// Added and taken away again, it leaves whole multiples of 2^-42.
inline constexpr double kLogarithmGrid = kWholeNumbers * 0x1p-42;
inline constexpr double kLn2OnGrid = 0x1.62e42fefa3800p-1;
inline constexpr double kLn2BeyondGrid = 0x1.ef35793c76730p-45;

/// 2 artanh(1 / (2n + 1)) = ln((n + 1) / n), for n from 128 on.
constexpr DoubleDouble logarithmOfNextOver(double n) {
  const DoubleDouble inverse = reciprocal({2 * n + 1, 0});
  const DoubleDouble square = multiply(inverse, inverse);
  DoubleDouble sum = {0, 0};
  for (double odd = 15; odd > 0; odd -= 2) sum = multiply(sum, square) + reciprocal({odd, 0});
  const DoubleDouble half = multiply(inverse, sum);
  return {2 * half.high, 2 * half.low};
}

/// The double nearest to 1 / (1 + j/128) at 3j, then minus its logarithm, as a multiple of 2^-42 and
/// what is beyond.
inline constexpr auto kLogarithmTable = [] {
  std::array<double, 3 * kLogarithms> table{};
  DoubleDouble logarithm = {0, 0};
  for (std::size_t j = 0; j < kLogarithms; ++j) {
    const double n = static_cast<double>(kLogarithms + j);
    const double inverse = kLogarithms / n;
    const DoubleDouble one = multiplyExactly(inverse, n / kLogarithms);
    const double excess = (one.high - 1) + one.low;  // of the rounded inverse
    const DoubleDouble exact = logarithm - DoubleDouble{excess, 0};
    const double on_grid = (exact.high + kLogarithmGrid) - kLogarithmGrid;
    table[3 * j] = inverse;
    table[3 * j + 1] = on_grid;
    table[3 * j + 2] = (exact.high - on_grid) + exact.low;
    logarithm = logarithm + logarithmOfNextOver(n);
  }
  return table;
}();

/// x = 2^k m taken apart: ln(x) = on_grid + beyond_grid + ln(1 + r) with r = high + low.
struct ReducedLogarithm {
  double on_grid;
  double beyond_grid;
  DoubleDouble rest;
};

/// For a positive normal number.
template <class Arithmetic>
ZEL_ALWAYS_INLINE ReducedLogarithm reduceLogarithm(double x) {
  constexpr std::uint64_t kOne = 0x3FF0000000000000;
  const auto bits = std::bit_cast<std::uint64_t>(x);
  const std::uint64_t to_nearest = bits + (std::uint64_t{1} << 44);
  const std::size_t j = 3 * ((to_nearest >> 45) % kLogarithms);
  const std::uint64_t exponent = to_nearest >> 52;
  const double m = std::bit_cast<double>(bits - (exponent << 52) + kOne);
  const double k =
      std::bit_cast<double>(exponent + std::bit_cast<std::uint64_t>(kWholeNumbers)) -
      (kWholeNumbers + 1023);
  const DoubleDouble product = exactProduct<Arithmetic>(m, kLogarithmTable[j]);
  return {k * kLn2OnGrid + kLogarithmTable[j + 1],
          multiplyAdd<Arithmetic>(k, kLn2BeyondGrid, kLogarithmTable[j + 2]),
          sumOfOrdered(product.high - 1, product.low)};
}

/// How far the sums below may be from the exact logarithm, relative to it.
inline constexpr double kLogarithmError = 0x1.2p-68;
inline constexpr double kFineLogarithmError = 0x1.2p-77;

/// ln(x) for a positive normal number.
template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble logarithmOf(double x) {
  const ReducedLogarithm reduced = reduceLogarithm<Arithmetic>(x);
  const double r = reduced.rest.high;
  const DoubleDouble square = exactProduct<Arithmetic>(r, r);
  const double beyond_square =
      polynomial<Arithmetic>(
      r, 1.0 / 3, -1.0 / 4, 1.0 / 5, -1.0 / 6, 1.0 / 7, -1.0 / 8, 1.0 / 9);
  const DoubleDouble first = sumOfOrdered(reduced.on_grid, r);
  const DoubleDouble second = sumOfOrdered(first.high, -0.5 * square.high);
  const double small = reduced.beyond_grid + (first.low + second.low) +
                       multiplyAdd<Arithmetic>(-reduced.rest.low, r, reduced.rest.low) -
                       0.5 * square.low;
  return {second.high, multiplyAdd<Arithmetic>(r * square.high, beyond_square, small)};
}

/// The same with the third power of r in two doubles.
template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble fineLogarithmOf(double x) {
  constexpr double kThirdLow = 0x1.5555555555555p-56;  // 1/3 - (1.0 / 3)
  const ReducedLogarithm reduced = reduceLogarithm<Arithmetic>(x);
  const double r = reduced.rest.high;
  const double r_low = reduced.rest.low;
  const DoubleDouble square = exactProduct<Arithmetic>(r, r);
  const double beyond_cube = r * polynomial<Arithmetic>(r, -1.0 / 4, 1.0 / 5, -1.0 / 6, 1.0 / 7,
                                                        -1.0 / 8, 1.0 / 9, -1.0 / 10);
  const DoubleDouble factor = sumOfOrdered(1.0 / 3, beyond_cube);
  const DoubleDouble cube = exactProduct<Arithmetic>(r, square.high);
  const DoubleDouble third = exactProduct<Arithmetic>(cube.high, factor.high);
  const double third_low =
      third.low + cube.high * (factor.low + kThirdLow) +
      multiplyAdd<Arithmetic>(r, square.low, cube.low) * factor.high;
  const DoubleDouble first = sumOfOrdered(reduced.on_grid, r);
  const DoubleDouble second = sumOfOrdered(first.high, -0.5 * square.high);
  const DoubleDouble last = sumOfOrdered(second.high, third.high);
  const double small = reduced.beyond_grid + (first.low + second.low) +
                       multiplyAdd<Arithmetic>(r_low, square.high - r, r_low) -
                       0.5 * square.low + third_low;
  return sumOfOrdered(last.high, last.low + small);
}

ZEL_ALWAYS_INLINE bool isPositiveNormal(double x) { return (x >= DBL_MIN) & (x <= DBL_MAX); }

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate naturalLogarithmCandidate(double x) {
  const DoubleDouble result = logarithmOf<Arithmetic>(x);
  return rounded(result.high, result.low, std::fabs(result.high) * kLogarithmError)
      .sureOnlyIf(isPositiveNormal(x));
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate decimalLogarithmCandidate(double x) {
  const DoubleDouble natural = logarithmOf<Arithmetic>(x);
  const DoubleDouble product = exactProduct<Arithmetic>(natural.high, kDecimalPerNatural.high);
  const double low = multiplyAdd<Arithmetic>(
      natural.low, kDecimalPerNatural.high,
      multiplyAdd<Arithmetic>(natural.high, kDecimalPerNatural.low, product.low));
  return rounded(product.high, low, std::fabs(product.high) * (1.25 * kLogarithmError))
      .sureOnlyIf(isPositiveNormal(x));
}

}  // namespace zel
