#include <cmath>

#include "plot/mark_numbers_fixture.h"

/// To the twip: where numbers have just room enough, and where they just have not.
namespace zel::test {
namespace {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

class MarkNumberBounds : public MarkNumbers {
 protected:
  /// A unit is a twip, and the axes cross there; the ranges are too wide for marks.
  void crossAt(double px, double py) { show(-px, 12000 - px, py - 9000, py); }
};

TEST_F(MarkNumberBounds, AtEveryMarkNeedTheirSizeAndAGapOnBothSides) {
  measure.width = [](std::string_view text) { return static_cast<double>(text.size()) * 50; };
  EXPECT_THAT(xNumbers(-30, 30, 1), Contains("-15"));  // 150 of 200 twips
  measure.width = [](std::string_view text) { return static_cast<double>(text.size()) * 50 + 1; };
  EXPECT_THAT(xNumbers(-30, 30, 1), Not(Contains("-15")));
  show(-1, 1, -18, 18);  // 250 twips to a unit
  measure.height = 200;
  EXPECT_THAT(textsOf(numbers()), Contains("-15"));
  measure.height = 201;
  EXPECT_THAT(textsOf(numbers()), Not(Contains("-15")));
}

TEST_F(MarkNumberBounds, AmongMarksCloserThanPixelsAreThoseAtRoundCounts) {
  EXPECT_THAT(xNumbers(-3, 3, 0.001), ElementsAre("-3", "-2,5", "-2", "-1,5", "-1", "-0,5", "0",
                                                  "0,5", "1", "1,5", "2", "2,5", "3"));
  EXPECT_THAT(xNumbers(-2.9, 3.1, 0.001), ElementsAre("-2,5", "-2", "-1,5", "-1", "-0,5", "0",
                                                      "0,5", "1", "1,5", "2", "2,5", "3"));
  EXPECT_THAT(xNumbers(2.125, 14.125, 1.0 / 1024),
              ElementsAre("2,92969", "3,90625", "4,88281", "5,85938", "6,83594", "7,8125",
                          "8,78906", "9,76563", "10,74219", "11,71875", "12,69531", "13,67188"));
}

TEST_F(MarkNumberBounds, AreCountedFromTheFirstMarkFromSoManyMarksOn) {
  EXPECT_THAT(xNumbers(-5.75, 6.25, std::ldexp(1, -47)), Not(Contains("-5,75")));  // 8E+14
  EXPECT_THAT(xNumbers(-5.75, 6.25, std::ldexp(1, -48)), Contains("-5,75"));       // 1,6E+15
}

TEST_F(MarkNumberBounds, HaveNoGridLineOnAnAxisAtTheEdge) {
  show(-2, 2, 0, 2);
  EXPECT_THAT(gridLines(false), ElementsAre(4500, 0));
  show(-2, 2, -2, 0);
  EXPECT_THAT(gridLines(false), ElementsAre(9000, 4500));
  show(0, 2, -2, 2);
  EXPECT_THAT(gridLines(true), ElementsAre(6000, 12000));
  show(-2, 0, -2, 2);
  EXPECT_THAT(gridLines(true), ElementsAre(0, 6000));
}

TEST_F(MarkNumberBounds, StandBelowTheXAxisWhereTheyAreNotCutOffThere) {
  crossAt(6000, 9000 - kLine - 65);
  EXPECT_EQ(labelled(numbers(), "-5000").corner.y, 9000 - kLine - 25);
  crossAt(6000, 9001 - kLine - 65);
  EXPECT_EQ(labelled(numbers(), "-5000").corner.y, 9001 - kLine - 65 - 65 - kLine);
  crossAt(6000, 9000);
  EXPECT_EQ(labelled(numbers(), "-5000").corner.y, 9000 - 65 - kLine);
}

TEST_F(MarkNumberBounds, StandToTheLeftOfTheYAxisWhereTheWidestHasRoom) {
  const double widest = 5 * kCharacter;
  crossAt(65 + widest, 0);
  EXPECT_EQ(labelled(numbers(), "-8000").corner.x, 25);
  crossAt(64 + widest, 0);
  EXPECT_EQ(labelled(numbers(), "-8000").corner.x, 64 + widest + 65);
  crossAt(0, 0);
  EXPECT_EQ(labelled(numbers(), "-8000").corner.x, 65);
  crossAt(-1, 0);
  EXPECT_EQ(labelled(numbers(), "-8000").corner.x, 25);
}

TEST_F(MarkNumberBounds, ThePointersTextNeedsAGapToEachEdge) {
  const auto hasText = [&](double width, double height) {
    show(-1, 1, -1, 1);
    viewport.size = {width, height, width, height, 100};
    EXPECT_EQ(viewport.prepare(), RangeVerdict::drawable);
    const auto label = pointerLabel(viewport, {width / 2, height / 2}, measure);
    return label && label->text == "X=0  Y=0";
  };
  const double width = 8 * kCharacter + 50;
  EXPECT_TRUE(hasText(width, kLine + 50));
  EXPECT_FALSE(hasText(width - 1, kLine + 50));
  EXPECT_FALSE(hasText(width, kLine + 49));
}

}  // namespace
}  // namespace zel::test
