// The rounding to 15 digits beside the number text that it stands for, bit for bit.

#include "numbers/rounding.h"

#include <bit>
#include <cfloat>
#include <cmath>
#include <limits>
#include <random>

#include <gtest/gtest.h>

#include "numbers/number_text.h"
#include "numbers/rounding_steps.h"

namespace zel::test {
namespace {

double throughText(double value) {
  const auto read = readNumber(writeNumber(value));
  return read ? *read : std::copysign(HUGE_VAL, value);
}

#if ZEL_HAS_TARGETS
ZEL_TARGET_V3 double roundFused(double value) { return roundAny<FusedArithmetic>(value); }
#endif

bool hasFused() { return bestInstructionSet() != InstructionSet::baseline; }

std::uint64_t bits(double value) { return std::bit_cast<std::uint64_t>(value); }

void compare(double value) {
  const double expected = throughText(value);
  ASSERT_EQ(bits(roundTo15Digits(value)), bits(expected)) << std::hexfloat << value;
#if ZEL_HAS_TARGETS
  if (hasFused()) {
    ASSERT_EQ(bits(roundFused(value)), bits(expected)) << std::hexfloat << value;
  }
#endif
}

void compareWithNeighbours(double value) {
  compare(value);
  compare(-value);
  compare(std::nextafter(value, -DBL_MAX));
  compare(std::nextafter(value, DBL_MAX));
}

class Rounding : public ::testing::Test {
 protected:
  std::mt19937_64 random{20080281};
};

TEST_F(Rounding, IsThatOfTheTextOnRandomBitPatterns) {
  for (int i = 0; i < 300'000; ++i) {
    const double value = std::bit_cast<double>(random());
    if (std::isfinite(value)) compare(value);
    if (HasFatalFailure()) return;
  }
}

TEST_F(Rounding, IsThatOfTheTextOnNumbersOfEverydaySize) {
  std::uniform_real_distribution<double> mantissa(-10, 10);
  std::uniform_int_distribution<int> exponent(-20, 20);
  for (int i = 0; i < 600'000; ++i) {
    const double value = mantissa(random) * std::pow(10, exponent(random));
    compare(value);
    compare(throughText(value));
    if (HasFatalFailure()) return;
  }
}

TEST_F(Rounding, BreaksTiesToEven) {
  std::uniform_int_distribution<long long> fifteen_digits(100'000'000'000'000, 999'999'999'999'999);
  for (int i = 0; i < 50'000; ++i) {
    const auto whole = static_cast<double>(fifteen_digits(random));
    for (const double tie : {whole + 0.5, whole / 16 + 0.5 / 16, whole / 1024 + 0.5 / 1024,
                             10 * whole + 5, 1024 * (10 * whole + 5)})
      compareWithNeighbours(tie);
    if (HasFatalFailure()) return;
  }
  EXPECT_EQ(roundTo15Digits(100'000'000'000'000.5), 100'000'000'000'000);
  EXPECT_EQ(roundTo15Digits(100'000'000'000'001.5), 100'000'000'000'002);
}

TEST_F(Rounding, IsThatOfTheTextNearTies) {
  // Decimals of 16 digits that end in 5: the nearest doubles lie on either side of the tie.
  std::uniform_int_distribution<long long> fifteen_digits(100'000'000'000'000, 999'999'999'999'999);
  std::uniform_int_distribution<int> places(0, 40);
  for (int i = 0; i < 100'000; ++i) {
    const auto value = static_cast<double>(fifteen_digits(random) * 10 + 5);
    compareWithNeighbours(value / std::pow(10, places(random)));
    if (HasFatalFailure()) return;
  }
}

TEST_F(Rounding, IsThatOfTheTextAtThePowersOfTenAndOfTwo) {
  for (int exponent = -323; exponent <= 308; ++exponent) {
    const double power = readNumber("1e" + std::to_string(exponent)).value();
    compareWithNeighbours(power);
    compareWithNeighbours(power * (1 - 1e-15));
    compareWithNeighbours(power * (1 - 5e-16));
  }
  for (int exponent = -1074; exponent <= 1023; ++exponent)
    compareWithNeighbours(std::ldexp(1, exponent));
}

TEST_F(Rounding, KeepsWhatHasFifteenDigits) {
  for (const double value : {1.0, 0.1, -2.5, 1e22, 123456789012345.0, 1.23456789012345e-7})
    EXPECT_EQ(bits(roundTo15Digits(value)), bits(value));
  EXPECT_EQ(roundTo15Digits(1.0 / 3), 0.333333333333333);
  EXPECT_EQ(roundTo15Digits(2.0 / 3), 0.666666666666667);
}

TEST_F(Rounding, GivesZeroWithoutASign) {
  EXPECT_EQ(bits(roundTo15Digits(0.0)), bits(0.0));
  EXPECT_EQ(bits(roundTo15Digits(-0.0)), bits(0.0));
}

TEST_F(Rounding, GivesAnInfinityWhereTheTextIsTooLarge) {
  EXPECT_EQ(roundTo15Digits(DBL_MAX), HUGE_VAL);
  EXPECT_EQ(roundTo15Digits(-DBL_MAX), -HUGE_VAL);
  EXPECT_EQ(roundTo15Digits(1.797693134862314e308), 1.79769313486231e308);
  compareWithNeighbours(1.797693134862315e308);
}

TEST_F(Rounding, IsThatOfTheTextForSubnormals) {
  for (int i = 0; i < 20'000; ++i) compare(std::bit_cast<double>(random() >> (12 + i % 52)));
}

TEST_F(Rounding, KnowsItsPowersOfTen) {
  for (int exponent = kLowestDecade; exponent <= kHighestDecade; ++exponent) {
    const auto power = [](int of) { return readNumber("1e" + std::to_string(of)).value(); };
    const Decade& in = decade(exponent);
    EXPECT_EQ(in.low, power(exponent));
    EXPECT_EQ(in.high, power(exponent + 1));
    EXPECT_EQ(in.scale, power(14 - exponent));
    EXPECT_EQ(in.inverse, power(exponent - 14));
    if (exponent > kLowestDecade && exponent < kHighestDecade) {
      EXPECT_EQ(decadeOf(in.low), exponent);
      EXPECT_EQ(decadeOf(std::nextafter(in.high, 0)), exponent);
    }
    if (isExactDecade(exponent)) {
      EXPECT_EQ(in.scale_rest, 0);
    }
  }
  EXPECT_FALSE(isSafeDecade(decadeOf(0)));
  EXPECT_FALSE(isSafeDecade(decadeOf(HUGE_VAL)));
  EXPECT_FALSE(isSafeDecade(decadeOf(DBL_MIN)));
}

TEST(DecadeGuess, HoldsNothingToBeginWithAndThenTheDecadeOfTheLastValue) {
  DecadeGuess guess;
  EXPECT_FALSE(guess.holds(5) || guess.holds(1) || guess.holds(0));
  guess.moveTo(-37);
  for (const double value : {10.0, -10.0, 55.5, std::nextafter(100, 0)})
    EXPECT_TRUE(guess.holds(value)) << value;
  for (const double value : {100.0, std::nextafter(10, 0), 0.0, HUGE_VAL})
    EXPECT_FALSE(guess.holds(value)) << value;
}

TEST(DecadeGuess, StaysWhereItIsForAValueOfNoExactDecade) {
  DecadeGuess guess;
  guess.moveTo(5);
  for (const double value : {9.9e-5, 1e15, 1e300, 1e-300, 0.0, HUGE_VAL, std::nan("")}) {
    guess.moveTo(value);
    EXPECT_TRUE(guess.holds(5)) << value;
    EXPECT_FALSE(guess.holds(value)) << value;
  }
  for (const double value : {1e-4, 9.9e14}) {
    guess.moveTo(value);
    EXPECT_TRUE(guess.holds(value)) << value;
  }
}

// The program takes this way only where the processor has the instruction; a C library without it
// may be less exact.
TEST_F(Rounding, IsThatOfTheTextInADecadeThatWasGuessed) {
  const volatile double above = 1 + 0x1p-52;  // the compiler would know the exact result
  if (std::fma(0x1p-53, above, 1.0) != 1 + 0x1p-52) GTEST_SKIP() << "std::fma rounds twice here";
  DecadeGuess guess;
  for (int exponent = kLowestExactDecade; exponent <= kHighestExactDecade; ++exponent) {
    const Decade& in = decade(exponent);
    guess.moveTo(in.low);
    std::uniform_real_distribution<double> within(in.low, in.high);
    for (int i = 0; i < 2'000; ++i) {
      const double value = within(random);
      ASSERT_EQ(bits(guess.round(value)), bits(throughText(value))) << std::hexfloat << value;
      ASSERT_EQ(bits(guess.round(-value)), bits(throughText(-value))) << std::hexfloat << value;
    }
  }
}

}  // namespace
}  // namespace zel::test
