#pragma once

#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#include "numbers/elementary/double_double.h"
#include "numbers/rounding_steps.h"

/// The first stage of sine, cosine and tangent: the angle is a whole number of steps of pi/256 and
/// a rest of at most half a step. The sine and cosine of the steps come from a table, those of the
/// rest are polynomials (Gal and Bachelis 1991, with two doubles for an entry in place of accurate
/// points).
namespace zel {

inline constexpr DoubleDouble kPiInTwo = {0x1.921fb54442d18p+1, 0x1.1a62633145c07p-53};

inline constexpr std::size_t kStepsOfCircle = 512;
inline constexpr std::size_t kStepsOfQuarter = kStepsOfCircle / 4;

/// The sum of (-1)^k x^(n + 2k) / (n + 2k)!, for small x.
constexpr DoubleDouble alternatingSeries(DoubleDouble x, int n) {
  const DoubleDouble square = multiply(x, x);
  DoubleDouble sum = {1, 0};
  for (int k = n + 16; k > n; k -= 2)
    sum = DoubleDouble{1, 0} - multiply(multiply(square, sum), reciprocal(k * (k - 1)));
  return n == 0 ? sum : multiply(x, sum);
}

/// The sines of i steps.
inline constexpr auto kExactSines = [] {
  constexpr DoubleDouble kStep = {kPiInTwo.high / 256, kPiInTwo.low / 256};
  constexpr DoubleDouble kSine = alternatingSeries(kStep, 1);
  constexpr DoubleDouble kCosine = alternatingSeries(kStep, 0);
  std::array<DoubleDouble, kStepsOfCircle> table{};
  DoubleDouble sine = {0, 0};
  DoubleDouble cosine = {1, 0};
  for (std::size_t i = 0; i <= kStepsOfQuarter / 2; ++i) {
    for (const std::size_t j : {i, kStepsOfQuarter - i}) {
      const DoubleDouble value = j == i ? sine : cosine;
      table[j] = table[2 * kStepsOfQuarter - j] = value;
      if (j == 0) continue;  // zero has no sign
      table[2 * kStepsOfQuarter + j] = table[kStepsOfCircle - j] = -value;
    }
    const DoubleDouble next = multiply(sine, kCosine) + multiply(cosine, kSine);
    cosine = multiply(cosine, kCosine) - multiply(sine, kSine);
    sine = next;
  }
  return table;
}();

/// A loop over lanes fetches each number for itself, so there should be few: the high parts of the
/// sines, and in one word the upper halves, twenty good bits, of the low parts of sine and cosine.
struct SineTable {
  std::array<double, kStepsOfCircle> high{};
  std::array<std::uint64_t, kStepsOfCircle> lows{};
};

inline constexpr auto kSineTable = [] {
  SineTable table;
  for (std::size_t i = 0; i < kStepsOfCircle; ++i) {
    const DoubleDouble& cosine = kExactSines[(i + kStepsOfQuarter) % kStepsOfCircle];
    table.high[i] = kExactSines[i].high;
    table.lows[i] = (std::bit_cast<std::uint64_t>(kExactSines[i].low) & kUpperBits) |
                    (std::bit_cast<std::uint64_t>(cosine.low) >> 32);
  }
  return table;
}();

struct SineCosine {
  DoubleDouble sine;
  DoubleDouble cosine;
};

/// Of so many steps.
ZEL_ALWAYS_INLINE SineCosine sineCosineOf(std::size_t steps) {
  const std::size_t i = steps % kStepsOfCircle;
  const std::uint64_t lows = kSineTable.lows[i];
  return {
      {kSineTable.high[i], std::bit_cast<double>(lows & kUpperBits)},
      {kSineTable.high[(i + kStepsOfQuarter) % kStepsOfCircle], std::bit_cast<double>(lows << 32)}};
}

/// An angle of so many steps, modulo a circle, and a rest.
struct ReducedAngle {
  std::size_t steps;
  DoubleDouble rest;
  double error;  // of the rest
};

/// Beyond, the steps are too many for the products below.
inline constexpr double kLargestAngle = 12800;

/// For |x| <= kLargestAngle.
template <class Arithmetic>
ZEL_ALWAYS_INLINE ReducedAngle reduceAngle(double x) {
  // Pi as three numbers; the first two have so few bits that their products are exact.
  constexpr double kFirst = 0x1.921fb544p+1 / 256;
  constexpr double kSecond = 0x1.0b4611a6p-33 / 256;
  constexpr double kThird = 0x1.3198a2e037073p-68 / 256;
  const double shifted = multiplyAdd<Arithmetic>(x, 256 / kPiInTwo.high, kWholeNumbers);
  const double steps = shifted - kWholeNumbers;
  // Where the second is the larger one, the first one still is a multiple of its last place.
  const DoubleDouble start =
      sumOfOrdered(multiplyAdd<Arithmetic>(-steps, kFirst, x), -steps * kSecond);
  return {std::bit_cast<std::uint64_t>(shifted) % kStepsOfCircle,
          sumOfOrdered(start.high, multiplyAdd<Arithmetic>(-steps, kThird, start.low)),
          std::fabs(steps) * 0x1p-124};
}

/// How far sineOfSum may be from the exact sine, relative to it, beside the error of the
/// rest.
inline constexpr double kSineError = 0x1p-65;

template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble sineOfSum(const SineCosine& start, DoubleDouble rest) {
  const double sine = start.sine.high;
  const double cosine = start.cosine.high;
  const double r = rest.high;
  const double square = r * r;
  const double beyond_one = square * polynomial<Arithmetic>(square, -1.0 / 2, 1.0 / 24, -1.0 / 720);
  const double beyond_r = multiplyAdd<Arithmetic>(
      r * square, polynomial<Arithmetic>(square, -1.0 / 6, 1.0 / 120, -1.0 / 5040), rest.low);
  const DoubleDouble product = exactProduct<Arithmetic>(cosine, r);
  const DoubleDouble sum = sumOfOrdered(sine, product.high);
  const double tables =
      multiplyAdd<Arithmetic>(start.cosine.low, r, start.sine.low + (product.low + sum.low));
  const double of_sine = multiplyAdd<Arithmetic>(-r, rest.low, beyond_one);
  const double low =
      multiplyAdd<Arithmetic>(sine, of_sine, multiplyAdd<Arithmetic>(cosine, beyond_r, tables));
  return {sum.high, low};
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble sineOf(std::size_t steps, DoubleDouble rest) {
  return sineOfSum<Arithmetic>(sineCosineOf(steps), rest);
}

/// The sine of a reduced angle; its cosine is the sine a quarter further.
template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate sineCandidateOf(const ReducedAngle& angle) {
  const DoubleDouble sine = sineOf<Arithmetic>(angle.steps, angle.rest);
  return rounded(sine.high, sine.low,
                 multiplyAdd<Arithmetic>(std::fabs(sine.high), kSineError, angle.error));
}

/// How far the quotient of tangentOf may be from the exact tangent, likewise.
inline constexpr double kTangentError = 2.25 * kSineError;

template <class Arithmetic>
ZEL_ALWAYS_INLINE DoubleDouble tangentOf(std::size_t steps, DoubleDouble rest) {
  const SineCosine start = sineCosineOf(steps);
  const DoubleDouble rough_sine = sineOfSum<Arithmetic>(start, rest);
  const DoubleDouble rough_cosine = sineOfSum<Arithmetic>({start.cosine, -start.sine}, rest);
  const DoubleDouble sine = sumOfOrdered(rough_sine.high, rough_sine.low);
  const DoubleDouble cosine = sumOfOrdered(rough_cosine.high, rough_cosine.low);
  const double quotient = sine.high / cosine.high;
  const DoubleDouble back = exactProduct<Arithmetic>(quotient, cosine.high);
  const double remainder =
      multiplyAdd<Arithmetic>(-quotient, cosine.low, (sine.high - back.high) - back.low + sine.low);
  return {quotient, remainder / cosine.high};
}

/// For an error of a share of it and one of the angle, which grows with the slope, 1 + tan^2.
template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate roundedTangent(DoubleDouble tangent, double share, double of_angle) {
  const double slope = multiplyAdd<Arithmetic>(tangent.high, tangent.high, 1);
  return rounded(tangent.high, tangent.low,
                 multiplyAdd<Arithmetic>(std::fabs(tangent.high), share, 2 * of_angle * slope));
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate tangentCandidateOf(const ReducedAngle& angle) {
  return roundedTangent<Arithmetic>(tangentOf<Arithmetic>(angle.steps, angle.rest), kTangentError,
                                    angle.error);
}

ZEL_ALWAYS_INLINE bool isModerateAngle(double x) { return std::fabs(x) <= kLargestAngle; }

/// A zero keeps its sign.
ZEL_ALWAYS_INLINE Candidate withZero(double x, Candidate candidate) {
  return {x == 0 ? x : candidate.value, candidate.other};
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate sineCandidate(double x) {
  const Candidate candidate = sineCandidateOf<Arithmetic>(reduceAngle<Arithmetic>(x));
  return withZero(x, candidate).sureOnlyIf(isModerateAngle(x));
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate cosineCandidate(double x) {
  ReducedAngle angle = reduceAngle<Arithmetic>(x);
  angle.steps += kStepsOfQuarter;
  const Candidate candidate = sineCandidateOf<Arithmetic>(angle);
  return candidate.sureOnlyIf(isModerateAngle(x));
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate tangentCandidate(double x) {
  const Candidate candidate = tangentCandidateOf<Arithmetic>(reduceAngle<Arithmetic>(x));
  return withZero(x, candidate).sureOnlyIf(isModerateAngle(x));
}

}  // namespace zel
