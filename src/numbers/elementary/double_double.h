#pragma once

#include <bit>
#include <cmath>
#include <cstdint>
#include <limits>

#include "numbers/decades.h"
#include "numbers/instruction_sets.h"

/// Exact sums and products of doubles, and the rounding test that they are made for: the arithmetic
/// of Dekker (1971) and Knuth. `Arithmetic` is PlainArithmetic or FusedArithmetic; the last bits of
/// what lies between may differ, what is decided never does.
namespace zel {

/// a + b and what is missing from it; |a| >= |b|, or a is a multiple of the last place of b.
constexpr ZEL_ALWAYS_INLINE DoubleDouble sumOfOrdered(double a, double b) {
  const double sum = a + b;
  return {sum, b - (sum - a)};
}

/// a + b and what is missing from it.
constexpr ZEL_ALWAYS_INLINE DoubleDouble exactSum(double a, double b) {
  const double sum = a + b;
  const double part = sum - a;
  return {sum, (a - (sum - part)) + (b - part)};
}

constexpr DoubleDouble operator-(DoubleDouble a) { return {-a.high, -a.low}; }

constexpr DoubleDouble operator+(DoubleDouble a, DoubleDouble b) {
  const DoubleDouble high = exactSum(a.high, b.high);
  const DoubleDouble low = exactSum(a.low, b.low);
  const DoubleDouble sum = sumOfOrdered(high.high, high.low + low.high);
  return sumOfOrdered(sum.high, sum.low + low.low);
}

constexpr DoubleDouble operator-(DoubleDouble a, DoubleDouble b) { return a + -b; }

/// a * b and what is missing from it.
template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble exactProduct(double a, double b) {
  if constexpr (Arithmetic::kIsFused) {
    const double product = a * b;
    return {product, std::fma(a, b, -product)};
  } else {
    return multiplyExactly(a, b);
  }
}

/// a * b + c, rounded once or twice.
template <class Arithmetic>
ZEL_ALWAYS_INLINE double multiplyAdd(double a, double b, double c) {
  if constexpr (Arithmetic::kIsFused)
    return std::fma(a, b, c);
  else
    return a * b + c;
}

/// c0 + c1 x + c2 x^2 + ..., where x^2 is `square`: pair by pair, which is sooner done than one
/// coefficient after the other.
template <class Arithmetic>
ZEL_ALWAYS_INLINE double polynomialInPairs(double, double, double c0) {
  return c0;
}
template <class Arithmetic>
ZEL_ALWAYS_INLINE double polynomialInPairs(double x, double, double c0, double c1) {
  return multiplyAdd<Arithmetic>(x, c1, c0);
}
template <class Arithmetic, class... Rest>
ZEL_ALWAYS_INLINE double polynomialInPairs(double x, double square, double c0, double c1, double c2,
                                           Rest... rest) {
  return multiplyAdd<Arithmetic>(square, polynomialInPairs<Arithmetic>(x, square, c2, rest...),
                                 multiplyAdd<Arithmetic>(x, c1, c0));
}

template <class Arithmetic, class... Coefficients>
ZEL_ALWAYS_INLINE double polynomial(double x, Coefficients... coefficients) {
  return polynomialInPairs<Arithmetic>(x, x * x, coefficients...);
}

/// The two ends of what the nearest double to a value can be, as the first stage has it: it is
/// sure where they are the same, and in doubt where one is NaN.
struct Candidate {
  double value = 0;
  double other = 0;

  ZEL_ALWAYS_INLINE bool isSure() const { return value == other; }
  ZEL_ALWAYS_INLINE Candidate sureOnlyIf(bool condition) const {
    return {value, condition ? other : std::numeric_limits<double>::quiet_NaN()};
  }
};

/// The rounding test of Ziv (1991) for an exact value within `error` of high + low: it is decided
/// where both ends of that interval round alike.
ZEL_ALWAYS_INLINE Candidate rounded(double high, double low, double error) {
  return {high + (low - error), high + (low + error)};
}

/// The same for an error of `share` times a magnitude.
template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate rounded(double high, double low, double magnitude, double share) {
  return {high + multiplyAdd<Arithmetic>(-magnitude, share, low),
          high + multiplyAdd<Arithmetic>(magnitude, share, low)};
}

/// The sign, the exponent and twenty more bits of a double.
inline constexpr std::uint64_t kUpperBits = 0xFFFFFFFF00000000;

/// A magnitude with a sign bit.
ZEL_ALWAYS_INLINE double withSign(double magnitude, std::uint64_t sign) {
  return std::bit_cast<double>(std::bit_cast<std::uint64_t>(magnitude) | sign);
}

}  // namespace zel
