#include "engine/plan/power_shortcuts.h"

#include <cmath>
#include <random>

#include <gtest/gtest.h>

#include "numbers/rounding.h"

namespace zel::test {
namespace {

#if ZEL_HAS_TARGETS

/// How the short cut of a power went at many bases.
struct Tally {
  int sure = 0;
  int wrong = 0;         // sure, and other 15 digits than the power function
  int rightly_left = 0;  // left to the power function, which gave other 15 digits
};

template <Kind kind>
ZEL_TARGET_V3 void tally(double base, double exponent, Tally& counts) {
  const DoubleDouble power = shortcut<kind>(base);
  const int in = decadeOf(std::fabs(power.high));
  if (!isExactDecade(in)) return;
  const bool same = roundTo15Digits(power.high) == roundTo15Digits(std::pow(base, exponent));
  const bool is_sure = !isDoubtful(power, decade(in).scale);
  counts.sure += is_sure ? 1 : 0;
  counts.wrong += is_sure && !same ? 1 : 0;
  counts.rightly_left += !is_sure && !same ? 1 : 0;
}

TEST(PowerShortcuts, AreSureOnlyWhereThePowerFunctionGivesTheSameDigits) {
  if (bestInstructionSet() == InstructionSet::baseline) GTEST_SKIP() << "no fused multiply-add";
  std::mt19937_64 random(3);
  std::uniform_real_distribution<double> size(-100, 100);
  constexpr int kBases = 3'000'000;
  Tally squares;
  Tally cubes;
  volatile double two = 2;  // a constant exponent would not call the function
  volatile double three = 3;
  for (int i = 0; i < kBases; ++i) {
    const double base = i % 4 == 0 ? size(random) : roundTo15Digits(size(random));
    tally<Kind::square>(base, two, squares);
    tally<Kind::cube>(base, three, cubes);
  }
  for (const Tally& counts : {squares, cubes}) {
    EXPECT_EQ(counts.wrong, 0);
    EXPECT_GT(counts.rightly_left, 0);
    EXPECT_GT(counts.sure, kBases * 9 / 10);
  }
}

TEST(PowerShortcuts, KnowWhatIsMissing) {
  // (3 + 2^-50)^2 = 9 + 6 * 2^-50 + 2^-100
  const DoubleDouble square = shortcut<Kind::square>(3 + 0x1p-50);
  EXPECT_EQ(square.high, 9 + 6 * 0x1p-50);
  EXPECT_EQ(square.low, 0x1p-100);
  // (3 + 2^-51)^3 = 27 + 27 * 2^-51 + 9 * 2^-102 + ...
  const DoubleDouble cube = shortcut<Kind::cube>(3 + 0x1p-51);
  EXPECT_EQ(cube.high, 27 + 24 * 0x1p-51);
  EXPECT_NEAR(cube.low, 3 * 0x1p-51 + 9 * 0x1p-102, 0x1p-99);
}

#endif

}  // namespace
}  // namespace zel::test
