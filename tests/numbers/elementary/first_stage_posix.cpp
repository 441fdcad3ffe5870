// The bounds of what comes before 256 bits as docs/numbers.md derives them, beside MPFR, and the
// tables.

#include <bit>
#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "numbers/elementary/fine_functions.h"
#include "numbers/elementary/large_angles.h"
#include "numbers/elementary/mpfr_oracle.h"

namespace zel::test {
namespace {

constexpr int kArguments = 40'000;

template <class Arithmetic>
class FirstStage : public ::testing::Test {
 protected:
  double between(double low, double high) {
    return std::uniform_real_distribution<double>(low, high)(random);
  }
  std::mt19937_64 random{12};
};

// The fused arithmetic gives the same here, slowly, where the processor has no instruction for it.
using Arithmetics = ::testing::Types<PlainArithmetic, FusedArithmetic>;
TYPED_TEST_SUITE(FirstStage, Arithmetics, );

TYPED_TEST(FirstStage, KeepsTheBoundOfTheExponential) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = i % 2 == 0 ? this->between(-10, 10) : this->between(-600, 600);
    const ScaledExponential value = exponentialOf<TypeParam>(x, 0);
    ASSERT_LE(relativeErrorByMpfr(Elementary::exponential, x,
                                  {value.high * value.scale, value.low * value.scale}),
              kExponentialError)
        << x;
  }
}

TYPED_TEST(FirstStage, KeepsTheBoundsOfTheLogarithms) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = i % 3 == 0   ? this->between(0.98, 1.02)
                     : i % 3 == 1 ? this->between(0, 100)
                                  : std::exp(this->between(-700, 700));
    ASSERT_LE(relativeErrorByMpfr(Elementary::natural_logarithm, x, logarithmOf<TypeParam>(x)),
              kLogarithmError)
        << x;
    ASSERT_LE(relativeErrorByMpfr(Elementary::natural_logarithm, x, fineLogarithmOf<TypeParam>(x)),
              kFineLogarithmError)
        << x;
  }
}

TYPED_TEST(FirstStage, KeepsTheBoundsOfSineAndTangent) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = i % 3 == 0   ? this->between(-0.02, 0.02)
                     : i % 3 == 1 ? this->between(-10, 10)
                                  : this->between(-kLargestAngle, kLargestAngle);
    const ReducedAngle angle = reduceAngle<TypeParam>(x);
    const DoubleDouble sine = sineOf<TypeParam>(angle.steps, angle.rest);
    ASSERT_LE(relativeErrorByMpfr(Elementary::sine, x, sine),
              kSineError + angle.error / std::fabs(sine.high))
        << x;
    const DoubleDouble tangent = tangentOf<TypeParam>(angle.steps, angle.rest);
    const double slope = 1 + tangent.high * tangent.high;
    ASSERT_LE(relativeErrorByMpfr(Elementary::tangent, x, tangent),
              kTangentError + 2 * angle.error * slope / std::fabs(tangent.high))
        << x;
  }
}

TYPED_TEST(FirstStage, KeepsItsBoundNearTheZerosOfTheSine) {
  for (int i = 1; i < 4000; ++i) {
    const double x = i * 3.14159265358979;
    const ReducedAngle angle = reduceAngle<TypeParam>(x);
    const DoubleDouble sine = sineOf<TypeParam>(angle.steps, angle.rest);
    ASSERT_LE(relativeErrorByMpfr(Elementary::sine, x, sine),
              kSineError + angle.error / std::fabs(sine.high))
        << x;
  }
}

TYPED_TEST(FirstStage, KeepsTheBoundOfTheSineAtLargeAngles) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = std::ldexp(this->between(1, 2), i % 1024);
    const ReducedAngle angle = reduceLargeAngle(x);
    ASSERT_LE(relativeErrorByMpfr(Elementary::sine, x, sineOf<TypeParam>(angle.steps, angle.rest)),
              kSineError)
        << x;
  }
}

TYPED_TEST(FirstStage, KeepsTheBoundOfTheArcTangent) {
  for (int i = 0; i < kArguments; ++i) {
    const double x = i % 3 == 0   ? this->between(0, 0.05)
                     : i % 3 == 1 ? this->between(0, 10)
                                  : std::exp(this->between(-30, 600));
    ASSERT_LE(relativeErrorByMpfr(Elementary::arc_tangent, x, arcTangentOf<TypeParam>(x)),
              kArcTangentError)
        << x;
  }
}

/// Next to zero, of everyday size, any, and next to whole turns.
double angleOfSort(int i, std::mt19937_64& random) {
  const double size = i % 4 == 0 ? 0.02 : i % 4 == 1 ? 10 : kLargestAngle;
  if (i % 4 == 3) return i * 3.14159265358979;
  return std::uniform_real_distribution<double>(-size, size)(random);
}

TEST(FineFunctions, KeepTheBoundsOfSineCosineAndTangent) {
  std::mt19937_64 random(8);
  for (int i = 1; i < kArguments / 10; ++i) {
    const double x = angleOfSort(i, random);
    const ReducedAngle angle = reduceAngle<PlainArithmetic>(x);
    const auto [sine, cosine] = fineSineCosine(angle);
    EXPECT_LE(relativeErrorByMpfr(Elementary::sine, x, sine),
              kFineSineError + angle.error / std::fabs(sine.high))
        << x;
    EXPECT_LE(relativeErrorByMpfr(Elementary::cosine, x, cosine),
              kFineSineError + angle.error / std::fabs(cosine.high))
        << x;
    const DoubleDouble tangent = fineTangent(angle);
    const double slope = 1 + tangent.high * tangent.high;
    EXPECT_LE(relativeErrorByMpfr(Elementary::tangent, x, tangent),
              kFineTangentError + 2 * angle.error * slope / std::fabs(tangent.high))
        << x;
  }
}

