// How seldom the first stage leaves a value in doubt. What follows takes at least ten times as long
// and gives the same bits: nothing else would notice a bound that is too wide.

#include <cmath>

#include <gtest/gtest.h>

#include "numbers/elementary/functions.h"
#include "numbers/rounding_steps.h"

namespace zel::test {
namespace {

constexpr int kValues = 1 << 20;

/// The i-th of many numbers from 0 to 1 that are spread evenly, and no multiples of one step.
double spread(int i) {
  constexpr double kGoldenRatio = 0x1.3c6ef372fe95p-1;
  return i * kGoldenRatio - std::floor(i * kGoldenRatio);
}

template <class Candidates>
int doubtsOf(double first, double last, const Candidates& candidate) {
  int count = 0;
  for (int i = 0; i < kValues; ++i)
    if (!candidate(first + (last - first) * spread(i)).isSure()) ++count;
  return count;
}

template <Elementary function>
int doubts(double first, double last) {
  return doubtsOf(first, last, firstStage<function, PlainArithmetic>);
}

TEST(FirstStageDoubts, AreFew) {
  using enum Elementary;
  EXPECT_LE(doubts<sine>(0, 100), 600);
  EXPECT_LE(doubts<cosine>(0, 100), 600);
  EXPECT_LE(doubts<tangent>(0, 100), 1'200);
  EXPECT_LE(doubts<arc_tangent>(0, 10), 400);
  EXPECT_LE(doubts<exponential>(-10, 10), 55);
  EXPECT_LE(doubts<natural_logarithm>(0, 100), 60);
  EXPECT_LE(doubts<decimal_logarithm>(0, 100), 55);
  EXPECT_LE(doubtsOf(0, 100, [](double x) { return powerCandidate<PlainArithmetic>(x, 0.5); }), 75);
}

TEST(RoundingDoubts, AreNoneOfRoundNumbers) {
  for (const double value : {0.0, 1.0, -1.0, 0.1, 10.0, 0.25, 1e10, 123456789.0}) {
    EXPECT_TRUE(roundingCandidate<PlainArithmetic>(value).isSure()) << value;
    EXPECT_TRUE(roundingCandidate<FusedArithmetic>(value).isSure()) << value;
  }
}

TEST(RoundingDoubts, AreFew) {
  const auto candidate = [](double x) { return roundingCandidate<PlainArithmetic>(x); };
  EXPECT_LE(doubtsOf(0, 100, candidate), 5);
}

}  // namespace
}  // namespace zel::test
