#include <cmath>

#include "base/language.h"
#include "base/message_table.h"
#include "drive_fixture.h"

namespace zel::test {
namespace {

class DriveNavigation : public DriveTest {
 protected:
  using Range = std::vector<double>;

  Range rangeAfter(const std::string& script, const std::vector<std::string>& more = {}) {
    return rangeOf(after(planeOf("x"), script, more));
  }
};

TEST_F(DriveNavigation, PansBySixthsOfTheView) {
  EXPECT_EQ(rangeAfter("Derecha"), Range({-8, 16, -9, 9}));
  EXPECT_EQ(rangeAfter("Izquierda"), Range({-16, 8, -9, 9}));
  EXPECT_EQ(rangeAfter("Arriba"), Range({-12, 12, -6, 12}));
  EXPECT_EQ(rangeAfter("Abajo"), Range({-12, 12, -12, 6}));
  EXPECT_EQ(rangeAfter("Derecha", {"--range", "-10", "10", "0", "1"}),
            Range({-10 + 20.0 / 6, 10 + 20.0 / 6, 0, 1}));
  EXPECT_EQ(rangeAfter("Derecha\nArriba\nIzquierda\nAbajo"), Range({-12, 12, -9, 9}));
}

TEST_F(DriveNavigation, PansAReversedRangeTheOtherWay) {
  EXPECT_EQ(rangeAfter("Derecha", {"--range", "12", "-12", "-9", "9"}), Range({8, -16, -9, 9}));
  EXPECT_EQ(rangeAfter("Arriba", {"--range", "-12", "12", "9", "-9"}), Range({-12, 12, 6, -12}));
}

TEST_F(DriveNavigation, ZoomsInToTwoThirdsAndOutToFour) {
  EXPECT_EQ(rangeAfter("Acercar"), Range({-8, 8, -6, 6}));
  EXPECT_EQ(rangeAfter("Alejar"), Range({-16, 16, -12, 12}));
  const double sixth = 20.0 / 6;
  EXPECT_EQ(rangeAfter("Acercar", {"--range", "-10", "10", "-10", "10"}),
            Range({-10 + sixth, 10 - sixth, -10 + sixth, 10 - sixth}));
  EXPECT_EQ(rangeAfter("Alejar", {"--range", "-10", "10", "-10", "10"}),
            Range({-10 - sixth, 10 + sixth, -10 - sixth, 10 + sixth}));
}

TEST_F(DriveNavigation, ZoomingInAndOutLeavesEightNinths) {
  const Range range = rangeAfter("Acercar\nAlejar");
  EXPECT_EQ(range, Range({-8 - 16.0 / 6, 8 + 16.0 / 6, -8, 8}));
  EXPECT_NEAR(range[1] - range[0], 24 * 8.0 / 9, 1e-12);
}

TEST_F(DriveNavigation, EachPanAndZoomDrawsOnceAndShowsTheRange) {
  const Driven driven = drive(planeOf("x"), "Derecha\nArriba\nAcercar\nAlejar\n");
  for (std::size_t i = 0; i < 5; ++i) EXPECT_EQ(driven.objects[i]["redraws"], i + 1);
  EXPECT_EQ(driven.objects[1]["panels"],
            panels(" Xmin=-8  ", " XMAX=16  ", " Ymin=-9  ", " YMAX=9  "));
  EXPECT_EQ(driven.objects[3]["panels"],
            panels(" Xmin=-4  ", " XMAX=12  ", " Ymin=-3  ", " YMAX=9  "));
}

TEST_F(DriveNavigation, TheRangeIsShownWithFifteenDigits) {
  EXPECT_EQ(after(planeOf("x"), "Derecha", {"--range", "-10", "10", "-1E-5", "1E15"})["panels"],
            panels(" Xmin=-6,66666666666667  ", " XMAX=13,3333333333333  ", " Ymin=-1E-05  ",
                   " YMAX=1E+15  "));
}

TEST_F(DriveNavigation, ATinyRangeOfYIsDrawn) {
  const Json object = after(planeOf("x"), "Recorrer", {"--range", "-12", "12", "0", "1E-290"});
  EXPECT_EQ(object["panels"], panels("X=0", "Y=0"));
}

TEST_F(DriveNavigation, ZoomingInEndsWhereTheRangeIsTooClose) {
  const Driven driven =
      drive(planeOf("x"), repeated("Acercar", 200), {"--range", "1", "2", "1", "2"});
  double xi = 1;
  double xf = 2;
  std::size_t zooms = 0;
  while (xi + std::fabs(xf - xi) / 48 != xi) {
    const double sixth = (xf - xi) / 6;
    xi += sixth;
    xf -= sixth;
    ++zooms;
  }
  ASSERT_LT(zooms, 200u);
  EXPECT_EQ(driven.status, 1);
  EXPECT_EQ(driven.objects[zooms - 1]["closed_to"], nullptr);
  EXPECT_EQ(driven.objects[zooms]["closed_to"], "main");
  EXPECT_EQ(driven.objects[zooms]["messages"],
            Json({report("Operación cancelada.\r\nCausa: " + std::string(messages::kRangeTooClose) +
                             "\r\nDetalle: gráfico activo a",
                         "ZEL - Reporte de errores criticos")}));
  EXPECT_EQ(driven.objects[zooms]["xi"], xi);
  EXPECT_EQ(driven.objects[zooms]["xf"], xf);
  EXPECT_EQ(driven.last()["closed_to"], "main");
  EXPECT_EQ(driven.last()["xi"], xi);
  EXPECT_EQ(driven.last()["redraws"], driven.objects[zooms]["redraws"]);
}

TEST_F(DriveNavigation, ZoomingOutEndsWhereTheRangeIsTooLarge) {
  const Driven driven = drive(planeOf("1"), repeated("Alejar", 200),
                              {"--range", "-1e157", "1e157", "-1e157", "1e157"});
  double half = 1e157;
  std::size_t zooms = 0;
  while (9000 / (2 * half) * (12000 / (2 * half)) * 48 != 0) {
    half += (2 * half) / 6;
    ++zooms;
  }
  ASSERT_LT(zooms, 200u);
  EXPECT_EQ(driven.status, 1);
  EXPECT_EQ(driven.objects[zooms - 1]["messages"], Json::array());
  EXPECT_EQ(driven.objects[zooms]["messages"], Json({attention(kTooLarge)}));
  EXPECT_EQ(driven.last()["closed_to"], "main");
}

TEST_F(DriveNavigation, NoMoveLeadsBeyondTheLargestNumber) {
  const std::vector<std::string> widest = {"--range", "-8e307", "8e307", "-1", "1"};
  for (const char* script : {"Alejar", "Derecha\nDerecha\nDerecha\nDerecha"}) {
    const Driven driven = drive(planeOf("1"), script, widest);
    EXPECT_EQ(driven.status, 1) << script;
    EXPECT_EQ(driven.last()["messages"], Json({attention(kFailed)})) << script;
    EXPECT_EQ(driven.last()["closed_to"], "main") << script;
    for (const double value : rangeOf(driven.last())) EXPECT_TRUE(std::isfinite(value)) << script;
  }
}

TEST_F(DriveNavigation, KeepsTheViewProportional) {
  EXPECT_EQ(rangeAfter("", {"--proportional", "yes", "--range", "-10", "10", "0", "4", "--width",
                            "800", "--height", "400"}),
            Range({-10, 10, -3, 7}));
  EXPECT_EQ(rangeAfter("Arriba", {"--proportional", "yes"}), Range({-12, 12, -6, 12}));
  EXPECT_EQ(rangeAfter("resize 800 400", {"--proportional", "yes"}), Range({-12, 12, -6, 6}));
}

TEST_F(DriveNavigation, AResizeDrawsAnewInTheNewSize) {
  const Json object = after(planeOf("x"), "resize 200 100\nRecorrer_Adelante");
  EXPECT_EQ(object["redraws"], 2);
  EXPECT_EQ(object["trace_x"], 2);  // 2 * 6 samples
  EXPECT_EQ(object["cursor"], Json({3000 / 24 * 14, std::floor(7 * 1500 / 18.0)}));
  EXPECT_EQ(rangeOf(object), Range({-12, 12, -9, 9}));
}

TEST_F(DriveNavigation, APictureThatWouldBeTooSmallStaysAsItWas) {
  for (const char* size : {"66 600", "800 66", "66 66", "0 0"}) {
    const Json object = after(planeOf("x"), "Recorrer\nresize " + std::string(size));
    EXPECT_EQ(object["mode"], "RECORRIDO") << size;
    EXPECT_EQ(object["redraws"], 1) << size;
    EXPECT_FALSE(object.contains("progress")) << size;
  }
  EXPECT_EQ(after(planeOf("x"), "resize 100 67")["redraws"], 2);
}

TEST_F(DriveNavigation, APictureWithoutSamplesCannotBeDrawn) {
  const Driven driven = drive(planeOf("x"), "resize 99 600");
  EXPECT_EQ(driven.status, 1);
  EXPECT_EQ(driven.last()["messages"], Json({attention(kFailed)}));
  EXPECT_EQ(driven.last()["closed_to"], "main");
}

TEST_F(DriveNavigation, SamplesAreCountedByWholeHundredsOfPixels) {
  const Json object = after(planeOf("x"), "Recorrer_Adelante",
                            {"--width", "799", "--quality", "3", "--range", "0", "21", "0", "21"});
  EXPECT_EQ(object["trace_x"], 1);
}

}  // namespace
}  // namespace zel::test