TEST(FineFunctions, KeepTheBoundOfTheSineAtLargeAngles) {
  std::mt19937_64 random(9);
  std::uniform_real_distribution<double> significand(1, 2);
  for (int i = 0; i < kArguments / 10; ++i) {
    const double x = std::ldexp(significand(random), i % 1024);
    EXPECT_LE(relativeErrorByMpfr(Elementary::sine, x, fineSineCosine(reduceLargeAngle(x)).sine),
              kFineSineError)
        << x;
  }
}

TEST(FineFunctions, KeepTheBoundOfTheArcTangent) {
  std::mt19937_64 random(10);
  std::uniform_real_distribution<double> exponent(-270, 44);
  std::uniform_real_distribution<double> size(0, 10);
  for (int i = 0; i < kArguments / 10; ++i) {
    const double x = i % 2 == 0 ? std::exp(exponent(random)) : size(random);
    EXPECT_LE(relativeErrorByMpfr(Elementary::arc_tangent, x, fineArcTangent(x)),
              kFineArcTangentError)
        << x;
  }
}

TEST(FirstStageInDoubt, IsRare) {
  std::mt19937_64 random(3);
  std::uniform_real_distribution<double> size(0.01, 10);
  int doubts = 0;
  for (int i = 0; i < kArguments; ++i) {
    const double x = size(random);
    for (const Candidate& candidate :
         {sineCandidate<PlainArithmetic>(x), cosineCandidate<PlainArithmetic>(x),
          tangentCandidate<PlainArithmetic>(x), arcTangentCandidate<PlainArithmetic>(x),
          exponentialCandidate<PlainArithmetic>(x), naturalLogarithmCandidate<PlainArithmetic>(x),
          decimalLogarithmCandidate<PlainArithmetic>(x), powerCandidate<PlainArithmetic>(x, 2.5)})
      doubts += candidate.isSure() ? 0 : 1;
  }
  EXPECT_GT(doubts, 0);
  EXPECT_LT(doubts, 8 * kArguments / 2000);
}

TEST(Tables, AreExactAtTheQuarters) {
  for (std::size_t i = 0; i < 4; ++i) {
    EXPECT_EQ(kExactSines[i * kStepsOfQuarter].high, i % 2 == 0 ? 0 : 2 - static_cast<double>(i));
    EXPECT_EQ(kExactSines[i * kStepsOfQuarter].low, 0);
  }
}

constexpr double kTableError = 0x1p-90;

TEST(Tables, HoldPowersOfTwoToNinetyBits) {
  for (std::size_t i = 0; i < kPowersOfTwo; ++i)
    EXPECT_LE(relativeErrorOfPowerOfTwo(i, kPowersOfTwo,
                                        {kPowersOfTwoTable[2 * i], kPowersOfTwoTable[2 * i + 1]}),
              kTableError);
}

TEST(Tables, HoldArcTangentsToNinetyBits) {
  for (std::size_t i = 1; i < kArcs; ++i)
    EXPECT_LE(relativeErrorByMpfr(Elementary::arc_tangent, static_cast<double>(i) / 64,
                                  {kArcTable[2 * i], kArcTable[2 * i + 1]}),
              kTableError);
}

TEST(Tables, HoldSinesToNinetyBitsAndTheirLowPartsToTwenty) {
  for (std::size_t i = 1; i < kStepsOfCircle; ++i) {
    if (i == kStepsOfCircle / 2) continue;
    EXPECT_LE(relativeErrorOfSineOfSteps(i, kStepsOfCircle, kExactSines[i]), kTableError);
    EXPECT_LE(relativeErrorOfSineOfSteps(i, kStepsOfCircle, sineCosineOf(i).sine), 0x1p-73);
    const DoubleDouble cosine = sineCosineOf(i + 3 * kStepsOfQuarter).cosine;
    EXPECT_LE(relativeErrorOfSineOfSteps(i, kStepsOfCircle, cosine), 0x1p-73);
  }
}

TEST(Tables, HoldTheLogarithmsOfTheirInverses) {
  for (std::size_t j = 1; j <= kLogarithms; ++j) {
    const double inverse = std::bit_cast<double>(kLogarithmTable.word[j] & kUpperBits);
    const double on_grid = static_cast<double>(kLogarithmTable.word[j] & ~kUpperBits) * 0x1p-32;
    EXPECT_LE(relativeErrorByMpfr(Elementary::natural_logarithm, inverse,
                                  {-on_grid, -kLogarithmTable.beyond_grid[j]}),
              0x1p-76);
  }
}

TEST(Tables, HoldInversesThatLeaveADoubleOfEachInterval) {
  for (std::size_t j = 0; j <= kLogarithms; ++j) {
    const double inverse = std::bit_cast<double>(kLogarithmTable.word[j] & kUpperBits);
    EXPECT_EQ(std::nearbyint(inverse * kInverses), inverse * kInverses);
    for (const double side : {-0.5, 0.5}) {
      const double m = 1 + (static_cast<double>(j) + side) / kLogarithms;
      if (m < 1 || m > 2) continue;
      EXPECT_LT(std::fabs(m * inverse - 1), 0x1p-8);
    }
  }
}

}  // namespace
}  // namespace zel::test
