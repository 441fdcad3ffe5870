// The functions of 256 bits beside MPFR: how many bits of them are good.

#include <array>
#include <cmath>
#include <random>
#include <span>

#include <gtest/gtest.h>

#include "numbers/elementary/large_angles.h"
#include "numbers/elementary/mpfr_oracle.h"
#include "numbers/elementary/wide_functions.h"

namespace zel::test {
namespace {

using Parts = std::array<double, 6>;

/// A number of 256 bits as the sum of doubles.
Parts partsOf(Wide value) {
  Parts parts;
  for (double& part : parts) {
    part = value.nearest();
    value = value - Wide(part);
  }
  return parts;
}

class WideFunctions : public ::testing::Test {
 protected:
  double between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  }
  static void expectBits(int bits, Elementary function, double x, const Wide& value) {
    EXPECT_LE(relativeErrorByMpfr(function, x, partsOf(value)), std::ldexp(1, -bits)) << x;
  }
  static constexpr int kArguments = 2000;
  std::mt19937_64 random{21};
};

TEST(TurnBits, AreThoseOfTwoOverPiForEachPowerOfTwo) {
  for (int exponent = -1; exponent < 1024; ++exponent) {
    const TurnBits bits = turnBits(std::ldexp(1, exponent));
    int place = exponent;
    for (const std::uint64_t word : std::span(bits).first<5>()) {
      EXPECT_EQ(word, quarterTurnsOfPowerOfTwo(place)) << exponent;
      place += 64;
    }
  }
}

TEST_F(WideFunctions, ReduceAnglesToHalfAQuarterTurn) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = i % 2 == 0 ? between(0.5, 100) : std::exp(between(0, 700));
    EXPECT_LE(std::fabs(quarterTurns(x).rest.nearest()), 0.5) << x;
  }
}

TEST_F(WideFunctions, HaveTheExponentialTo240Bits) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = between(-300, 300);
    expectBits(240, Elementary::exponential, x, wideExponential(Wide(x)));
  }
}

TEST_F(WideFunctions, HaveLogarithmsTo240BitsAndTo200NextToOne) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = std::exp((i % 2 == 0 ? 1 : -1) * between(1, 300));
    expectBits(240, Elementary::natural_logarithm, x, wideLogarithm(x));
    expectBits(240, Elementary::decimal_logarithm, x, wideDecimalLogarithm(x));
    const double next_to_one = 1 + std::ldexp(between(-1, 1), -i % 50);
    if (next_to_one <= 0 || next_to_one == 1) continue;
    expectBits(200, Elementary::natural_logarithm, next_to_one, wideLogarithm(next_to_one));
  }
}

TEST_F(WideFunctions, HaveSineAndCosineTo240Bits) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = between(-1.5, 1.5);
    const auto [sine, cosine] = wideSineCosine(Wide(x));
    expectBits(240, Elementary::sine, x, sine);
    expectBits(240, Elementary::cosine, x, cosine);
  }
}

TEST_F(WideFunctions, HaveTheArcTangentTo240Bits) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = i % 2 == 0 ? between(0, 10) : std::exp(between(-100, 44));
    expectBits(240, Elementary::arc_tangent, x, wideArcTangent(x));
  }
}

}  // namespace
}  // namespace zel::test
