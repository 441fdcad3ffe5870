#include "plot/mark_numbers.h"

#include <algorithm>

#include "plot/mark_numbers_fixture.h"

namespace zel::test {
namespace {

using ::testing::Each;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::IsSupersetOf;
using ::testing::SizeIs;

TEST_F(MarkNumbers, StandAtEveryMarkWhereThereIsRoom) {
  EXPECT_THAT(xNumbers(10, 16, 1), ElementsAre("10", "11", "12", "13", "14", "15", "16"));
  EXPECT_THAT(xNumbers(-0.5, 0.5, 0.25), ElementsAre("-0,5", "-0,25", "0", "0,25", "0,5"));
}

TEST_F(MarkNumbers, AreInTheMiddleBelowTheirMarks) {
  show(10, 16, -1, 1);
  const NumberLayer layer = numbers();
  const PictureLabel twelve = labelled(layer, "12");
  EXPECT_EQ(twelve.corner, (Point{4000 - kCharacter, belowAxis()}));
  EXPECT_EQ(twelve.width, 2 * kCharacter);
  EXPECT_EQ(twelve.height, kLine);
  EXPECT_EQ(layer.font_size, 150);
}

TEST_F(MarkNumbers, OfTheYAxisEndBesideTheirMarks) {
  show(-1, 1, 10, 16);
  const PictureLabel twelve = labelled(numbers(), "12");
  EXPECT_EQ(twelve.corner.x + twelve.width, 6000 - 40 - 25);
  EXPECT_EQ(twelve.corner.y + kLine / 2, 6000);
}

TEST_F(MarkNumbers, AreThoseOfTheMarksThatAreDrawnOffTheGridToo) {
  EXPECT_THAT(xNumbers(2.3, 6.3, 1), ElementsAre("2,6", "3,6", "4,6", "5,6"));
}

TEST_F(MarkNumbers, HaveNoTraceOfTheNoiseOfRepeatedAddition) {
  EXPECT_THAT(xNumbers(-0.6, 0.6, 0.1), ElementsAre("-0,5", "-0,4", "-0,3", "-0,2", "-0,1", "0",
                                                    "0,1", "0,2", "0,3", "0,4", "0,5", "0,6"));
  EXPECT_THAT(xNumbers(-1, 1, 1.0 / 3),
              ElementsAre("-1", "-0,66667", "-0,33333", "0", "0,33333", "0,66667", "1"));
}

TEST_F(MarkNumbers, LeaveMarksOutByRoundStridesWhereTheyAreTooClose) {
  EXPECT_THAT(xNumbers(-100, 100, 1),
              ElementsAre("-100", "-90", "-80", "-70", "-60", "-50", "-40", "-30", "-20", "-10",
                          "0", "10", "20", "30", "40", "50", "60", "70", "80", "90", "100"));
  EXPECT_THAT(xNumbers(-7, 3, 0.1),
              ElementsAre("-7", "-6,5", "-6", "-5,5", "-5", "-4,5", "-4", "-3,5", "-3", "-2,5",
                          "-2", "-1,5", "-1", "-0,5", "0", "0,5", "1", "1,5", "2", "2,5", "3"));
}

TEST_F(MarkNumbers, GoOnToTheEndWhereMarksAreTooManyToBeCountedExactly) {
  for (const double distance : {1e-30, 1e-200, 1e-300})
    EXPECT_THAT(xNumbers(-6, 6, distance),
                IsSupersetOf({"-6", "-5,5", "-3", "-0,5", "0", "0,5", "1", "3,5", "5", "5,5"}))
        << distance;
}

TEST_F(MarkNumbers, StayRoundWhereTheFirstMarkIsNoMultipleOfTheStride) {
  EXPECT_THAT(xNumbers(-97, 103, 1), ::testing::Contains("-90"));
  EXPECT_THAT(xNumbers(-97, 103, 1), ::testing::Not(::testing::Contains("-97")));
}

TEST_F(MarkNumbers, StayRoundWhereTheDistanceIsNotOne) {
  EXPECT_THAT(xNumbers(-5.2, 4.8, 0.1),
              ElementsAre("-5", "-4,5", "-4", "-3,5", "-3", "-2,5", "-2", "-1,5", "-1", "-0,5", "0",
                          "0,5", "1", "1,5", "2", "2,5", "3", "3,5", "4", "4,5"));
}

TEST_F(MarkNumbers, AreCountedFromTheFirstMarkThatIsOffTheGridByMoreThanAMillionth) {
  // The first mark is twice as far off as the end of the range.
  const Texts from_zero = xNumbers(23 + 0.45e-6, 222, 1);
  EXPECT_THAT(from_zero, IsSupersetOf({"30", "40", "220"}));
  EXPECT_THAT(from_zero, ::testing::Not(::testing::Contains("33")));
  const Texts from_first = xNumbers(23 + 0.55e-6, 222, 1);
  EXPECT_THAT(from_first, IsSupersetOf({"23", "33", "213"}));
  EXPECT_THAT(from_first, ::testing::Not(::testing::Contains("30")));
  EXPECT_THAT(xNumbers(2.3 + 0.45e-7, 22.2, 0.1), IsSupersetOf({"3", "4", "22"}));
  EXPECT_THAT(xNumbers(2.3 + 0.55e-7, 22.2, 0.1), IsSupersetOf({"2,3", "3,3", "21,3"}));
}

TEST_F(MarkNumbers, AreRoundOnesWhereARangeHasNoMarks) {
  EXPECT_THAT(xNumbers(-1000, 1000, 1), ::testing::Contains("500"));
  EXPECT_THAT(xNumbers(0.25, 0.26, 1), ::testing::Contains("0,255"));
  EXPECT_THAT(xNumbers(-1e9, 1e9, 1), ::testing::Contains("-400000000"));
  show(-1, 1, -1, 1);
  marks = {0, 0, false, false};
  EXPECT_THAT(textsOf(numbers()), ::testing::IsSupersetOf({"0,5", "-0,5"}));
  marks = {0.3, 0.3, false, false};
  EXPECT_THAT(textsOf(numbers()), ::testing::IsSupersetOf({"0,5", "-0,5"})) << "marks not shown";
}

TEST_F(MarkNumbers, BeginAtARoundOneWhereARangeHasNoMarks) {
  EXPECT_THAT(xNumbers(0.2533, 0.2559, 1),
              ElementsAre("0,2534", "0,2536", "0,2538", "0,254", "0,2542", "0,2544", "0,2546",
                          "0,2548", "0,255", "0,2552", "0,2554", "0,2556", "0,2558"));
  EXPECT_THAT(xNumbers(-0.3533, 0.2266, 1),
              ElementsAre("-0,35", "-0,3", "-0,25", "-0,2", "-0,15", "-0,1", "-0,05", "0", "0,05",
                          "0,1", "0,15", "0,2"));
}

TEST_F(MarkNumbers, TellTheOriginOnce) {
  show(-4, 4, -3, 3);
  const NumberLayer layer = numbers();
  EXPECT_EQ(std::ranges::count(textsOf(layer), "0"), 1);
  const PictureLabel zero = labelled(layer, "0");
  EXPECT_LT(zero.corner.x + zero.width, viewport.mapX(0));
  EXPECT_GT(zero.corner.y, viewport.mapY(0));
}

TEST_F(MarkNumbers, LeaveZeroToTheOneAxisThatIsSeen) {
  show(2, 6, -1, 1);
  EXPECT_THAT(textsOf(numbers()), ::testing::Not(::testing::Contains("0")));
  show(-1, 1, 2, 6);
  EXPECT_THAT(textsOf(numbers()), ::testing::Not(::testing::Contains("0")));
  show(-1, 1, -1, 1);
  EXPECT_THAT(textsOf(numbers()), ::testing::Contains("0"));
}

TEST_F(MarkNumbers, LeaveAGapToThoseOfTheOtherAxis) {
  marks = {1, 1, true, true};
  show(10.4, 22.4, -15, 15);
  const NumberLayer close = numbers();
  const PictureLabel below = labelled(close, "-2");
  const double room = labelled(close, "10,8").corner.x - (below.corner.x + below.width);
  EXPECT_GT(room, 0);
  EXPECT_LT(room, 25);
  EXPECT_THAT(textsOf(close), ::testing::Not(::testing::Contains("-1"))) << "beside 10,8";
  show(10.45, 22.45, -15, 15);
  EXPECT_THAT(textsOf(numbers()), IsSupersetOf({"10,9", "-1", "-2"}));
}

TEST_F(MarkNumbers, StandAtTheEdgeBeyondWhichTheirAxisLies) {
  struct Row {
    double yi, yf, top;
  };
  for (const Row& row : {Row{10, 20, 9000 - kLine - 25}, Row{-20, -10, 25}}) {
    show(10.5, 11.5, row.yi, row.yf);
    marks = {0.25, 1, true, true};
    EXPECT_EQ(labelled(numbers(), "11").corner.y, row.top);
  }
  for (const double xi : {10.0, -20.0}) {
    show(xi, xi + 10, 10.5, 11.5);
    marks = {1, 0.25, true, true};
    const PictureLabel number = labelled(numbers(), "10,75");
    EXPECT_EQ(xi > 0 ? number.corner.x : number.corner.x + number.width, xi > 0 ? 25 : 12000 - 25);
  }
}

TEST_F(MarkNumbers, GoToTheOtherSideOfAnAxisThatIsCloseToTheEdge) {
  show(-0.1, 7.9, -0.1, 5.9);
  const NumberLayer layer = numbers();
  EXPECT_GT(labelled(layer, "2").corner.x, viewport.mapX(0));
  EXPECT_LT(labelled(layer, "7").corner.y + kLine, viewport.mapY(0));
}

TEST_F(MarkNumbers, NeitherOverlapNorLeaveThePictureInAnyView) {
  const double ends[] = {-1e15, -345.678, -100, -7.3, -1, -0.001, 0, 0.4, 2, 9.99, 100, 1e6, 1e15};
  for (const double xi : ends) {
    for (const double width : {1e-6, 0.5, 1.0, 3.3, 20.0, 200.0, 201.0, 1e7}) {
      for (const double distance : {1e-12, 0.07, 1.0, 90.0, 1e9}) {
        show(xi, xi + width, xi, xi + width);
        marks = {distance, distance, true, true};
        if (viewport.prepare() != RangeVerdict::drawable) continue;
        expectOnThePictureAndApart(markNumbers(viewport, marks, measure));
      }
    }
  }
}

TEST_F(MarkNumbers, HaveAGridLineEachButOnTheAxes) {
  show(-2, 2, 1, 3);
  EXPECT_THAT(gridLines(true), ElementsAre(0, 3000, 9000, 12000));
  EXPECT_THAT(gridLines(false), ElementsAre(9000, 4500, 0));
  show(1, 3, -2, 2);
  EXPECT_THAT(gridLines(true), ElementsAre(0, 6000, 12000));
  EXPECT_THAT(gridLines(false), ElementsAre(9000, 6750, 2250, 0));
}

TEST_F(MarkNumbers, StandOnTheTwipsOfTheMarks) {
  show(-10, 10, -1, 1);
  marks = {0.3, 1, true, false};
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  ASSERT_TRUE(drawAxes(viewport, marks, picture));
  std::vector<double> drawn;
  for (const RecorderPicture::Call& call : picture.calls)
    if (call.kind == RecorderPicture::Call::Kind::line) drawn.push_back(call.point.x);
  int upright = 0;
  for (const GridLine& line : numbers().grid) {
    if (line.from.x != line.to.x) continue;
    ++upright;
    EXPECT_THAT(drawn, ::testing::Contains(line.from.x));
  }
  EXPECT_GT(upright, 5);
}

TEST_F(MarkNumbers, AreNoneOfARangeThatIsUpsideDownOrOnAPictureThatIsTooSmall) {
  show(5, -5, -1, 1);
  for (const GridLine& line : numbers().grid) EXPECT_EQ(line.from.y, line.to.y);
  show(-5, 5, -5, 5);
  viewport.size = PictureSize::ofPixels(100, 5);
  EXPECT_THAT(numbers().labels, IsEmpty());
}

TEST_F(MarkNumbers, EndWhereAStepNoLongerLeadsOn) {
  show(-1, 1, 1e17, 1e17 + 192);
  marks = {1, 1, true, true};
  expectOnThePictureAndApart(numbers());
}

TEST_F(MarkNumbers, AreNoneOfARangeInWhichRoundOnesDoNotLeadOn) {
  show(-1, 1, 1e17, 1e17 + 32);
  marks = {1, 1, true, false};
  EXPECT_THAT(textsOf(numbers()), ElementsAre("-1", "1"));
}

TEST_F(MarkNumbers, TellThePointerAsExactlyAsAPixelIs) {
  show(-4, 4, -3, 3);
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  const auto label = pointerLabel(viewport, {6185, 4387}, measure);  // a pixel is 0,01
  ASSERT_TRUE(label);
  EXPECT_EQ(label->text, "X=0,12  Y=0,08");
  EXPECT_EQ(pointerLabel(viewport, {6000, 4500}, measure)->text, "X=0  Y=0");
  show(-4e6, 4e6, -3, 3);
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  EXPECT_EQ(pointerLabel(viewport, {6185, 4500}, measure)->text, "X=120000  Y=0");
}

TEST_F(MarkNumbers, ThePointersTextStaysOnThePictureAndOffThePointer) {
  show(-4, 4, -3, 3);
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  for (const Point pointer : {Point{0, 0}, Point{11999, 0}, Point{0, 8999}, Point{11999, 8999},
                              Point{6000, 4000}, Point{10800, 8700}}) {
    const auto label = pointerLabel(viewport, pointer, measure);
    ASSERT_TRUE(label);
    expectOnThePictureAndApart({150, {}, {*label}});
    EXPECT_EQ(pointer.x < label->corner.x ? label->corner.x - pointer.x
                                          : pointer.x - label->corner.x - label->width,
              180);
    const bool covers = label->corner.x <= pointer.x &&
                        pointer.x <= label->corner.x + label->width &&
                        label->corner.y <= pointer.y && pointer.y <= label->corner.y + kLine;
    EXPECT_FALSE(covers) << label->text;
  }
}

TEST_F(MarkNumbers, ThePointersTextIsAsLargeAsItIsMeasured) {
  show(-4, 4, -3, 3);
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  const auto label = pointerLabel(viewport, {6000, 4500}, measure);
  ASSERT_TRUE(label);
  EXPECT_EQ(label->width, 8 * kCharacter);
  EXPECT_EQ(label->height, kLine);
  EXPECT_EQ(label->corner, (Point{6180, 4680}));
}

TEST_F(MarkNumbers, ThePointersTextTurnsToTheOtherSideWhereItWouldComeTooNearToTheEdge) {
  // A pixel is worth one, so that all coordinates have four digits.
  show(9200, 10000, 8400, 9000);
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  const double width = 14 * kCharacter;
  const double last_x = 12000 - 25 - width - 180;
  const double last_y = 9000 - 25 - kLine - 180;
  struct Row {
    Point pointer, corner;
  };
  const Row rows[] = {{{last_x, 4500}, {last_x + 180, 4680}},
                      {{last_x + 1, 4500}, {last_x + 1 - 180 - width, 4680}},
                      {{6000, last_y}, {6180, last_y + 180}},
                      {{6000, last_y + 1}, {6180, last_y + 1 - 180 - kLine}}};
  for (const Row& row : rows) {
    const auto label = pointerLabel(viewport, row.pointer, measure);
    ASSERT_TRUE(label);
    EXPECT_EQ(label->width, width) << label->text;
    EXPECT_EQ(label->corner, row.corner);
  }
}

TEST_F(MarkNumbers, APointerBeyondTheLargestDoubleHasNoText) {
  show(-4, 4, -3, 3);
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  EXPECT_FALSE(pointerLabel(viewport, {1e308 * 10, 0}, measure));
}

}  // namespace
}  // namespace zel::test
