// Values that are numbers of few digits, middles of two doubles, or no numbers at all.

#include <bit>
#include <cfloat>
#include <cmath>
#include <limits>
#include <string>

#include <gtest/gtest.h>

#include "numbers/elementary/elementary.h"
#include "numbers/elementary/second_stage.h"

namespace zel::test {
namespace {

constexpr double kInfinity = std::numeric_limits<double>::infinity();
constexpr double kNoNumber = std::numeric_limits<double>::quiet_NaN();
constexpr double kLeast = std::numeric_limits<double>::denorm_min();

void expectSame(double value, double expected) {
  if (std::isnan(expected))
    EXPECT_TRUE(std::isnan(value)) << value;
  else
    EXPECT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected))
        << std::hexfloat << value << " is not " << expected;
}

TEST(ExactCases, AreZeroAtTheirPlace) {
  expectSame(sine(0.0), 0.0);
  expectSame(sine(-0.0), -0.0);
  expectSame(tangent(0.0), 0.0);
  expectSame(tangent(-0.0), -0.0);
  expectSame(arcTangent(0.0), 0.0);
  expectSame(arcTangent(-0.0), -0.0);
  expectSame(naturalLogarithm(1), 0.0);
  expectSame(decimalLogarithm(1), 0.0);
}

TEST(ExactCases, AreOneAtTheirPlace) {
  for (const double zero : {0.0, -0.0}) {
    expectSame(cosine(zero), 1);
    expectSame(exponential(zero), 1);
  }
}

TEST(ExactCases, OfTheDecimalLogarithmAreTheExponents) {
  double power_of_ten = 1;
  for (int n = 0; n <= 22; ++n, power_of_ten *= 10) expectSame(decimalLogarithm(power_of_ten), n);
}

TEST(ExactCases, OfAPowerAreItsValue) {
  for (double x = -40; x <= 40; ++x) {
    double product = 1;
    for (int n = 0; n <= 30 && std::fabs(product) < 0x1p53; ++n, product *= x)
      expectSame(power(x, n), product);
  }
  for (double root = 1; root <= 1000; ++root) {
    expectSame(power(root * root, 0.5), root);
    expectSame(power(root * root, -1), 1 / (root * root));
    expectSame(power(root * root, 1.5), root * root * root);
    expectSame(power(root * root * root * root, 0.25), root);
  }
  expectSame(power(0x1p-1074, 0.5), 0x1p-537);
  expectSame(power(0x1p512, -2), 0x1p-1024);
  expectSame(power(2, -1074), kLeast);
  expectSame(power(-2, -1073), -2 * kLeast);
}

TEST(ExactCases, InTheMiddleOfTwoDoublesGoToTheEvenOne) {
  // 94906267^2 = 9007199515875289 is odd and above 2^53.
  expectSame(power(94906267, 2), 9007199515875288);
  expectSame(power(-94906267, 2), 9007199515875288);
  // 208065^3 has 54 bits and is odd.
  for (double x = 208065; x < 208165; x += 2) {
    const auto whole = static_cast<std::uint64_t>(x);
    const std::uint64_t cube = whole * whole * whole;
    ASSERT_GT(cube, std::uint64_t{1} << 53);
    ASSERT_LT(cube, std::uint64_t{1} << 54);
    expectSame(power(x, 3), static_cast<double>(cube));
    expectSame(widePower(x, 3), static_cast<double>(cube));
  }
  // Half the least number goes to 0, three halves of it to two.
  expectSame(power(2, -1075), 0);
  expectSame(power(0x1.8p-537, 2), 2 * kLeast);
  expectSame(power(0.5, 1075), 0);
}

TEST(ExactCases, OfWholeTurnsOfAFifteenDigitPiAreNearZeroAsTheyShould) {
  constexpr double kPiOf15Digits = 3.14159265358979;
  expectSame(sine(kPiOf15Digits), 0x1.d1a62633145c0p-49);
  expectSame(cosine(kPiOf15Digits), -1);
}

TEST(SpecialValues, OfAnglesAreNoNumbersAtInfinity) {
  for (const double infinite : {kInfinity, -kInfinity, kNoNumber}) {
    expectSame(sine(infinite), kNoNumber);
    expectSame(cosine(infinite), kNoNumber);
    expectSame(tangent(infinite), kNoNumber);
  }
}

TEST(SpecialValues, OfTheArcTangentAreAQuarterTurnAtInfinity) {
  expectSame(arcTangent(kInfinity), 0x1.921fb54442d18p+0);
  expectSame(arcTangent(-kInfinity), -0x1.921fb54442d18p+0);
  expectSame(arcTangent(DBL_MAX), 0x1.921fb54442d18p+0);
  expectSame(arcTangent(kNoNumber), kNoNumber);
}

TEST(SpecialValues, OfTheExponentialAreBeyondTheRange) {
  expectSame(exponential(kInfinity), kInfinity);
  expectSame(exponential(-kInfinity), 0);
  expectSame(exponential(kNoNumber), kNoNumber);
  expectSame(exponential(709.782712893384), 0x1.fffffffffff2ap+1023);
  expectSame(exponential(709.782712893385), kInfinity);
  expectSame(exponential(-745.133219101941), kLeast);
  expectSame(exponential(-745.133219101942), 0);
  expectSame(exponential(-DBL_MAX), 0);
}

TEST(SpecialValues, OfLogarithmsAreAtZeroAndBelow) {
  for (const auto logarithm : {naturalLogarithm, decimalLogarithm}) {
    expectSame(logarithm(0.0), -kInfinity);
    expectSame(logarithm(-0.0), -kInfinity);
    expectSame(logarithm(-1), kNoNumber);
    expectSame(logarithm(-kInfinity), kNoNumber);
    expectSame(logarithm(kInfinity), kInfinity);
    expectSame(logarithm(kNoNumber), kNoNumber);
  }
  expectSame(naturalLogarithm(kLeast), -0x1.74385446d71c3p+9);
}

TEST(ExactCases, OfPowersNextToOneAreNotMissed) {
  for (const double y : {0x1p53, 0x1p60, 1e300}) expectSame(power(-1, y), 1);
  expectSame(power(-1, 0x1p52 + 1), -1);
  expectSame(power(1 + 0x1p-52, 0x1p52), 0x1.5bf0a8b145769p+1);
  expectSame(power(1 - 0x1p-53, -0x1p53), 0x1.5bf0a8b14576ap+1);
  expectSame(power(1 + 0x1p-52, 0x1p60), 0x1.41c7a8814be19p+369);
}

TEST(SpecialValues, OfPowersAreThoseOfTheStandard) {
  const double values[] = {0.0,       -0.0,       0.5,        -0.5,        1,      -1,
                           2,         -2,         3,          -3,          2.5,    -2.5,
                           1e300,     -1e300,     0x1p52 + 1, -0x1p52 - 1, 0x1p53, 0x1p60,
                           kInfinity, -kInfinity, kNoNumber};
  for (const double x : values)
    for (const double y : values) {
      SCOPED_TRACE(std::to_string(x) + " ^ " + std::to_string(y));
      const double library = std::pow(x, y);
      const double ours = power(x, y);
      // The library may miss the last bit, but not what is no number, infinite, zero or one.
      if (std::isfinite(library) && library != 0 && std::fabs(library) != 1) {
        EXPECT_EQ(std::signbit(ours), std::signbit(library));
        EXPECT_NEAR(ours, library, std::fabs(library) * 1e-15);
      } else {
        expectSame(ours, library);
      }
    }
}

}  // namespace
}  // namespace zel::test
