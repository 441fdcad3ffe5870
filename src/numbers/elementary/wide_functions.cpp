// The second stage's functions: a reduction that leaves a small number, its Taylor series, and the
// way back. The inverse functions take a first value in double precision and correct it by the
// series of what it lacks.
#include "numbers/elementary/wide_functions.h"

#include <array>
#include <cmath>

#include "numbers/elementary/arc_tangent_steps.h"
#include "numbers/elementary/large_angles.h"
#include "numbers/elementary/logarithm_steps.h"

namespace zel {
namespace {

const Wide& ln2() {
  static const Wide value(
      {0xB17217F7D1CF79AB, 0xC9E3B39803F2F6AF, 0x40F343267298B62D, 0x8A0D175B8BAAFA2B}, 0);
  return value;
}

const Wide& halfPi() {
  static const Wide value(
      {0xC90FDAA22168C234, 0xC4C6628B80DC1CD1, 0x29024E088A67CC74, 0x020BBEA63B139B22}, 1);
  return value;
}

const Wide& decimalPerNatural() {
  static const Wide value(
      {0x6F2DEC549B9438CA, 0x9AADD557D699EE19, 0x1F71A30122E4D101, 0x1D1F96A27BC7529E}, 0);
  return value;
}

constexpr std::size_t kCoefficients = 28;
using Coefficients = std::array<Wide, kCoefficients>;

/// 1 / n; 0 for 0.
const Coefficients& inverses() {
  static const auto values = [] {
    Coefficients result;
    for (std::size_t n = 1; n < kCoefficients; ++n)
      result[n] = Wide(1) / Wide(static_cast<double>(n));
    return result;
  }();
  return values;
}

/// 1 / n!
const Coefficients& inverseFactorials() {
  static const auto values = [] {
    Coefficients result;
    result[0] = Wide(1);
    for (std::size_t n = 1; n < kCoefficients; ++n) result[n] = result[n - 1] * inverses()[n];
    return result;
  }();
  return values;
}

/// 1 + x + x^2/2! + ..., for |x| < 2^-9.
Wide exponentialSeries(const Wide& x) {
  constexpr std::size_t kTerms = 24;
  Wide sum;
  for (std::size_t n = kTerms; n-- > 0;) sum = inverseFactorials()[n] + x * sum;
  return sum;
}

/// x - x^2/2 + x^3/3 - ..., for |x| < 2^-40.
Wide logarithmSeries(const Wide& x) {
  Wide sum;
  for (std::size_t n = 7; n > 0; --n) sum = inverses()[n] - x * sum;
  return x * sum;
}

/// 1/n! - x^2 / (n + 2)! + ..., for |x| < 2^-6: the cosine with n = 0, the sine over x with n = 1.
Wide circularSeries(const Wide& square, std::size_t n) {
  Wide sum;
  for (std::size_t k = n + 26; k > n; k -= 2) sum = inverseFactorials()[k] - square * sum;
  return inverseFactorials()[n] - square * sum;
}

}  // namespace

Wide wideExponential(const Wide& x) {
  constexpr int kHalvings = 8;  // to below 2^-9
  const double twos = std::nearbyint(x.nearest() / kLn2.high);
  Wide result = exponentialSeries((x - Wide(twos) * ln2()).scaled(-kHalvings));
  for (int i = 0; i < kHalvings; ++i) result = result * result;
  return result.scaled(static_cast<int>(twos));
}

double roughLogarithm(double x) {
  const bool is_normal = isPositiveNormal(x);
  const DoubleDouble first = logarithmOf<PlainArithmetic>(is_normal ? x : x * 0x1p54);
  return first.high + first.low - (is_normal ? 0 : 54 * kLn2.high);
}

Wide wideLogarithm(double x) {
  // Next to 1 the series alone loses nothing.
  const bool is_next_to_one = std::fabs(x - 1) < 0x1p-40;
  const Wide near(is_next_to_one ? 0 : roughLogarithm(x));
  const Wide excess = Wide(x) * wideExponential(-near) - Wide(1);
  return near + logarithmSeries(excess);
}

Wide wideDecimalLogarithm(double x) { return wideLogarithm(x) * decimalPerNatural(); }

WideSineCosine wideSineCosine(const Wide& radians) {
  constexpr int kHalvings = 7;
  const Wide angle = radians.scaled(-kHalvings);
  const Wide square = angle * angle;
  Wide sine = angle * circularSeries(square, 1);
  Wide cosine = circularSeries(square, 0);
  for (int i = 0; i < kHalvings; ++i) {
    const Wide sine_of_double = (sine * cosine).scaled(1);
    cosine = Wide(1) - (sine * sine).scaled(1);
    sine = sine_of_double;
  }
  return {sine, cosine};
}

QuarterTurns quarterTurns(double radians) {
  TurnBits bits = turnBits(radians);
  const auto quarters = static_cast<unsigned>(bits[0] >> 62);
  const bool is_above_half = (bits[0] >> 61) % 2 != 0;
  for (std::size_t i = 0; i < bits.size(); ++i) {
    bits[i] = bits[i] << 2 | (i + 1 < bits.size() ? bits[i + 1] >> 62 : 0);
    if (is_above_half) bits[i] = ~bits[i];  // 1 minus it
  }
  const Wide rest =
      Wide({bits[0], bits[1], bits[2], bits[3]}, 0) + Wide({bits[4], bits[5]}, -Wide::kBits);
  if (is_above_half) return {(quarters + 1) % 4, -rest};
  return {quarters, rest};
}

Wide radiansOf(const Wide& quarter_turns) { return quarter_turns * halfPi(); }

Wide wideArcTangent(double magnitude) {
  const DoubleDouble first = arcTangentOf<PlainArithmetic>(magnitude);
  const Wide near(first.high + first.low);
  const auto [sine, cosine] = wideSineCosine(near);
  const Wide x(magnitude);
  const Wide lacks = (x * cosine - sine) / (cosine + x * sine);
  const Wide square = lacks * lacks;
  const Wide series = Wide(1) - square * (inverses()[3] - square * inverses()[5]);
  return near + lacks * series;
}

}  // namespace zel
