#include "plot/axes.h"

#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::SizeIs;

/// The picture is 1500 twips wide and high.
class Axes : public PlotTest {
 protected:
  /// Draws on an empty picture; false where an axis could not be marked.
  bool draw() {
    picture.calls.clear();
    EXPECT_EQ(viewport.prepare(), RangeVerdict::drawable);
    return drawAxes(viewport, marks, picture);
  }

  /// The places of the marks along the x axis of a range that reaches 150 twips to each side of 0
  /// in y, with no y axis marked.
  Texts xMarks(double xi, double xf, double distance) {
    show(xi, xf, -5, 5);
    marks = {distance, 1, true, false};
    EXPECT_TRUE(draw());
    Texts places;
    for (const RecorderPicture::Call& call : picture.calls) {
      if (call.kind != RecorderPicture::Call::Kind::line || call.point.y != 710) continue;
      EXPECT_EQ(call.to, (Point{call.point.x, 790}));
      places.push_back(pointText(call.point));
    }
    return places;
  }

  /// The same along the y axis.
  Texts yMarks(double yi, double yf, double distance) {
    show(-5, 5, yi, yf);
    marks = {1, distance, false, true};
    EXPECT_TRUE(draw());
    Texts places;
    for (const RecorderPicture::Call& call : picture.calls) {
      if (call.kind != RecorderPicture::Call::Kind::line || call.point.x != 710) continue;
      EXPECT_EQ(call.to, (Point{790, call.point.y}));
      places.push_back(pointText(call.point));
    }
    return places;
  }
};

TEST_F(Axes, ComeBeforeTheirMarksAndTheYAxisComesFirst) {
  show(-1, 1, -1, 1);
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.texts(), ElementsAre("axes", "line 750,0 750,1500",  // y axis
                                           "line 710,1500 790,1500",       // its marks upwards
                                           "line 710,750 790,750",         //
                                           "line 710,0 790,0",             //
                                           "line 0,750 1500,750",          // x axis
                                           "line 0,710 0,790",             // its marks
                                           "line 750,710 750,790",         //
                                           "line 1500,710 1500,790"));
}

TEST_F(Axes, AreNotDrawnWithTheOriginOutside) {
  show(1, 11, 1, 11);
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.texts(), ElementsAre("axes"));
  show(-11, -1, -11, -1);
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.texts(), ElementsAre("axes"));
}

TEST_F(Axes, AreDrawnOneByOne) {
  marks.x_shown = marks.y_shown = false;
  show(-5, 5, 1, 11);
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.lines(), ElementsAre("750,0 750,1500"));
  show(1, 11, -5, 5);
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.lines(), ElementsAre("0,750 1500,750"));
}

TEST_F(Axes, AreDrawnOnTheEdgesOfThePicture) {
  marks.x_shown = marks.y_shown = false;
  show(0, 10, 0, 10);
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.lines(), ElementsAre("0,0 0,1500", "0,1500 1500,1500"));
  show(-10, 0, -10, 0);
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.lines(), ElementsAre("1500,0 1500,1500", "0,0 1500,0"));
}

TEST_F(Axes, AreNotDrawnOneTwipOutside) {
  marks.x_shown = marks.y_shown = false;
  show(0.001, 10.001, -10.001, -0.001);  // -1 and -1 twips
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.lines(), IsEmpty());
}

TEST_F(Axes, ShowMarksOnlyWhereTheyAreWanted) {
  show(-1, 1, -1, 1);
  marks.x_shown = false;
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.lines(), SizeIs(2 + 3));
  EXPECT_EQ(picture.lines().back(), "0,750 1500,750");
  marks.y_shown = false;
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.lines(), SizeIs(2));
}

TEST_F(Axes, ReachTheInnerSizeOfThePicture) {
  viewport.size = {1500, 1200, 1560, 1260, 104};
  marks.x_shown = marks.y_shown = false;
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.lines(), ElementsAre("750,0 750,1200", "0,600 1500,600"));
}

TEST_F(Axes, AreMarkedOnRangesFrom1To200Units) {
  EXPECT_THAT(xMarks(-0.5, 0.49, 0.25), IsEmpty());
  EXPECT_THAT(xMarks(-0.5, 0.5, 0.25), SizeIs(5));
  EXPECT_THAT(xMarks(-100, 100, 50), SizeIs(5));
  EXPECT_THAT(xMarks(-100, 101, 50), IsEmpty());
  EXPECT_THAT(yMarks(-0.5, 0.49, 0.25), IsEmpty());
  EXPECT_THAT(yMarks(-0.5, 0.5, 0.25), SizeIs(5));
  EXPECT_THAT(yMarks(-100, 100, 50), SizeIs(5));
  EXPECT_THAT(yMarks(-100, 101, 50), IsEmpty());
}

TEST_F(Axes, ThatAreTooWideForMarksAreStillDrawn) {
  show(-100, 101, -100, 101);
  EXPECT_TRUE(draw());
  EXPECT_THAT(picture.lines(), ElementsAre("746,0 746,1500", "0,753 1500,753"));
}

TEST_F(Axes, HaveTheirMarksOnMultiplesFromANegativeEndOn) {
  // rem(2,5; 1) = 0,5: from -2 on, 300 twips to a unit
  EXPECT_THAT(xMarks(-2.5, 2.5, 1),
              ElementsAre("150,710", "450,710", "750,710", "1050,710", "1350,710"));
  EXPECT_THAT(yMarks(-2.5, 2.5, 1),
              ElementsAre("710,1350", "710,1050", "710,750", "710,450", "710,150"));
}

