// What the first stage leaves: special values, arguments outside its range, and those few whose
// value is too near to the middle of two doubles. Those are computed with more bits, at last with
// 256, which decide every case that is known; a power that is exactly a double or such a middle is
// found as a whole number first.
#include "numbers/elementary/second_stage.h"

#include <bit>
#include <cmath>
#include <limits>
#include <optional>

#include "numbers/elementary/fine_functions.h"
#include "numbers/elementary/large_angles.h"
#include "numbers/elementary/wide_functions.h"

namespace zel {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();

/// Below, the rest is the angle itself.
constexpr double kSmallAngle = 0.5;

double nearestCircular(Elementary function, unsigned quarters, const Wide& radians) {
  const auto [sine, cosine] = wideSineCosine(radians);
  if (function == Elementary::tangent)
    return (quarters % 2 == 0 ? sine / cosine : -(cosine / sine)).nearest();
  if (function == Elementary::cosine) ++quarters;
  const Wide& value = quarters % 2 == 0 ? sine : cosine;
  return (quarters % 4 < 2 ? value : -value).nearest();
}

double wideCircular(Elementary function, double x) {
  const double magnitude = std::fabs(x);
  const double sign = function != Elementary::cosine && x < 0 ? -1 : 1;
  if (magnitude < kSmallAngle) return sign * nearestCircular(function, 0, Wide(magnitude));
  const QuarterTurns turns = quarterTurns(magnitude);
  return sign * nearestCircular(function, turns.quarters, radiansOf(turns.rest));
}

Candidate fineCircular(Elementary function, const ReducedAngle& angle) {
  if (function == Elementary::tangent)
    return roundedTangent<PlainArithmetic>(fineTangent(angle), kFineTangentError, angle.error);
  const auto [sine, cosine] = fineSineCosine(angle);
  const DoubleDouble& value = function == Elementary::sine ? sine : cosine;
  return rounded(value.high, value.low, std::fabs(value.high) * kFineSineError + angle.error);
}

double settleCircular(Elementary function, double x) {
  if (!std::isfinite(x)) return kNoNumber;
  const double magnitude = std::fabs(x);
  const Candidate candidate =
      fineCircular(function, isModerateAngle(x) ? reduceAngle<PlainArithmetic>(magnitude)
                                                : reduceLargeAngle(magnitude));
  if (!candidate.isSure()) return wideValue(function, x);
  return std::signbit(x) && function != Elementary::cosine ? -candidate.value : candidate.value;
}

double settleArcTangent(double x) {
  constexpr double kAllButVertical = 0x1p64;
  if (std::isnan(x)) return x;
  const double magnitude = std::fabs(x);
  if (magnitude >= kAllButVertical) return std::copysign(kPiInTwo.high / 2, x);
  if (magnitude < kLeastFineTangent) return wideValue(Elementary::arc_tangent, x);
  const DoubleDouble fine = fineArcTangent(magnitude);
  const Candidate candidate = rounded(fine.high, fine.low, fine.high * kFineArcTangentError);
  if (!candidate.isSure()) return wideValue(Elementary::arc_tangent, x);
  return std::copysign(candidate.value, x);
}

double settleExponential(double x) {
  constexpr double kTooLarge = 710;
  constexpr double kTooSmall = -746;
  if (std::isnan(x)) return x;
  if (x > kTooLarge) return kInfinity;
  if (x < kTooSmall) return 0;
  return wideValue(Elementary::exponential, x);
}

double settleLogarithm(Elementary function, double x) {
  if (x == 0) return -kInfinity;
  if (x < 0) return kNoNumber;
  if (!std::isfinite(x)) return x;
  if (!isPositiveNormal(x)) return wideValue(function, x);
  DoubleDouble fine = fineLogarithmOf<PlainArithmetic>(x);
  if (function == Elementary::decimal_logarithm) fine = multiply(fine, kDecimalPerNatural);
  const Candidate candidate = rounded(fine.high, fine.low, fine.high * (2 * kFineLogarithmError));
  return candidate.isSure() ? candidate.value : wideValue(function, x);
}

bool isWhole(double y) { return std::nearbyint(y) == y; }
bool isOdd(double y) { return isWhole(y) && std::fmod(y, 2) != 0; }

/// x^y as a whole number of up to 54 bits times a power of two, where it is one: a number or the
/// middle of two. x is positive and not 1, and the power is not far out of range.
std::optional<Wide> exactPower(double x, double y) {
  constexpr std::uint64_t kLimit = std::uint64_t{1} << 54;
  int shift = 0;
  auto odd = static_cast<std::uint64_t>(std::ldexp(std::frexp(x, &shift), 53));
  shift += std::countr_zero(odd) - 53;
  odd >>= std::countr_zero(odd);
  for (; !isWhole(y); y *= 2) {
    const auto root = static_cast<std::uint64_t>(std::sqrt(static_cast<double>(odd)));
    if (root * root != odd || shift % 2 != 0) return std::nullopt;
    odd = root;
    shift /= 2;
  }
  std::uint64_t power = 1;
  for (double i = 0; odd != 1 && i != y; ++i) {
    power *= odd;
    if (y < 0 || power >= kLimit) return std::nullopt;
    if (odd > kLimit / power && i + 1 != y) return std::nullopt;
  }
  return Wide({power}, Wide::kLimbBits + static_cast<int>(shift * y));
}

double powerOfZeroOrInfinity(double x, double y) {
  const double magnitude = (x == 0) == (y > 0) ? 0 : kInfinity;
  return std::signbit(x) && isOdd(y) ? -magnitude : magnitude;
}

double powerToInfinity(double x, double y) {
  if (std::fabs(x) == 1) return 1;
  return (std::fabs(x) > 1) == (y > 0) ? kInfinity : 0;
}

}  // namespace

double wideValue(Elementary function, double x) {
  switch (function) {
    case Elementary::arc_tangent: return std::copysign(wideArcTangent(std::fabs(x)).nearest(), x);
    case Elementary::exponential: return wideExponential(Wide(x)).nearest();
    case Elementary::natural_logarithm: return wideLogarithm(x).nearest();
    case Elementary::decimal_logarithm: return wideDecimalLogarithm(x).nearest();
    default: return wideCircular(function, x);
  }
}

double widePower(double x, double y) {
  constexpr double kFarOut = 800;
  constexpr double kAllButOne = 0x1p-64;
  const double magnitude = std::fabs(x);
  const double exponent = y * roughLogarithm(magnitude);
  if (exponent > kFarOut) return kInfinity;
  if (exponent < -kFarOut) return 0;
  if (std::fabs(exponent) < kAllButOne) return 1;
  if (const auto exact = exactPower(magnitude, y)) return exact->nearest();
  return wideExponential(Wide(y) * wideLogarithm(magnitude)).nearest();
}

double settle(Elementary function, double x) {
  switch (function) {
    case Elementary::arc_tangent: return settleArcTangent(x);
    case Elementary::exponential: return settleExponential(x);
    case Elementary::natural_logarithm:
    case Elementary::decimal_logarithm: return settleLogarithm(function, x);
    default: return settleCircular(function, x);
  }
}

double settlePower(double x, double y) {
  if (y == 0 || x == 1) return 1;
  if (std::isnan(x) || std::isnan(y)) return kNoNumber;
  if (std::isinf(y)) return powerToInfinity(x, y);
  if (x == 0 || std::isinf(x)) return powerOfZeroOrInfinity(x, y);
  if (x < 0 && !isWhole(y)) return kNoNumber;
  const double magnitude = widePower(x, y);
  return x < 0 && isOdd(y) ? -magnitude : magnitude;
}

}  // namespace zel
