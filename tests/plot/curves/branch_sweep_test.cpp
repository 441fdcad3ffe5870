#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

/// 150 twips to a unit, (0, 0) at 750,750, a sample at every integer from -5 to 5.
class BranchSweep : public CurveTest {
 protected:
  Texts drawCircle(const char* h, const char* k, const char* r) {
    return draw(CircumferenceFields{field(h), field(k), field(r)});
  }
  Texts drawEllipse(const char* h, const char* k, const char* a, const char* b) {
    return draw(EllipseFields{field(h), field(k), field(a), field(b)});
  }
  Texts drawHyperbola(const char* h, const char* k, const char* a, const char* c) {
    return draw(HyperbolaFields{field(h), field(k), field(a), field(c)});
  }

 private:
  Texts draw(const GraphFields& fields) {
    addGraph('a', fields);
    EXPECT_TRUE(drawBranches(graph('a')));
    return picture.pieces();
  }
};

constexpr const char* kUpperCircle = "7@((2,5)^2-((0)-x)^2)+(0)";
constexpr const char* kLowerCircle = "-7@((2,5)^2-((0)-x)^2)+(0)";

// The circle of radius 2,5 about the origin: heights 1,5 at -2 and 2, 2,291 at -1 and 1, 2,5 at 0.
constexpr const char* kUpperArc = "450,525 600,406 750,375 900,406 1050,525";
constexpr const char* kLowerArc = "450,975 600,1093 750,1125 900,1093 1050,975";

TEST_F(BranchSweep, JoinsACircleThroughItsLeftVertexAndThenItsRightOne) {
  EXPECT_THAT(drawCircle("0", "0", "2,5"), ElementsAre(kUpperArc, kLowerArc,                  //
                                                       "450,525 375,750", "375,750 450,975",  //
                                                       "1050,525 1125,750", "1125,750 1050,975"));
}

TEST_F(BranchSweep, JoinsACircleThatEndsOnItsVertices) {
  EXPECT_THAT(drawCircle("0", "0", "2"),
              ElementsAre("450,750 600,490 750,450 900,490 1050,750",
                          "450,750 600,1009 750,1050 900,1009 1050,750",  //
                          "450,750 450,750", "450,750 450,750",           //
                          "1050,750 1050,750", "1050,750 1050,750"));
}

TEST_F(BranchSweep, JoinsAnEllipseByItsHalfWidth) {
  // Centre (0,2; -1), 3,5 and 2: vertices at -3,3 and 3,7.
  EXPECT_THAT(drawEllipse("0,2", "-1", "3,5", "2"),
              ElementsAre("300,778 450,666 600,618 750,600 900,607 1050,642 1200,720",
                          "300,1021 450,1133 600,1181 750,1199 900,1192 1050,1157 1200,1080",
                          "300,778 255,900", "255,900 300,1021",  //
                          "1200,720 1305,900", "1305,900 1200,1080"));
}

TEST_F(BranchSweep, JoinsAHyperbolaBetweenItsArms) {
  // Vertices at -1,5 and 1,5; the left arm ends at -2, and the right arm begins at 2.
  EXPECT_THAT(
      drawHyperbola("0", "0", "1,5", "2,5"),
      ElementsAre("150,8 300,230 450,485", "1050,485 1200,230 1350,8", "150,1491 300,1269 450,1014",
                  "1050,1014 1200,1269 1350,1491", "450,485 525,750", "525,750 450,1014",  //
                  "1050,485 975,750", "975,750 1050,1014"));
}

TEST_F(BranchSweep, DoesNotJoinTheSideThatLiesOutsideTheRange) {
  // The first sample of a sweep is no change, whether or not it is defined.
  EXPECT_THAT(drawCircle("-4", "0", "2,5"),
              ElementsAre("0,406 150,375 300,406 450,525", "0,1093 150,1125 300,1093 450,975",
                          "450,525 525,750", "525,750 450,975"));
  EXPECT_THAT(drawCircle("4", "0", "2,5"), ElementsAre("1050,525 1200,406 1350,375 1500,406",
                                                       "1050,975 1200,1093 1350,1125 1500,1093",  //
                                                       "1050,525 975,750", "975,750 1050,975"));
}

TEST_F(BranchSweep, DoesNotJoinABranchThatWasNotDrawn) {
  // One branch lies above or below the view.
  EXPECT_THAT(drawCircle("0", "4", "2,5"), ElementsAre("450,375 600,493 750,525 900,493 1050,375"));
  EXPECT_THAT(drawCircle("0", "-4", "2,5"),
              ElementsAre("450,1125 600,1006 750,975 900,1006 1050,1125"));
  EXPECT_THAT(
      drawHyperbola("0", "4", "1,5", "2,5"),
      ElementsAre("0,1103 150,891 300,669 450,414", "1050,414 1200,669 1350,891 1500,1103"));
  EXPECT_THAT(drawCircle("0", "0", "9"), IsEmpty());
}

