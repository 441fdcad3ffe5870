#include "plot/session/extremum_search.h"

#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

/// The view is -5 to 5 in both directions, with a sample at every integer: the search goes in steps
/// of a half.
class ExtremumSearch : public PlotTest {
 protected:
  std::optional<Extremum> search(const std::string& formula, double start) {
    addFunction('a', formula);
    EXPECT_EQ(viewport.prepare(), RangeVerdict::drawable);
    Walk walk(engine, [] { return true; });
    return searchExtremum(engine, graph('a').codigo, viewport, start, walk);
  }

  void expectFound(const std::string& formula, double start, std::string_view label,
                   PlanePoint before, PlanePoint after) {
    const auto found = search(formula, start);
    ASSERT_TRUE(found) << formula;
    EXPECT_EQ(found->label, label) << formula;
    EXPECT_EQ(found->before.x, before.x) << formula;
    EXPECT_EQ(found->before.y, before.y) << formula;
    EXPECT_EQ(found->after.x, after.x) << formula;
    EXPECT_EQ(found->after.y, after.y) << formula;
  }
};

TEST_F(ExtremumSearch, FindsTheTurnAndTheSamplesAtBothSidesOfIt) {
  expectFound("x^2-4", -5, "Min", {0, -4}, {0.5, -3.75});
  expectFound("4-x^2", -5, "MAX", {0, 4}, {0.5, 3.75});
}

TEST_F(ExtremumSearch, AFlatTopIsAMaximumAtTheLastRisingSample) {
  // abs(x+2)-abs(x-1) rises to 3 at x = 1 and stays there.
  expectFound("abs(x+2)-abs(x-1)", -4.5, "Min", {-2, -3}, {-1.5, -2});
  expectFound("abs(x+2)-abs(x-1)", -2, "MAX", {1, 3}, {1.5, 3});
}

TEST_F(ExtremumSearch, AFlatBottomIsAMinimumAtTheLastFallingSample) {
  expectFound("abs(x-1)-abs(x+2)", -4.5, "MAX", {-2, 3}, {-1.5, 2});
  expectFound("abs(x-1)-abs(x+2)", -2, "Min", {1, -3}, {1.5, -3});
}

TEST_F(ExtremumSearch, GoesOnAtTheLeftEndOnce) {
  expectFound("x^2-4", 3, "Min", {0, -4}, {0.5, -3.75});
}

TEST_F(ExtremumSearch, AStraightLineHasNoTurn) {
  EXPECT_FALSE(search("x", -5));
  EXPECT_FALSE(search("x", 0));
  EXPECT_FALSE(search("0-x", 4.5));
  EXPECT_FALSE(search("2", 0));
}

TEST_F(ExtremumSearch, TurnsOutOfViewDoNotCount) {
  EXPECT_FALSE(search("x^2+6", -5));
  EXPECT_FALSE(search("20-x^2", -5));
}

TEST_F(ExtremumSearch, NeedsThreeSamplesBeforeTheOneThatTells) {
  // From 0 the turn at 1 would be told by the sample at 1,5, which is the third.
  EXPECT_FALSE(search("abs(x-1)", 0));
  expectFound("abs(x-1)", -0.5, "Min", {1, 0}, {1.5, 0.5});
}

TEST_F(ExtremumSearch, AGapBreaksTheSequenceOfSigns) {
  // 1/x falls on both sides of 0, where it is not defined; 1/(x*x) rises before it and falls
  // behind.
  EXPECT_FALSE(search("1/x", -5));
  EXPECT_FALSE(search("1/(x*x)", -5));
}

TEST_F(ExtremumSearch, ThePlaceBeforeTheRangeIsWalkedFrom) {
  expectFound("x^2-4", -8, "Min", {0, -4}, {0.5, -3.75});
  expectFound("x^2-4", -1e9, "Min", {0, -4}, {0.5, -3.75});
}

TEST_F(ExtremumSearch, EndsFromAnywhere) {
  EXPECT_FALSE(search("x", 1e300));
  EXPECT_FALSE(search("x", -1e300));
  viewport.view.definicion = -10;
  EXPECT_FALSE(search("x^2-4", -5));
}

}  // namespace
}  // namespace zel::test
