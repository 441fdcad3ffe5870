#include "drive_fixture.h"

namespace zel::test {
namespace {

class DrivePicking : public DriveTest {
 protected:
  /// The active graph after a click at a point of the plane.
  Json picked(const std::string& document, double x, double y, const std::string& active) {
    return after(document, clickAt(x, y), {"--active", active});
  }
};

TEST_F(DrivePicking, TheNearestGraphBecomesActiveAndIsTracedFromTheMouse) {
  const std::string document = plane(block('a', 'F', "4") + block('d', 'F', "x/2"));
  const Json object = picked(document, 2, 0, "a");
  EXPECT_EQ(object["active"], "d");
  EXPECT_EQ(object["mode"], "RECORRIDO");
  EXPECT_EQ(object["trace_x"], 2.5);  // a step to the right of the mouse
  EXPECT_EQ(object["cursor"], Json({7250, 3875}));
  EXPECT_EQ(object["panels"], panels("X=2,5", "Y=1,25"));
  EXPECT_EQ(object["redraws"], 1);
  EXPECT_EQ(picked(document, 2, 3, "d")["active"], "a");
}

TEST_F(DrivePicking, TracesFromTheVeryPlaceOfTheMouse) {
  EXPECT_EQ(after(planeOf("x"), "down left 6001 4500")["trace_x"], 6001 / 500.0 - 12 + 0.5);
}

TEST_F(DrivePicking, OfEquallyNearGraphsTheFirstInCyclicOrderFromTheActiveOneIsPicked) {
  const std::string document =
      plane(block('a', 'F', "1") + block('c', 'F', "5") + block('f', 'F', "-1"));
  EXPECT_EQ(picked(document, 0, 0, "a")["active"], "a");
  EXPECT_EQ(picked(document, 0, 0, "c")["active"], "f");
  EXPECT_EQ(picked(document, 0, 0, "f")["active"], "f");
  EXPECT_EQ(picked(document, 0, 3, "f")["active"], "a");
  EXPECT_EQ(picked(document, 0, 3, "c")["active"], "c");
}

TEST_F(DrivePicking, ABranchOfAConicCountsAndTheTraceFollowsTheGraphsCode) {
  const std::string document = plane(block('a', 'F', "-2") + circle('b'));
  const Json object = picked(document, 0, -2.75, "a");  // -3 is the lower branch
  EXPECT_EQ(object["active"], "b");
  EXPECT_EQ(object["panels"], panels("X=0,5", "Y=2,95803989154981"));
  EXPECT_EQ(picked(document, 0, -2.25, "b")["active"], "a");
  EXPECT_EQ(picked(document, 0, 2.75, "a")["active"], "b");
}

TEST_F(DrivePicking, AMemberOfAFamilyIsPickedWithItsParameter) {
  const std::string document = plane(family('a', "p*x", "0", "2") + block('b', 'F', "-8"));
  EXPECT_EQ(after(document, "")["p"], 0);  // as before it was drawn
  const Json lowest = picked(document, 3, 0.25, "b");
  EXPECT_EQ(lowest["active"], "a");
  EXPECT_EQ(lowest["p"], 0);
  EXPECT_EQ(lowest["panels"], panels("X=3,5", "Y=0", "P=0"));
  const Json middle = picked(document, 3, 3.5, "a");
  EXPECT_EQ(middle["p"], 1);
  EXPECT_EQ(middle["panels"], panels("X=3,5", "Y=3,5", "P=1"));
  EXPECT_EQ(after(document, clickAt(3, 3.5) + "Recorrer_Adelante")["panels"],
            panels("X=4", "Y=4", "P=1"));
  EXPECT_EQ(after(document, clickAt(3, 3.5) + "Derecha\nDerecha")["panels"],
            panels("X=3,5", "Y=3,5", "P=1"));
  EXPECT_EQ(picked(document, 3, 4.5, "a")["p"], 1);  // as near to p = 2
}

TEST_F(DrivePicking, AGraphWhoseValueLiesOutsideTheViewIsPickedToo) {
  const std::string document = plane(block('a', 'F', "ln(0-1)") + block('b', 'F', "20"));
  const Json object = picked(document, 0, 0, "a");
  EXPECT_EQ(object["active"], "b");
  EXPECT_EQ(object["mode"], "NORMAL");  // and no point of it can be traced
  EXPECT_EQ(object["panels"], kWholeRange);
}

TEST_F(DrivePicking, WhereNothingIsDefinedNothingIsPicked) {
  const Json object = after(planeOf("ln(0-1)"), "Recorrer\n" + clickAt(1, 1));
  EXPECT_EQ(object["mode"], "NORMAL");
  EXPECT_EQ(object["active"], "a");
  EXPECT_EQ(object["panels"], kWholeRange);
}

TEST_F(DrivePicking, APointOutsideTheViewPicksNothing) {
  const std::string document = plane(block('a', 'F', "4") + block('b', 'F', "0"));
  const char* places[] = {"-1 4500", "12001 4500", "6000 -1", "6000 9001"};
  for (const std::string place : places) {
    const Json object = after(document, "Recorrer\ndown left " + place);
    EXPECT_EQ(object["mode"], "NORMAL") << place;
    EXPECT_EQ(object["active"], "a") << place;
    EXPECT_EQ(object["cursor"], nullptr) << place;
  }
  EXPECT_EQ(after(document, "down left 0 9000")["active"], "b");  // the edge belongs to the view
  EXPECT_EQ(after(document, "down left 0 0")["active"], "a");
}

TEST_F(DrivePicking, AParametricCurveIsNotPicked) {
  const std::string document = plane(parametric('a') + block('b', 'F', "8"));
  const Json object = picked(document, 1, 1, "a");
  EXPECT_EQ(object["active"], "b");
  EXPECT_EQ(object["enabled"], Json({{"Recorrer", true}, {"Calcular_Y", true}}));
  EXPECT_EQ(after(plane(parametric('a')), clickAt(1, 1))["mode"], "NORMAL");
}

}  // namespace
}  // namespace zel::test