TEST_F(BranchSweep, JoinsPiecesThatTheViewCutsElsewhere) {
  show(-5, 5, -2, 8);
  EXPECT_THAT(drawCircle("0", "0", "2,5"),
              ElementsAre("450,975 600,856 750,825 900,856 1050,975",  //
                          "450,1425", "1050,1425",                     //
                          "450,975 375,1200", "375,1200 450,1425",     //
                          "1050,975 1125,1200", "1125,1200 1050,1425"));
}

TEST_F(BranchSweep, JoinsFromThePointDrawnLastWhereAnEndLiesOutside) {
  // Only the left arm's end at -2 lies in the view, so that the right arm's beginning finds it as
  // the last point: both sides are joined from there.
  EXPECT_THAT(drawHyperbola("-0,4", "0", "1,5", "5"),
              ElementsAre("450,484", "450,1015",                  //
                          "450,484 465,750", "465,750 450,1015",  //
                          "450,484 915,750", "915,750 450,1015"));
}

TEST_F(BranchSweep, TakesTheUpperLeftCornerForAPointThatWasNotDrawn) {
  // Two samples to a twip; the left vertex lies between the first two, and the second maps to 0,0.
  viewport.view = {0, -4.884, 10, 0.116, 3000, false};
  Texts pieces = drawCircle("4,00166666666667", "0", "4");
  ASSERT_EQ(pieces.size(), 5u);
  EXPECT_EQ(pieces[0], "0,0");
  EXPECT_EQ(pieces[1], "1199,0");
  EXPECT_EQ(pieces[2].substr(0, 15), "0,69 1,94 1,112");
  // Nothing on the left side; the right side is joined all the same.
  EXPECT_EQ(pieces[3], "1199,0 1200,34");
  EXPECT_EQ(pieces[4], "1200,34 1199,69");
  // A twip lower it is a point like any other.
  viewport.view.yf += 1.0 / 300;
  viewport.view.yi += 1.0 / 300;
  pieces = drawCircle("4,00166666666667", "0", "4");
  ASSERT_EQ(pieces.size(), 7u);
  EXPECT_EQ(pieces[3], "0,1 0,35");
  EXPECT_EQ(pieces[4], "0,35 0,70");
}

TEST_F(BranchSweep, JoinsThroughAVertexOutsideTheView) {
  // A document may hold codes and a centre that do not belong together.
  const GraphDef def = graphOf('C', {{"h", "100"},
                                     {"k", "0"},
                                     {"r", "2,5"},
                                     {"codigo1", kUpperCircle},
                                     {"codigo2", kLowerCircle}});
  EXPECT_TRUE(drawBranches(def));
  EXPECT_THAT(picture.pieces(), ElementsAre(kUpperArc, kLowerArc,                      //
                                            "450,525 15375,750", "15375,750 450,975",  //
                                            "1050,525 16125,750", "16125,750 1050,975"));
}

TEST_F(BranchSweep, KeepsTheLastChangeOfEachDirection) {
  // A circle with two arcs to a branch: the right arc begins last, the left arc ends last.
  addGraph('a', HyperbolaFields{field("0"), field("0"), field("1,5"), field("2,5")});
  GraphDef def = graph('a');
  def.tipo = 'C';
  def.parameters->set("r", "1,5");
  EXPECT_TRUE(drawBranches(def));
  const Texts pieces = picture.pieces();
  EXPECT_THAT(Texts(pieces.begin() + 4, pieces.end()),
              ElementsAre("1050,485 525,750", "525,750 1050,1014",  //
                          "450,485 975,750", "975,750 450,1014"));
}

TEST_F(BranchSweep, FailsAfterItsBranchesWhenACentreIsNoNumber) {
  const std::vector<std::pair<std::string, std::string>> good = {
      {"h", "0"}, {"k", "0"}, {"r", "2,5"}, {"codigo1", kUpperCircle}, {"codigo2", kLowerCircle}};
  for (std::size_t i = 0; i < 3; ++i) {
    for (const char* text : {"", "uno", "2,5,1", "1e999"}) {
      auto bad = good;
      bad[i].second = text;
      EXPECT_FALSE(drawBranches(graphOf('C', bad))) << bad[i].first << " = " << text;
      EXPECT_THAT(picture.pieces(), ElementsAre(kUpperArc, kLowerArc));
    }
  }
}

TEST_F(BranchSweep, FailsWhenAVertexCannotBeMapped) {
  for (const char* key : {"h", "k", "r"}) {
    GraphDef def = graphOf('C', {{"codigo1", kUpperCircle}, {"codigo2", kLowerCircle}});
    for (const char* other : {"h", "k", "r"}) def.parameters->set(other, "0");
    def.parameters->set(key, "1,7e308");
    EXPECT_FALSE(drawBranches(def)) << key;
    EXPECT_THAT(picture.pieces(), ElementsAre(kUpperArc, kLowerArc));
  }
}

TEST_F(BranchSweep, DrawsNothingOfCodesThatAreNotThere) {
  EXPECT_TRUE(drawBranches(graphOf('E', {{"h", "0"}, {"k", "0"}, {"a", "2"}})));
  EXPECT_THAT(picture.pieces(), IsEmpty());
  EXPECT_FALSE(drawBranches(graphOf('E', {})));
}

}  // namespace
}  // namespace zel::test
