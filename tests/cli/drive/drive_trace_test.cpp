#include <cmath>

#include "drive_fixture.h"

namespace zel::test {
namespace {

class DriveTrace : public DriveTest {
 protected:
  static bool slopes(const Json& object, const std::string& direction) {
    return object["slope"] == direction + "_der" || object["slope"] == direction + "_izq";
  }
};

TEST_F(DriveTrace, BeginsAtTheFirstPointInTheViewFromTheLeft) {
  const Json object = after(planeOf("x"), "Recorrer");
  EXPECT_EQ(object["trace_x"], -9);
  EXPECT_EQ(object["cursor"], Json({1500, 9000}));
  EXPECT_EQ(object["panels"], panels("X=-9", "Y=-9"));
  EXPECT_EQ(after(planeOf("1"), "Recorrer")["trace_x"], -11.5);  // a step from the edge
}

TEST_F(DriveTrace, StepsForwardAndBack) {
  const Driven driven = drive(planeOf("x"), "Recorrer\nRecorrer_Adelante\nRecorrer_Atras\n");
  EXPECT_EQ(driven.objects[2]["panels"], panels("X=-8,5", "Y=-8,5"));
  EXPECT_EQ(driven.objects[2]["cursor"], Json({1750, 8750}));
  EXPECT_TRUE(slopes(driven.objects[2], "creciente")) << driven.objects[2];
  EXPECT_EQ(driven.objects[3]["panels"], panels("X=-9", "Y=-9"));
  EXPECT_TRUE(slopes(driven.objects[3], "decreciente")) << driven.objects[3];
}

TEST_F(DriveTrace, BeginsAtZeroBeforeTheFirstTrace) {
  EXPECT_EQ(after(planeOf("x"), "")["trace_x"], 0);
  EXPECT_EQ(after(planeOf("x"), "Recorrer_Adelante")["trace_x"], 0.5);
  EXPECT_EQ(after(planeOf("x"), "Recorrer_Atras")["trace_x"], -0.5);
}

TEST_F(DriveTrace, AGraphThatKeepsItsHeightIsNeitherRisingNorFalling) {
  EXPECT_EQ(after(planeOf("1"), "Recorrer\nRecorrer_Adelante")["slope"], "igual");
}

TEST_F(DriveTrace, SkipsPointsThatAreUndefinedOrOutsideTheView) {
  const std::string hole = planeOf("raiz2(x^2-4)");
  const Json right = after(hole, clickAt(-2.5, 0) + "Recorrer_Adelante");
  EXPECT_EQ(right["panels"], panels("X=2", "Y=0"));
  EXPECT_EQ(right["cursor"], Json({7000, 4500}));
  EXPECT_EQ(after(hole, clickAt(-2.5, 0) + "Recorrer_Adelante\nRecorrer_Atras")["trace_x"], -2);
  const std::string peak = planeOf("12-abs(x)");
  EXPECT_EQ(after(peak, clickAt(-3.5, 0) + "Recorrer_Adelante")["trace_x"], 3);
}

TEST_F(DriveTrace, EndsInTheNormalModeWhenItLeavesTheRange) {
  const std::string to_the_end = clickAt(8.5, 0);
  EXPECT_EQ(after(planeOf("x"), to_the_end)["trace_x"], 9);
  const Json right = after(planeOf("x"), to_the_end + "Recorrer_Adelante");
  EXPECT_EQ(right["mode"], "NORMAL");
  EXPECT_EQ(right["cursor"], nullptr);
  EXPECT_EQ(right["panels"], kWholeRange);
  EXPECT_EQ(right["trace_x"], 9);
  const Json left = after(planeOf("x"), "Recorrer\nRecorrer_Atras");
  EXPECT_EQ(left["mode"], "NORMAL");
  EXPECT_EQ(left["trace_x"], -9);
  EXPECT_EQ(after(planeOf("x"), "Recorrer\nRecorrer_Atras\nRecorrer_Adelante")["trace_x"], -8.5);
}

TEST_F(DriveTrace, ReachesTheEdgesOfTheView) {
  EXPECT_EQ(after(planeOf("1"), clickAt(11.5, 0))["trace_x"], 12);
  EXPECT_EQ(after(planeOf("1"), clickAt(11.5, 0) + "Recorrer_Adelante")["mode"], "NORMAL");
  EXPECT_EQ(after(planeOf("1"), "Recorrer\nRecorrer_Atras")["trace_x"], -12);
  EXPECT_EQ(after(planeOf("1"), "Recorrer\nRecorrer_Atras\nRecorrer_Atras")["mode"], "NORMAL");
}

TEST_F(DriveTrace, APanPutsTheCursorBack) {
  const Json object = after(planeOf("x"), "Recorrer_Adelante\nDerecha\nArriba");
  EXPECT_EQ(object["mode"], "RECORRIDO");
  EXPECT_EQ(object["trace_x"], 0.5);
  EXPECT_EQ(object["cursor"], Json({(0.5 + 8) * 500, (12 - 0.5) * 500}));
  EXPECT_EQ(object["panels"], panels("X=0,5", "Y=0,5"));
  EXPECT_EQ(object["slope"], "igual");
  EXPECT_EQ(object["redraws"], 3);
}

TEST_F(DriveTrace, APanThatLosesThePointEndsTheTrace) {
  const Json object = after(planeOf("x"), "Recorrer_Adelante\n" + repeated("Arriba", 4));
  EXPECT_EQ(object["mode"], "NORMAL");
  EXPECT_EQ(object["cursor"], nullptr);
  EXPECT_EQ(object["trace_x"], 0.5);
  EXPECT_EQ(object["panels"], panels(" Xmin=-12  ", " XMAX=12  ", " Ymin=3  ", " YMAX=21  "));
}

TEST_F(DriveTrace, ThePositionOutlivesModesAndZooms) {
  const Json object = after(planeOf("1"), clickAt(2, 1) + "Acercar\nRecorrer_Adelante");
  EXPECT_EQ(object["trace_x"], 2.5 + 16 / 48.0);
}

TEST_F(DriveTrace, ATraceFollowsTheMemberThatWasPicked) {
  const std::string document = plane(family('a', "p*x", "0", "2"));
  EXPECT_EQ(after(document, clickAt(1, 1.75) + "Recorrer")["panels"],
            panels("X=-4,5", "Y=-9", "P=2"));
  EXPECT_EQ(after(document, "Recorrer")["panels"], panels("X=-11,5", "Y=0", "P=0"));
}

TEST_F(DriveTrace, AFamilyWhoseStepIsLongerThanItsRangeHasItsFirstMember) {
  const std::string document =
      plane(block('a', 'Z', "p*x", "parametro=P\r\ninicio=1\r\nfin=3\r\nvariacion=5\r\n"));
  EXPECT_EQ(after(document, clickAt(0, 5))["panels"], panels("X=0,5", "Y=0,5", "P=1"));
}

TEST_F(DriveTrace, MapsWithTheFloorOfTheDrawing) {
  const Json object = after(planeOf("x/3"), "Recorrer_Adelante", {"--width", "799"});
  EXPECT_EQ(object["trace_x"], 24 / 42.0);
  EXPECT_EQ(object["cursor"], Json({std::floor((24 / 42.0 + 12) * (799 * 15 / 24.0)),
                                    std::floor((9 - 8 / 42.0) * 500)}));
}

TEST_F(DriveTrace, EndsFromAPlaceFromWhichAStepLeadsNowhere) {
  // The trace point stays near 1E16 while the view shrinks to the left end of the range.
  std::string script = "Recorrer_Adelante\nZoom_a_Medida\n";
  for (int i = 0; i < 9; ++i) script += "down left 0 0\nmove left 60 9000\nup left 60 9000\n";
  const std::vector<std::string> wide = {"--range", "0", "1E18", "-9", "9"};
  const Json far = after(planeOf("1"), script, wide);
  EXPECT_GT(far["trace_x"], 1e16);
  EXPECT_LT(far["xf"], 0.01);
  for (const char* command : {"Recorrer_Atras", "Recorrer_Adelante", "Buscar_Max_Min"}) {
    const Json object = after(planeOf("1"), script + command, wide);
    EXPECT_TRUE(object["mode"] == "NORMAL" || object["mode"] == "RECORRIDO") << command;
  }
}

}  // namespace
}  // namespace zel::test
