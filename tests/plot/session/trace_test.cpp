#include "plot/session/trace.h"

#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

/// The view is -5 to 5 in both directions, with a sample at every integer.
class Trace : public PlotTest {
 protected:
  std::optional<PlanePoint> step(const std::string& formula, double x, int direction) {
    addFunction('a', formula);
    EXPECT_EQ(viewport.prepare(), RangeVerdict::drawable);
    Walk walk(engine, [] { return true; });
    return traceStep(engine, graph('a').codigo, viewport, x, direction, walk);
  }
};

TEST_F(Trace, GoesOneSampleStepForwardOrBack) {
  const auto forward = step("x/2", 1, 1);
  ASSERT_TRUE(forward);
  EXPECT_EQ(forward->x, 2);
  EXPECT_EQ(forward->y, 1);
  const auto back = step("x/2", 1, -1);
  ASSERT_TRUE(back);
  EXPECT_EQ(back->x, 0);
  EXPECT_EQ(back->y, 0);
}

TEST_F(Trace, OfNoDirectionTriesThatPointAlone) {
  EXPECT_EQ(step("x", 1, 0)->x, 1);
  EXPECT_FALSE(step("1/x", 0, 0));
  EXPECT_FALSE(step("x+20", 0, 0));
}

TEST_F(Trace, PassesOverUndefinedPointsAndPointsOutOfView) {
  EXPECT_EQ(step("1/x", -1, 1)->x, 1);
  EXPECT_EQ(step("1/x", 1, -1)->x, -1);
  EXPECT_EQ(step("x^2", -5, 1)->x, -2);
}

TEST_F(Trace, EndsWithTheRange) {
  EXPECT_EQ(step("x", 4, 1)->x, 5);
  EXPECT_FALSE(step("x", 5, 1));
  EXPECT_EQ(step("x", -4, -1)->x, -5);
  EXPECT_FALSE(step("x", -5, -1));
}

TEST_F(Trace, ComesBackFromBeyondTheRange) {
  EXPECT_EQ(step("x", -7.5, 1)->x, -4.5);
  EXPECT_EQ(step("x", 7.5, -1)->x, 4.5);
}

TEST_F(Trace, WalksNoLongerThanItsBoundFromBeyondTheRange) {
  // The step is 1: at the bound each sample is walked to, past it the walk begins at the edge.
  ASSERT_EQ(kLongestWalk, 100'000);
  EXPECT_EQ(step("0", -100'005.25, 1)->x, -4);
  EXPECT_EQ(step("0", -100'004.75, 1)->x, -4.75);
  EXPECT_EQ(step("0", 100'005.25, -1)->x, 4);
}

TEST_F(Trace, WalksAsManyStepsHoweverLongOneIs) {
  viewport.view.definicion *= 2;
  ASSERT_TRUE(step("0", 0, 1));
  ASSERT_EQ(viewport.xStep(), 0.5);
  EXPECT_EQ(step("0", -50'005.25, 1)->x, -4.5);
  EXPECT_EQ(step("0", -50'004.75, 1)->x, -4.75);
}

TEST_F(Trace, EndsWhereItsStepNoLongerAdvances) {
  EXPECT_FALSE(step("0", 1e300, 1));
  EXPECT_FALSE(step("0", 1e300, -1));
  EXPECT_FALSE(step("0", -1e17, 1));
  show(1e15, 1e15 + 1000, -5, 5);
  EXPECT_FALSE(step("0", 1e18, 1));
}

TEST_F(Trace, ANegativeQualityGivesNoPoint) {
  viewport.view.definicion = -10;
  EXPECT_FALSE(step("0", 0, 1));
  EXPECT_FALSE(step("0", 0, -1));
  EXPECT_TRUE(step("0", 0, 0));
}

TEST(TraceSlope, ComparesTheNewYWithTheOneBefore) {
  struct Row {
    double from, to;
    SlopeSide side;
    std::string_view key;
  };
  const Row rows[] = {
      {1, 2, SlopeSide::right, "creciente_der"},   {1, 2, SlopeSide::left, "creciente_izq"},
      {2, 1, SlopeSide::right, "decreciente_der"}, {2, 1, SlopeSide::left, "decreciente_izq"},
      {1, 1, SlopeSide::right, "igual"},           {1, 1, SlopeSide::left, "igual"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(slopeKey(slopeBetween(row.from, row.to, row.side)), row.key);
}

}  // namespace
}  // namespace zel::test
