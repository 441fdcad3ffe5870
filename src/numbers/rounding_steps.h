#pragma once

#include <cmath>
#include <cstdint>

#include "numbers/decades.h"
#include "numbers/elementary/double_double.h"
#include "numbers/instruction_sets.h"

/// The steps of the rounding to 15 digits, to be compiled into loops for each instruction set:
/// scaled by a power of ten the digits are a whole number, which goes half to even and is divided
/// back. What is too near to a tie, or to the middle of two doubles, is left to the text.
/// docs/evaluation.md shows why the result is right.
namespace zel {

/// roundTo15Digits by way of the text, for any finite value: slow, and never wrong.
double roundThroughText(double value);

/// Added and taken away again, it rounds a magnitude below 2^51 to a whole number, half to even.
inline constexpr double kWholeNumbers = 6755399441055744;  // 1.5 * 2^52

/// The rounding of a value of one of the exact decades. Needs a fused multiply-add: the whole
/// number is the exact product, rounded once, and so is the quotient.
ZEL_ALWAYS_INLINE double roundInDecade(double value, double scale, double inverse, double drift) {
  const double whole = std::fma(value, scale, kWholeNumbers) - kWholeNumbers;
  return std::fma(whole, inverse, value * drift);
}

constexpr bool isExactDecade(int exponent) {
  return exponent >= kLowestExactDecade && exponent <= kHighestExactDecade;
}

/// The exact decade that the last value was in; none to begin with. The next one mostly is there
/// too.
struct DecadeGuess {
  double low = 1;
  double high = 0;
  double scale = 0;
  double inverse = 0;
  double drift = 0;

  ZEL_ALWAYS_INLINE bool holds(double value) const {
    const double magnitude = std::fabs(value);
    return (magnitude >= low) & (magnitude < high);
  }
  ZEL_ALWAYS_INLINE double round(double value) const {
    return roundInDecade(value, scale, inverse, drift);
  }
  /// Any value will do; one that is in no exact decade changes nothing.
  void moveTo(double value) {
    const int exponent = decadeOf(std::fabs(value));
    if (!isExactDecade(exponent)) return;
    const Decade& in = decade(exponent);
    *this = {in.low, in.high, in.scale, in.inverse, in.drift};
  }
};

/// The rounding of a value of any decade of the table, for an arithmetic that knows the remainder
/// of a product: in doubt near a tie.
template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate roundingCandidate(double value, const Decade& in) {
  constexpr double kTieZone = 0x1p-30;
  constexpr double kRelativeError = 0x1p-44;
  const double whole = (value * in.scale + kWholeNumbers) - kWholeNumbers;
  double remainder = Arithmetic::remainder(value, in.scale, whole) + value * in.scale_rest;
  remainder -= (remainder + kWholeNumbers) - kWholeNumbers;
  const double step = remainder * in.inverse;
  return Candidate{value - step * (1 + kRelativeError), value - step * (1 - kRelativeError)}
      .sureOnlyIf(std::fabs(std::fabs(remainder) - 0.5) > kTieZone);
}

/// The same where the text decides what is in doubt.
template <class Arithmetic>
ZEL_ALWAYS_INLINE double roundWithChecks(double value, const Decade& in) {
  const Candidate candidate = roundingCandidate<Arithmetic>(value, in);
  return candidate.isSure() ? candidate.value : roundThroughText(value);
}

/// The same for any value at all, and without a branch: in doubt too where it is in no decade that
/// the arithmetic is safe for, unless it is 0.
template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate roundingCandidate(double value) {
  const std::size_t i = indexOfDecade(std::fabs(value));
  const Candidate candidate = roundingCandidate<Arithmetic>(value, kDecades[i]);
  return {value == 0 ? 0 : candidate.value, value == 0 ? 0 : candidate.other};
}

/// value * factor - whole, where `whole` is close to the product.
struct PlainArithmetic {
  static constexpr bool kIsFused = false;
  static ZEL_ALWAYS_INLINE double remainder(double value, double factor, double whole) {
    const DoubleDouble product = multiplyExactly(value, factor);
    return (product.high - whole) + product.low;
  }
  static ZEL_ALWAYS_INLINE double round(double value, const Decade& in, int) {
    return roundWithChecks<PlainArithmetic>(value, in);
  }
};

/// The same for targets that have an instruction for it.
struct FusedArithmetic {
  static constexpr bool kIsFused = true;
  static ZEL_ALWAYS_INLINE double remainder(double value, double factor, double whole) {
    return std::fma(value, factor, -whole);
  }
  static ZEL_ALWAYS_INLINE double round(double value, const Decade& in, int exponent) {
    return isExactDecade(exponent) ? roundInDecade(value, in.scale, in.inverse, in.drift)
                                   : roundWithChecks<FusedArithmetic>(value, in);
  }
};

/// roundTo15Digits of any finite value.
template <class Arithmetic>
ZEL_ALWAYS_INLINE double roundAny(double value) {
  if (value == 0) return 0;
  const int exponent = decadeOf(std::fabs(value));
  if (!isSafeDecade(exponent)) return roundThroughText(value);
  return Arithmetic::round(value, decade(exponent), exponent);
}

}  // namespace zel
