// The second stage's functions: a reduction that leaves a small number, its Taylor series, and the
// way back. The inverse functions take a first value in double precision and correct it by the
// series of what it lacks. Large angles are reduced as Payne and Hanek (1983) do it: only those bits
// of 2/pi are multiplied that make the fraction of a turn.
#include "numbers/elementary/wide_functions.h"

#include <algorithm>
#include <cmath>

#include "numbers/elementary/arc_tangent_steps.h"
#include "numbers/elementary/logarithm_steps.h"

namespace zel {
namespace {

const Wide& ln2() {
  static const Wide value({0xB17217F7, 0xD1CF79AB, 0xC9E3B398, 0x03F2F6AF, 0x40F34326, 0x7298B62D,
                           0x8A0D175B, 0x8BAAFA2B, 0xE7B87620, 0x6DEBAC98},
                          0);
  return value;
}

const Wide& halfPi() {
  static const Wide value({0xC90FDAA2, 0x2168C234, 0xC4C6628B, 0x80DC1CD1, 0x29024E08, 0x8A67CC74,
                           0x020BBEA6, 0x3B139B22, 0x514A0879, 0x8E3404DD},
                          1);
  return value;
}

const Wide& decimalPerNatural() {
  static const Wide value({0x6F2DEC54, 0x9B9438CA, 0x9AADD557, 0xD699EE19, 0x1F71A301, 0x22E4D101,
                           0x1D1F96A2, 0x7BC7529E, 0x3AA1277D, 0x0A0179F9},
                          0);
  return value;
}

/// The bits of 2/pi after the point.
constexpr std::array<std::uint32_t, 46> kTwoOverPi = {
    0xA2F9836E, 0x4E441529, 0xFC2757D1, 0xF534DDC0, 0xDB629599, 0x3C439041, 0xFE5163AB, 0xDEBBC561,
    0xB7246E3A, 0x424DD2E0, 0x06492EEA, 0x09D1921C, 0xFE1DEB1C, 0xB129A73E, 0xE88235F5, 0x2EBB4484,
    0xE99C7026, 0xB45F7E41, 0x3991D639, 0x835339F4, 0x9C845F8B, 0xBDF9283B, 0x1FF897FF, 0xDE05980F,
    0xEF2F118B, 0x5A0A6D1F, 0x6D367ECF, 0x27CB09B7, 0x4F463F66, 0x9E5FEA2D, 0x7527BAC7, 0xEBE5F17B,
    0x3D0739F7, 0x8A5292EA, 0x6BFB5FB1, 0x1F8D5D08, 0x56033046, 0xFC7B6BAB, 0xF0CFBC20, 0x9AF4361D,
    0xA9E39161, 0x5EE61B08, 0x6599855F, 0x14A06840, 0x8DFFD880, 0x4D732731};

/// A double as a whole number of 53 bits times 2^exponent.
struct WholeDouble {
  std::uint64_t whole;
  int exponent;
};

WholeDouble wholeOf(double value) {
  int exponent = 0;
  const double fraction = std::frexp(value, &exponent);
  return {static_cast<std::uint64_t>(std::ldexp(fraction, 53)), exponent - 53};
}

constexpr std::size_t kWindow = 14;
using Product = std::array<std::uint32_t, kWindow + 2>;

/// So many words of 2/pi, from the first one on, times a whole number.
Product timesTwoOverPi(std::uint64_t whole, std::size_t first) {
  Product product{};
  for (std::size_t digit = 2; digit-- > 0;) {
    const std::uint64_t factor = digit == 1 ? whole & 0xFFFFFFFF : whole >> 32;
    std::uint64_t carry = 0;
    for (std::size_t i = kWindow; i-- > 0;) {
      carry += factor * kTwoOverPi[first + i] + product[i + digit + 1];
      product[i + digit + 1] = static_cast<std::uint32_t>(carry);
      carry >>= 32;
    }
    product[digit] = static_cast<std::uint32_t>(carry);
  }
  return product;
}

/// 32 bits of the product from a position on; zeros beyond its end.
std::uint32_t bitsAt(const Product& product, std::size_t position) {
  const auto word = [&](std::size_t i) -> std::uint64_t {
    return i < product.size() ? product[i] : 0;
  };
  const std::uint64_t both = (word(position / 32) << 32) | word(position / 32 + 1);
  return static_cast<std::uint32_t>((both << (position % 32)) >> 32);
}

/// 1 + x + x^2/2! + ..., for |x| < 2^-8.
Wide exponentialSeries(const Wide& x) {
  Wide sum(1);
  for (std::uint32_t n = 28; n > 0; --n) sum = Wide(1) + x * sum / n;
  return sum;
}

/// x - x^2/2 + x^3/3 - ..., for |x| < 2^-40.
Wide logarithmSeries(const Wide& x) {
  Wide sum;
  for (std::uint32_t n = 8; n > 0; --n) sum = Wide(1) / n - x * sum;
  return x * sum;
}

/// 1 - x^2 / (n + 1)(n + 2) + ..., for |x| < 2^-6: the cosine with n = 0, the sine over x with 1.
Wide circularSeries(const Wide& square, std::uint32_t n) {
  Wide sum(1);
  for (std::uint32_t k = n + 34; k > n; k -= 2) sum = Wide(1) - square * sum / (k * (k - 1));
  return sum;
}

}  // namespace

Wide wideExponential(const Wide& x) {
  constexpr int kHalvings = 8;
  const double twos = std::nearbyint(x.nearest() / kLn2.high);
  Wide result = exponentialSeries((x - Wide(twos) * ln2()).scaled(-kHalvings));
  for (int i = 0; i < kHalvings; ++i) result = result * result;
  return result.scaled(static_cast<int>(twos));
}

Wide wideLogarithm(double x) {
  int exponent = 0;
  const double fraction = std::frexp(x, &exponent);
  const DoubleDouble part = logarithmOf<PlainArithmetic>(fraction);
  const Wide near(part.high + exponent * kLn2.high);
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
  const WholeDouble angle = wholeOf(radians);
  // The words before the first one give whole turns.
  const auto first = static_cast<std::size_t>(std::max(angle.exponent - 2, 0) / 32);
  const Product product = timesTwoOverPi(angle.whole, first);
  const auto point = static_cast<std::size_t>(64 + angle.exponent - static_cast<int>(first) * 32);
  Wide::Limbs limbs;
  Wide::Limbs more;
  for (std::size_t i = 0; i < Wide::kLimbs; ++i) {
    limbs[i] = bitsAt(product, point + 32 * i);
    more[i] = bitsAt(product, point + 32 * (i + Wide::kLimbs));
  }
  const bool is_above_half = limbs[0] >> 31 != 0;
  const Wide fraction = Wide(limbs, 0) + Wide(more, -Wide::kBits);
  const unsigned quarters = bitsAt(product, point - 2) >> 30;
  if (!is_above_half) return {quarters, fraction};
  return {(quarters + 1) % 4, fraction - Wide(1)};
}

Wide radiansOf(const Wide& quarter_turns) { return quarter_turns * halfPi(); }

Wide wideArcTangent(double magnitude) {
  const Wide near(arcTangentOf<PlainArithmetic>(magnitude).high);
  const auto [sine, cosine] = wideSineCosine(near);
  const Wide x(magnitude);
  const Wide lacks = (x * cosine - sine) / (cosine + x * sine);
  const Wide square = lacks * lacks;
  const Wide series = Wide(1) - square * (Wide(1) / 3 - square * (Wide(1) / 5 - square / 7));
  return near + lacks * series;
}

}  // namespace zel
