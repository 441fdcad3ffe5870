#include "drive_fixture.h"

namespace zel::test {
namespace {

class DriveSearch : public DriveTest {
 protected:
  /// A search of this graph from a trace point at x.
  Json found(const std::string& formula, double x, const std::vector<std::string>& more = {}) {
    return after(planeOf(formula), clickAt(x - 0.5, 0) + "Buscar_Max_Min", more);
  }

  static Json none() { return panels("No se encuentran MÁXIMOS ni Mínimos."); }
};

TEST_F(DriveSearch, PutsTheCursorBeforeTheTurnAndShowsThePointAfterIt) {
  const Json object = found("x^2", -5, {"--range", "-12", "12", "-6", "30"});
  EXPECT_EQ(object["mode"], "RECORRIDO");
  EXPECT_EQ(object["panels"], panels("Posible Min", "X=0,25", "Y=0,0625"));
  EXPECT_EQ(object["trace_x"], 0.25);
  EXPECT_EQ(object["cursor"], Json({6000, 7500}));
  EXPECT_EQ(object["redraws"], 1);
}

TEST_F(DriveSearch, FindsAMaximum) {
  const Json object = found("4-x^2", -3);
  EXPECT_EQ(object["panels"], panels("Posible MAX", "X=0,25", "Y=3,9375"));
  EXPECT_EQ(object["cursor"], Json({6000, 2500}));
}

TEST_F(DriveSearch, SpeaksTheCurrentLanguage) {
  const std::string script = "lang EN\n" + clickAt(-3.5, 0) + "Buscar_Max_Min";
  EXPECT_EQ(after(planeOf("4-x^2"), script)["panels"],
            panels("Possible MAX", "X=0,25", "Y=3,9375"));
  EXPECT_EQ(after(planeOf("x^2"), script)["panels"], panels("Possible Min", "X=0,25", "Y=0,0625"));
  EXPECT_EQ(after(planeOf("x"), "Buscar_Max_Min\nlang EN")["panels"], none());
  EXPECT_EQ(after(planeOf("x"), "lang EN\nBuscar_Max_Min")["panels"],
            panels("Cannot find maximun nor minimun values."));
}

TEST_F(DriveSearch, AStraightLineHasNoneAndTheCursorStays) {
  const Json unseen = after(planeOf("x"), "Buscar_Max_Min");
  EXPECT_EQ(unseen["panels"], none());
  EXPECT_EQ(unseen["mode"], "RECORRIDO");
  EXPECT_EQ(unseen["cursor"], nullptr);
  const Json traced = found("x", 2);
  EXPECT_EQ(traced["panels"], none());
  EXPECT_EQ(traced["cursor"], Json({7000, 3500}));
  EXPECT_EQ(traced["trace_x"], 2);
  EXPECT_EQ(found("1", 2)["panels"], none());
}

TEST_F(DriveSearch, TurnsAreToldByThePairOfDirections) {
  const struct {
    const char* formula;
    const char* label;
    const char* y;
  } rows[] = {{"(x-abs(x))/2", "Posible MAX", "Y=0"},          // rises, then flat
              {"(0-(x+abs(x)))/2", "Posible MAX", "Y=-0,25"},  // flat, then falls
              {"(abs(x)-x)/2", "Posible Min", "Y=0"},          // falls, then flat
              {"(x+abs(x))/2", "Posible Min", "Y=0,25"},       // flat, then rises
              {"abs(x)", "Posible Min", "Y=0,25"},
              {"0-abs(x)", "Posible MAX", "Y=-0,25"}};
  for (const auto& row : rows) {
    const Json object = found(row.formula, -2);
    EXPECT_EQ(object["panels"], panels(row.label, "X=0,25", row.y)) << row.formula;
    EXPECT_EQ(object["cursor"], Json({6000, 4500})) << row.formula;
  }
}

TEST_F(DriveSearch, GoesOnAtTheLeftEndOnce) {
  const Json object = found("4-(x+3)^2", 0);
  EXPECT_EQ(object["panels"], panels("Posible MAX", "X=-2,75", "Y=3,9375"));
  EXPECT_EQ(object["cursor"], Json({4500, 2500}));
  EXPECT_EQ(object["trace_x"], -2.75);
}

TEST_F(DriveSearch, FindsTheOnlyTurnAgainAfterAWholeRound) {
  const Json object = after(planeOf("x^2"), clickAt(-3.5, 0) + repeated("Buscar_Max_Min", 3));
  EXPECT_EQ(object["panels"], panels("Posible Min", "X=0,25", "Y=0,0625"));
}

TEST_F(DriveSearch, TheStepAcrossTheEndsIsNoDirection) {
  // Falls over the whole range and would seem to rise from its right end to its left one.
  EXPECT_EQ(found("0-x/2", 0)["panels"], none());
}

TEST_F(DriveSearch, ThreeSamplesComeBeforeTheOneThatTells) {
  EXPECT_EQ(found("x^2", -0.75)["panels"], panels("Posible Min", "X=0,25", "Y=0,0625"));
  EXPECT_EQ(found("x^2", -0.5)["panels"], none());
  EXPECT_EQ(found("x^2", -0.25)["panels"], none());
}

TEST_F(DriveSearch, TheSampleThatPassesTheStartStillTells) {
  EXPECT_EQ(found("x^2", 0)["panels"], panels("Posible Min", "X=0,25", "Y=0,0625"));
}

TEST_F(DriveSearch, OnlyAPointInTheViewTells) {
  EXPECT_EQ(after(planeOf("x^2+20"), "Buscar_Max_Min")["panels"], none());
  EXPECT_EQ(found("9,25-x^2", -3)["panels"], none());
  // Here the top itself is above the view, and the cursor with it.
  const Json object = found("9,03125-x^2", -3);
  EXPECT_EQ(object["panels"], panels("Posible MAX", "X=0,25", "Y=8,96875"));
  EXPECT_EQ(object["cursor"], Json({6000, -16}));
}

TEST_F(DriveSearch, AnUndefinedPointBreaksTheDirections) {
  EXPECT_EQ(found("raiz2(x^2-1)", -3)["panels"], none());
  // 1/x^2 rises up to 0 and falls behind it, but is not defined there.
  EXPECT_EQ(found("1/x^2", -3)["panels"], none());
}

TEST_F(DriveSearch, ShowsTheParameterOfAFamily) {
  const Json object =
      after(plane(family('a', "(x-p)^2", "1", "2")), clickAt(0, 4) + "Buscar_Max_Min");
  EXPECT_EQ(object["panels"], panels("Posible Min", "X=2,25", "Y=0,0625", "P=2"));
  EXPECT_EQ(object["cursor"], Json({7000, 4500}));
}

TEST_F(DriveSearch, BeginsAtTheLeftEndWhenTheTracePointIsBehindTheRange) {
  const Json object =
      after(planeOf("(x+20)^2"), "Buscar_Max_Min", {"--range", "-32", "-8", "-9", "9"});
  EXPECT_EQ(object["panels"], panels("Posible Min", "X=-19,75", "Y=0,0625"));
}

TEST_F(DriveSearch, AParametricCurveHasNone) {
  EXPECT_EQ(after(plane(parametric('a')), "Buscar_Max_Min")["panels"], none());
}

}  // namespace
}  // namespace zel::test
