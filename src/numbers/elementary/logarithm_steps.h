#pragma once

#include <array>
#include <bit>
#include <cfloat>
#include <cmath>
#include <cstddef>
#include <cstdint>

#include "numbers/elementary/exponential_steps.h"

/// The first stage of the logarithms: x = 2^k m with m from 1 to 2, an inverse of few bits makes
/// 1 + r of m, exactly, and the logarithm of 1 + r is a polynomial (Tang 1990).
namespace zel {

inline constexpr DoubleDouble kDecimalPerNatural = {0x1.bcb7b1526e50ep-2, 0x1.95355baaafad3p-57};

/// Intervals of m, the next one to 1 + j/256.
inline constexpr std::size_t kLogarithms = 256;
/// Inverses are multiples of 1/512: times m, and 1 taken away, they leave a double.
inline constexpr std::size_t kInverses = 512;

/// A logarithm: whole units of 2^-32, and what is beyond.
struct GridLogarithm {
  std::uint64_t on_grid;
  double beyond_grid;
};

constexpr GridLogarithm onGrid(DoubleDouble logarithm) {
  const auto on_grid = static_cast<std::uint64_t>(logarithm.high * 0x1p32);
  return {on_grid, (logarithm.high - static_cast<double>(on_grid) * 0x1p-32) + logarithm.low};
}

/// 2 artanh(1 / (2n + 1)) = ln((n + 1) / n), for n from 256 on.
constexpr DoubleDouble logarithmOfNextOver(int n) {
  const DoubleDouble inverse = reciprocal(2 * n + 1);
  const DoubleDouble square = multiply(inverse, inverse);
  DoubleDouble sum = {0, 0};
  for (int odd = 13; odd > 0; odd -= 2) sum = multiply(sum, square) + reciprocal(odd);
  const DoubleDouble half = multiply(inverse, sum);
  return {2 * half.high, 2 * half.low};
}

/// The inverse of each interval, the upper half of `word`, and minus its logarithm on the grid,
/// which is the lower half, and beyond it: few numbers, since a loop over lanes fetches each for
/// itself.
struct LogarithmTable {
  std::array<std::uint64_t, kLogarithms + 1> word{};
  std::array<double, kLogarithms + 1> beyond_grid{};
};

inline constexpr auto kLogarithmTable = [] {
  LogarithmTable table;
  DoubleDouble logarithm = {0, 0};  // of kInverses / n
  std::size_t n = kInverses;
  for (std::size_t j = 0; j <= kLogarithms; ++j) {
    // The last two intervals have 1/2, so that nothing cancels r next to 1 from below.
    const std::size_t divisor = kLogarithms + j;
    const std::size_t nearest = (2 * kInverses * kLogarithms + divisor) / (2 * divisor);
    const std::size_t next = j + 1 < kLogarithms ? nearest : kInverses / 2;
    for (; n > next; --n) logarithm = logarithm + logarithmOfNextOver(static_cast<int>(n - 1));
    const GridLogarithm taken = onGrid(logarithm);
    const double inverse = static_cast<double>(n) / kInverses;
    table.word[j] = std::bit_cast<std::uint64_t>(inverse) | taken.on_grid;
    table.beyond_grid[j] = taken.beyond_grid;
  }
  return table;
}();

inline constexpr double kLn2OnGrid = static_cast<double>(onGrid(kLn2).on_grid) * 0x1p-32;
inline constexpr double kLn2BeyondGrid = onGrid(kLn2).beyond_grid;
// Next to 1 from below nothing may be left of ln(2) but r.
static_assert((kLogarithmTable.word.back() & ~kUpperBits) == onGrid(kLn2).on_grid);
static_assert(kLogarithmTable.beyond_grid.back() == kLn2BeyondGrid);

/// x = 2^k m taken apart: ln(x) = on_grid + beyond_grid + ln(1 + r).
struct ReducedLogarithm {
  double on_grid;
  double beyond_grid;
  double r;
};

/// A whole number as the last bits of `start`, a power of two: so many of its last places beyond
/// it. Taking `start` away again, and what else is to be taken, is exact.
ZEL_ALWAYS_INLINE double fromLastBits(std::uint64_t whole, double start, double taken) {
  return std::bit_cast<double>(std::bit_cast<std::uint64_t>(start) | whole) - taken;
}

/// m times its inverse less 1, which is exact: a multiple of 2^-61 below 2^-8.
template <class Arithmetic>
ZEL_ALWAYS_INLINE double restOf(double m, double inverse) {
  if constexpr (Arithmetic::kIsFused) {
    return std::fma(m, inverse, -1);
  } else {
    const auto upper = std::bit_cast<double>(std::bit_cast<std::uint64_t>(m) & kUpperBits);
    return (upper * inverse - 1) + (m - upper) * inverse;
  }
}

/// For a positive normal number.
template <class Arithmetic>
ZEL_ALWAYS_INLINE ReducedLogarithm reduceLogarithm(double x) {
  constexpr std::uint64_t kOne = 0x3FF0000000000000;
  constexpr std::uint64_t kMantissa = 0x000FFFFFFFFFFFFF;
  constexpr std::uint64_t kHalfInterval = std::uint64_t{1} << 43;
  constexpr double kLastIsOne = 0x1p52;
  constexpr double kLastIsGrid = 0x1p20;  // 2^-32
  const auto bits = std::bit_cast<std::uint64_t>(x);
  const std::uint64_t m_bits = (bits & kMantissa) | kOne;
  const std::size_t j = (m_bits - (kOne - kHalfInterval)) >> 44;
  const auto m = std::bit_cast<double>(m_bits);
  const double k = fromLastBits(bits >> 52, kLastIsOne, kLastIsOne + 1023);
  const std::uint64_t word = kLogarithmTable.word[j];
  const auto inverse = std::bit_cast<double>(word & kUpperBits);
  const double on_grid = fromLastBits(word & ~kUpperBits, kLastIsGrid, kLastIsGrid);
  return {multiplyAdd<Arithmetic>(k, kLn2OnGrid, on_grid),
          multiplyAdd<Arithmetic>(k, kLn2BeyondGrid, kLogarithmTable.beyond_grid[j]),
          restOf<Arithmetic>(m, inverse)};
}

/// How far the sums below may be from the exact logarithm, relative to it.
inline constexpr double kLogarithmError = 0x1.9p-69;
inline constexpr double kDecimalLogarithmError = 1.125 * kLogarithmError;
inline constexpr double kFineLogarithmError = 0x1.ap-75;

/// ln(x) for a positive normal number.
template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble logarithmOf(double x) {
  const auto [on_grid, beyond_grid, r] = reduceLogarithm<Arithmetic>(x);
  const DoubleDouble half = exactProduct<Arithmetic>(0.5 * r, r);  // of the square
  // Of 1/3 - r/4 + ... - r^5/8, twice; by powers of the half.
  const double beyond_square = polynomialInPairs<Arithmetic>(r, half.high, 2.0 / 3, -2.0 / 4,
                                                             4.0 / 5, -4.0 / 6, 8.0 / 7, -8.0 / 8);
  const DoubleDouble first = sumOfOrdered(on_grid, r);
  const DoubleDouble second = sumOfOrdered(first.high, -half.high);
  const double small = (beyond_grid - half.low) + (first.low + second.low);
  return {second.high, multiplyAdd<Arithmetic>(r * half.high, beyond_square, small)};
}

/// The same with the third power of r in two doubles.
template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble fineLogarithmOf(double x) {
  constexpr double kThirdLow = 0x1.5555555555555p-56;  // 1/3 - (1.0 / 3)
  const auto [on_grid, beyond_grid, r] = reduceLogarithm<Arithmetic>(x);
  const DoubleDouble half = exactProduct<Arithmetic>(0.5 * r, r);  // of the square
  const DoubleDouble cube = exactProduct<Arithmetic>(r, half.high);
  const DoubleDouble third = exactProduct<Arithmetic>(cube.high, 2.0 / 3);
  const double cube_low = multiplyAdd<Arithmetic>(r, half.low, cube.low);
  // Of -1/4 + r/5 - ... + r^5/9, four times; by powers of the half.
  const double beyond_cube = polynomialInPairs<Arithmetic>(r, half.high, -4.0 / 4, 4.0 / 5,
                                                           -8.0 / 6, 8.0 / 7, -16.0 / 8, 16.0 / 9);
  const double third_low = multiplyAdd<Arithmetic>(
      cube_low, 2.0 / 3, multiplyAdd<Arithmetic>(cube.high, 2 * kThirdLow, third.low));
  const DoubleDouble first = sumOfOrdered(on_grid, r);
  const DoubleDouble second = sumOfOrdered(first.high, -half.high);
  const DoubleDouble last = sumOfOrdered(second.high, third.high);
  const double small = (beyond_grid - half.low) + (first.low + second.low);
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
  return rounded<Arithmetic>(result.high, result.low, result.high, kLogarithmError)
      .sureOnlyIf(isPositiveNormal(x));
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate decimalLogarithmCandidate(double x) {
  const DoubleDouble natural = logarithmOf<Arithmetic>(x);
  const DoubleDouble product = exactProduct<Arithmetic>(natural.high, kDecimalPerNatural.high);
  const double low = multiplyAdd<Arithmetic>(
      natural.low, kDecimalPerNatural.high,
      multiplyAdd<Arithmetic>(natural.high, kDecimalPerNatural.low, product.low));
  return rounded<Arithmetic>(product.high, low, product.high, kDecimalLogarithmError)
      .sureOnlyIf(isPositiveNormal(x));
}

}  // namespace zel
