#include "plot/session/navigation.h"

#include <cmath>
#include <limits>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

ViewSettings viewOf(double xi, double xf, double yi, double yf) {
  return {xi, yi, xf, yf, 7, true};
}

void expectView(const ViewSettings& view, double xi, double xf, double yi, double yf) {
  EXPECT_DOUBLE_EQ(view.xi, xi);
  EXPECT_DOUBLE_EQ(view.xf, xf);
  EXPECT_DOUBLE_EQ(view.yi, yi);
  EXPECT_DOUBLE_EQ(view.yf, yf);
  EXPECT_EQ(view.definicion, 7);
  EXPECT_TRUE(view.mantener_prop);
}

TEST(Navigation, AShiftMovesBothEndsOfOneRange) {
  ViewSettings view = viewOf(1, 3, -2, 5);
  shiftUp(view, 0.5);
  shiftRight(view, 2);
  expectView(view, 3, 5, -1.5, 5.5);
  shiftDown(view, 1);
  shiftLeft(view, 4);
  expectView(view, -1, 1, -2.5, 4.5);
}

TEST(Navigation, APanMovesByASixthOfTheView) {
  const ViewSettings view = viewOf(-10, 10, 0, 6);
  expectView(panned(view, PlotCommand::derecha), -10 + 20.0 / 6, 10 + 20.0 / 6, 0, 6);
  expectView(panned(view, PlotCommand::izquierda), -10 - 20.0 / 6, 10 - 20.0 / 6, 0, 6);
  expectView(panned(view, PlotCommand::arriba), -10, 10, 1, 7);
  expectView(panned(view, PlotCommand::abajo), -10, 10, -1, 5);
}

TEST(Navigation, APanOfAReversedRangeGoesTheOtherWay) {
  expectView(panned(viewOf(6, -6, 0, 6), PlotCommand::derecha), 4, -8, 0, 6);
}

TEST(Navigation, AnyOtherCommandLeavesTheView) {
  const ViewSettings view = viewOf(-10, 10, 0, 6);
  EXPECT_EQ(panned(view, PlotCommand::parar), view);
}

TEST(Navigation, InKeepsTwoThirdsAndOutMakesFourThirds) {
  const ViewSettings view = viewOf(-10, 10, -3, 3);
  expectView(zoomed(view, Zoom::in), -20.0 / 3, 20.0 / 3, -2, 2);
  expectView(zoomed(view, Zoom::out), -40.0 / 3, 40.0 / 3, -4, 4);
}

TEST(Navigation, InAndOutAreNotInverse) {
  const ViewSettings view = zoomed(zoomed(viewOf(-9, 9, -9, 9), Zoom::in), Zoom::out);
  EXPECT_DOUBLE_EQ(view.xf - view.xi, 16);
  EXPECT_DOUBLE_EQ(view.yf - view.yi, 16);
}

TEST(Navigation, AZoomAboutAPointLeavesItWhereItIs) {
  const ViewSettings in = zoomedAbout(viewOf(-10, 10, 0, 6), Zoom::in, -4, 3);
  expectView(in, -8, -4 + 14.0 * 2 / 3, 1, 5);
  const ViewSettings out = zoomedAbout(viewOf(0, 6, 0, 6), Zoom::out, 0, 6);
  expectView(out, 0, 8, -2, 6);
}

TEST(Navigation, AZoomAboutTheMiddleIsTheZoomOfTheButtons) {
  const ViewSettings view = viewOf(-9, 9, -3, 3);
  const ViewSettings buttons = zoomed(view, Zoom::in);
  expectView(zoomedAbout(view, Zoom::in, 0, 0), buttons.xi, buttons.xf, buttons.yi, buttons.yf);
}

TEST(Navigation, AViewIsFiniteWhenAllItsEndsAre) {
  EXPECT_TRUE(isFinite(viewOf(-1e308, 1e308, 0, 1)));
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  EXPECT_FALSE(isFinite(viewOf(-kInfinity, 1, 0, 1)));
  EXPECT_FALSE(isFinite(viewOf(0, kInfinity, 0, 1)));
  EXPECT_FALSE(isFinite(viewOf(0, 1, std::nan(""), 1)));
  EXPECT_FALSE(isFinite(viewOf(0, 1, 0, kInfinity)));
}

}  // namespace
}  // namespace zel::test