TEST_F(Axes, HaveAMarkOnEachEndThatIsAMultiple) {
  EXPECT_THAT(xMarks(-2, 3, 2.5), ElementsAre("600,710", "1350,710"));  // 0 and 2,5
  EXPECT_THAT(xMarks(-5, 5, 5), ElementsAre("0,710", "750,710", "1500,710"));
}

TEST_F(Axes, KeepTheOffsetOfAPositiveEnd) {
  // From 2,25 the marks stand at 2,5 and 3,5 and so on.
  EXPECT_THAT(xMarks(2.25, 7.25, 1),
              ElementsAre("75,710", "375,710", "675,710", "975,710", "1275,710"));
  EXPECT_THAT(xMarks(2, 7, 1), SizeIs(6));
  EXPECT_THAT(yMarks(2.25, 7.25, 1),
              ElementsAre("710,1425", "710,1125", "710,825", "710,525", "710,225"));
  // From 2,3 they stand a little before 2,6 and 3,6: doubles are no decimals.
  EXPECT_THAT(xMarks(2.3, 7.3, 1),
              ElementsAre("89,710", "389,710", "690,710", "990,710", "1290,710"));
}

TEST_F(Axes, HaveNoMarksWhereTheFirstOneLiesBeyondTheEnd) {
  EXPECT_THAT(xMarks(40, 50, 50), IsEmpty());    // 40 + 40
  EXPECT_THAT(xMarks(-40, -30, 50), IsEmpty());  // 0
  EXPECT_THAT(xMarks(-40, 10, 50), ElementsAre("1200,710"));
}

TEST_F(Axes, StepFromMarkToMarkByRepeatedAddition) {
  // Ten times 0,1 is less than 1, so the mark of 1 lies in the twip before it.
  EXPECT_THAT(xMarks(0, 1.5, 0.1),
              ElementsAre("0,710", "100,710", "200,710", "300,710", "400,710", "500,710", "600,710",
                          "700,710", "799,710", "899,710", "999,710", "1099,710", "1200,710",
                          "1300,710", "1400,710"));
}

TEST_F(Axes, GoOnAfterTwoMarksOnOneTwip) {
  // A distance of one twip, of which the second sum falls a little short.
  const Texts places = xMarks(-1, 1, 2.0 / 1500);
  EXPECT_THAT(places, SizeIs(1500));
  EXPECT_EQ(places.front(), "0,710");
  EXPECT_EQ(places.back(), "1499,710");
}

TEST_F(Axes, HaveEachTwipMarkedOnceByMarksThatStandCloser) {
  for (const double distance : {1 / 300.0, 1e-3, 1e-9, 1e-300}) {
    const Texts places = xMarks(-5, 5, distance);
    ASSERT_THAT(places, SizeIs(testing::Ge(1500u))) << distance;
    ASSERT_THAT(places, SizeIs(testing::Le(1502u))) << distance;
    for (std::size_t i = 1; i < places.size(); ++i)
      ASSERT_EQ(std::stoi(places[i]), std::stoi(places[i - 1]) + 1) << distance;
  }
}

TEST_F(Axes, AreMarkedWithoutEndlessWorkHoweverCloseTheMarksStand) {
  EXPECT_THAT(yMarks(-5, 5, 1e-9), SizeIs(1501));
  EXPECT_THAT(yMarks(0, 10, 1e-307), SizeIs(1501));
  EXPECT_THAT(yMarks(0, 10, 5e-324), SizeIs(1501));
}

TEST_F(Axes, CannotBeMarkedByADistanceThatDividesNothing) {
  marks.escala_x = 0;
  EXPECT_FALSE(draw());
  EXPECT_EQ(picture.lines().back(), "0,750 1500,750");  // what was drawn before stays
  marks = {1, 0, true, true};
  EXPECT_FALSE(draw());
  EXPECT_THAT(picture.lines(), ElementsAre("750,0 750,1500"));
  marks = {1, 5e-324, true, true};  // 5 / 5e-324 overflows
  EXPECT_FALSE(draw());
}

TEST_F(Axes, DoNotMindADistanceOf0WhereTheyHaveNoMarks) {
  marks = {0, 0, false, false};
  EXPECT_TRUE(draw());
  marks = {0, 0, true, true};
  show(-100, 101, -100, 101);
  EXPECT_TRUE(draw());
  show(1, 6, 1, 6);
  EXPECT_TRUE(draw());
}

TEST_F(Axes, HaveNoMarksAtANegativeDistance) {
  EXPECT_THAT(xMarks(-5, 5, -1), IsEmpty());
  EXPECT_THAT(yMarks(-5, 5, -1), IsEmpty());
}

TEST_F(Axes, HaveNoMarksAlongARangeThatStandsUpsideDown) {
  EXPECT_THAT(xMarks(0, -10, 1), IsEmpty());
  EXPECT_THAT(picture.lines(), ElementsAre("0,0 0,1500", "0,750 1500,750"));
  EXPECT_THAT(xMarks(0, -10, -1), IsEmpty());
  EXPECT_THAT(xMarks(5, -5, 1), IsEmpty());  // 0 lies to the left of 5
  EXPECT_THAT(picture.lines(), ElementsAre("0,750 1500,750"));
}

}  // namespace
}  // namespace zel::test
