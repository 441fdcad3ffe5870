#pragma once

#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "numbers/elementary/exponential_steps.h"

/// The first stage of the logarithms: x = 2^k m with m near 1 + j/128, an inverse of that from a
/// table makes 1 + r of m, and the logarithm of 1 + r is a polynomial (Tang 1990).
namespace zel {

inline constexpr DoubleDouble kDecimalPerNatural = {0x1.bcb7b1526e50ep-2, 0x1.95355baaafad3p-57};

inline constexpr std::size_t kLogarithms = 128;

/// The logarithm of 2 as a multiple of 2^-42, and what is beyond.
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

/// An inverse of 1 + j/128 to twenty bits, the upper half of `word`, and minus its logarithm as a
/// multiple of 2^-32, which is the lower half, and what is beyond: few numbers, since a loop over
/// lanes fetches each for itself.
struct LogarithmTable {
  std::array<std::uint64_t, kLogarithms> word{};
  std::array<double, kLogarithms> beyond_grid{};
};

inline constexpr auto kLogarithmTable = [] {
  LogarithmTable table;
  DoubleDouble logarithm = {0, 0};
  for (std::size_t j = 0; j < kLogarithms; ++j) {
    const double n = static_cast<double>(kLogarithms + j);
    const double inverse =
        std::bit_cast<double>(std::bit_cast<std::uint64_t>(kLogarithms / n) & kUpperBits);
    // ln(n/128) = -ln(inverse) + ln(1 + excess)
    const double excess = inverse * (n / kLogarithms) - 1;  // exact
    const DoubleDouble square = multiplyExactly(excess, excess);
    const DoubleDouble of_excess = DoubleDouble{excess, 0} -
                                   DoubleDouble{square.high / 2, square.low / 2} +
                                   multiply(multiply(square, {excess, 0}), reciprocal({3, 0})) -
                                   DoubleDouble{square.high * square.high / 4, 0};
    const DoubleDouble exact = logarithm - of_excess;
    const auto on_grid = static_cast<std::uint64_t>(exact.high * 0x1p32);
    table.word[j] = std::bit_cast<std::uint64_t>(inverse) | on_grid;
    table.beyond_grid[j] = (exact.high - static_cast<double>(on_grid) * 0x1p-32) + exact.low;
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

/// A whole number as the last bits of `start`, a power of two: so many of its last places beyond
/// it. Taking `start` away again, and what else is to be taken, is exact.
ZEL_ALWAYS_INLINE double fromLastBits(std::uint64_t whole, double start, double taken) {
  return std::bit_cast<double>(std::bit_cast<std::uint64_t>(start) | whole) - taken;
}

/// For a positive normal number.
template <class Arithmetic>
ZEL_ALWAYS_INLINE ReducedLogarithm reduceLogarithm(double x) {
  constexpr std::uint64_t kOne = 0x3FF0000000000000;
  constexpr std::uint64_t kExponent = 0xFFF0000000000000;
  constexpr double kLastIsOne = 0x1p52;
  constexpr double kLastIsGrid = 0x1p20;  // 2^-32
  const auto bits = std::bit_cast<std::uint64_t>(x);
  const std::uint64_t to_nearest = bits + (std::uint64_t{1} << 44);
  const std::size_t j = (to_nearest >> 45) % kLogarithms;
  const double m = std::bit_cast<double>(bits - (to_nearest & kExponent) + kOne);
  const double k = fromLastBits(to_nearest >> 52, kLastIsOne, kLastIsOne + 1023);
  const std::uint64_t word = kLogarithmTable.word[j];
  const double inverse = std::bit_cast<double>(word & kUpperBits);
  const double on_grid = fromLastBits(word & ~kUpperBits, kLastIsGrid, kLastIsGrid);
  const DoubleDouble product = exactProduct<Arithmetic>(m, inverse);
  return {multiplyAdd<Arithmetic>(k, kLn2OnGrid, on_grid),
          multiplyAdd<Arithmetic>(k, kLn2BeyondGrid, kLogarithmTable.beyond_grid[j]),
          sumOfOrdered(product.high - 1, product.low)};
}

/// How far the sums below may be from the exact logarithm, relative to it.
inline constexpr double kLogarithmError = 0x1.2p-68;
inline constexpr double kDecimalLogarithmError = 1.375 * kLogarithmError;
inline constexpr double kFineLogarithmError = 0x1.4p-75;

/// ln(x) for a positive normal number.
template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble logarithmOf(double x) {
  const ReducedLogarithm reduced = reduceLogarithm<Arithmetic>(x);
  const double r = reduced.rest.high;
  const DoubleDouble half = exactProduct<Arithmetic>(0.5 * r, r);  // of the square
  // Of 1/3 - r/4 + ... + r^6/9, twice; by powers of the half.
  const double beyond_square = polynomialInPairs<Arithmetic>(
      r, half.high, 2.0 / 3, -2.0 / 4, 4.0 / 5, -4.0 / 6, 8.0 / 7, -8.0 / 8, 16.0 / 9);
  const DoubleDouble first = sumOfOrdered(reduced.on_grid, r);
  const DoubleDouble second = sumOfOrdered(first.high, -half.high);
  const double small = ((reduced.beyond_grid - half.low) +
                        multiplyAdd<Arithmetic>(-reduced.rest.low, r, reduced.rest.low)) +
                       (first.low + second.low);
  return {second.high, multiplyAdd<Arithmetic>(r * half.high, beyond_square, small)};
}

/// The same with the third power of r in two doubles.
template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble fineLogarithmOf(double x) {
  constexpr double kThirdLow = 0x1.5555555555555p-56;  // 1/3 - (1.0 / 3)
  const ReducedLogarithm reduced = reduceLogarithm<Arithmetic>(x);
  const double r = reduced.rest.high;
  const double r_low = reduced.rest.low;
  const DoubleDouble half = exactProduct<Arithmetic>(0.5 * r, r);  // of the square
  const DoubleDouble cube = exactProduct<Arithmetic>(r, half.high);
  const DoubleDouble third = exactProduct<Arithmetic>(cube.high, 2.0 / 3);
  const double cube_low = multiplyAdd<Arithmetic>(r, half.low, cube.low);
  // Of -1/4 + r/5 - ... - r^6/10, four times; by powers of the half.
  const double beyond_cube = polynomialInPairs<Arithmetic>(
      r, half.high, -4.0 / 4, 4.0 / 5, -8.0 / 6, 8.0 / 7, -16.0 / 8, 16.0 / 9, -32.0 / 10);
  const double third_low = multiplyAdd<Arithmetic>(
      cube_low, 2.0 / 3, multiplyAdd<Arithmetic>(cube.high, 2 * kThirdLow, third.low));
  const DoubleDouble first = sumOfOrdered(reduced.on_grid, r);
  const DoubleDouble second = sumOfOrdered(first.high, -half.high);
  const DoubleDouble last = sumOfOrdered(second.high, third.high);
  const double small =
      ((reduced.beyond_grid - half.low) + multiplyAdd<Arithmetic>(-r_low, r * (1 - r), r_low)) +
      (first.low + second.low);
  return sumOfOrdered(last.high, multiplyAdd<Arithmetic>(half.high * half.high, beyond_cube,
                                                         (small + third_low) + last.low));
}

/// As one comparison of whole numbers.
ZEL_ALWAYS_INLINE bool isPositiveNormal(double x) {
  constexpr auto kSmallest = std::bit_cast<std::uint64_t>(DBL_MIN);
  constexpr auto kBehindLargest = std::bit_cast<std::uint64_t>(HUGE_VAL);
  return std::bit_cast<std::uint64_t>(x) - kSmallest < kBehindLargest - kSmallest;
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate naturalLogarithmCandidate(double x) {
  const DoubleDouble result = logarithmOf<Arithmetic>(x);
  return rounded<Arithmetic>(result.high, result.low, std::fabs(result.high), kLogarithmError)
      .sureOnlyIf(isPositiveNormal(x));
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate decimalLogarithmCandidate(double x) {
  const DoubleDouble natural = logarithmOf<Arithmetic>(x);
  const DoubleDouble product = exactProduct<Arithmetic>(natural.high, kDecimalPerNatural.high);
  const double low = multiplyAdd<Arithmetic>(
      natural.low, kDecimalPerNatural.high,
      multiplyAdd<Arithmetic>(natural.high, kDecimalPerNatural.low, product.low));
  return rounded<Arithmetic>(product.high, low, std::fabs(product.high), kDecimalLogarithmError)
      .sureOnlyIf(isPositiveNormal(x));
}

}  // namespace zel
