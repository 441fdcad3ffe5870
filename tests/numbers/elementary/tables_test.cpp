// The tables that the compiler makes, made again by the machine, and beside arithmetic that shares
// nothing with them.

#include <array>
#include <bit>
#include <charconv>
#include <cstdint>
#include <string>

#include <gtest/gtest.h>

#include "numbers/elementary/circular_steps.h"
#include "numbers/elementary/logarithm_steps.h"
#include "numbers/elementary/wide_functions.h"

namespace zel::test {
namespace {

/// 10^exponent as the standard library reads it.
double readPower(int exponent) {
  const std::string text = "1e" + std::to_string(exponent);
  double power = 0;
  std::from_chars(text.data(), text.data() + text.size(), power);
  return power;
}

std::array<std::uint64_t, 6> bitsOf(const Decade& in) {
  return std::bit_cast<std::array<std::uint64_t, 6>>(in);
}

TEST(Decades, AreTheSameFromTheCompilerAndFromTheMachine) {
  for (int exponent = kLowestDecade; exponent <= kHighestDecade; ++exponent)
    EXPECT_EQ(bitsOf(decadeOfExponent(exponent)), bitsOf(decade(exponent))) << exponent;
}

TEST(Decades, BeginAndScaleByThePowersOfTenNearestToTheExactOnes) {
  for (int exponent = kLowestDecade; exponent <= kHighestDecade; ++exponent) {
    const Decade& in = decade(exponent);
    EXPECT_EQ(in.low, readPower(exponent)) << exponent;
    EXPECT_EQ(in.high, readPower(exponent + 1)) << exponent;
    EXPECT_EQ(in.scale, readPower(14 - exponent)) << exponent;
    EXPECT_EQ(in.inverse, readPower(exponent - 14)) << exponent;
  }
}

TEST(Decades, AreNoNumbersWhereTheArithmeticIsNotSafe) {
  for (const int exponent : {kFirstDecade, kLowestDecade - 1, kHighestDecade + 1, kLastDecade}) {
    EXPECT_NE(decadeOfExponent(exponent).low, decadeOfExponent(exponent).low) << exponent;
    EXPECT_NE(decade(exponent).low, decade(exponent).low) << exponent;
  }
}

TEST(AlternatingSeries, IsTheSineAndTheCosineOfASmallAngle) {
  for (double angle = 0x1p-12; angle < 0.02; angle *= 1.3) {
    const WideSineCosine exact = wideSineCosine(Wide(angle));
    EXPECT_EQ(alternatingSeries({angle, 0}, 1).high, exact.sine.nearest()) << angle;
    EXPECT_EQ(alternatingSeries({angle, 0}, 0).high, exact.cosine.nearest()) << angle;
  }
}

TEST(LogarithmOfNextOver, IsTheLogarithmOfTheQuotient) {
  for (int n = 128; n < 256; ++n) {
    const Wide exact = wideLogarithm(n + 1) - wideLogarithm(n);
    EXPECT_EQ(logarithmOfNextOver(n).high, exact.nearest()) << n;
  }
}

}  // namespace
}  // namespace zel::test
