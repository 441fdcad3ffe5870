#include "plot/viewport.h"

#include <cmath>
#include <limits>
#include <string>

#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

Viewport viewportOf(double xi, double xf, double yi, double yf) {
  Viewport viewport;
  viewport.view = {xi, yi, xf, yf, 100, false};
  viewport.size = PictureSize::ofPixels(800, 600);
  return viewport;
}

RangeVerdict verdict(double xi, double xf, double yi, double yf) {
  return viewportOf(xi, xf, yi, yf).prepare();
}

/// The sample count as a text, "none" when there is none.
std::string countOf(double pixel_width, int definicion) {
  Viewport viewport = viewportOf(-10, 10, -10, 10);
  viewport.size.pixel_width = pixel_width;
  viewport.view.definicion = static_cast<std::int16_t>(definicion);
  const auto count = viewport.sampleCount();
  return count ? std::to_string(*count) : "none";
}

TEST(Viewport, MeasuresAPictureWithoutABorderInTwips) {
  const PictureSize size = PictureSize::ofPixels(200, 150);
  EXPECT_EQ(size.scale_width, 3000);
  EXPECT_EQ(size.scale_height, 2250);
  EXPECT_EQ(size.width, 3000);
  EXPECT_EQ(size.height, 2250);
  EXPECT_EQ(size.pixel_width, 200);
}

TEST(Viewport, ComputesScalesAndStepsFromTheInnerSizeAndTheSampleCount) {
  Viewport viewport = viewportOf(-10, 10, -1, 4);
  viewport.size = {12000, 9000, 99999, 77777, 800};
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  EXPECT_EQ(viewport.xScale(), 600);
  EXPECT_EQ(viewport.yScale(), 1800);
  EXPECT_EQ(viewport.xStep(), 20 / 800.0);
  EXPECT_EQ(viewport.yStep(), 5 / 800.0);
}

TEST(Viewport, CountsSamplesByWholeHundredsOfPixels) {
  EXPECT_EQ(countOf(799, 3), "21");
  EXPECT_EQ(countOf(800, 3), "24");
  EXPECT_EQ(countOf(99, 100), "0");
  EXPECT_EQ(countOf(0, 100), "0");
}

TEST(Viewport, RoundsThePixelWidthHalvesToEven) {
  EXPECT_EQ(countOf(799.4, 3), "21");
  EXPECT_EQ(countOf(799.5, 3), "24");
  EXPECT_EQ(countOf(799.6, 3), "24");
  EXPECT_EQ(countOf(299.5, 3), "9");   // 300
  EXPECT_EQ(countOf(300.5, 3), "9");   // 300
  EXPECT_EQ(countOf(3e9, 1), "none");  // not even 32 bits
}

TEST(Viewport, KeepsTheSampleCountWithin16Bits) {
  EXPECT_EQ(countOf(100, 32767), "32767");
  EXPECT_EQ(countOf(100, -32768), "-32768");
  EXPECT_EQ(countOf(700, 4681), "32767");
  EXPECT_EQ(countOf(700, 4682), "none");
  EXPECT_EQ(countOf(800, -4096), "-32768");
  EXPECT_EQ(countOf(800, -4097), "none");
  EXPECT_EQ(countOf(2e9, 32767), "none");
}

TEST(Viewport, RefusesASampleCountThatDoesNotFitAsAFailure) {
  Viewport viewport = viewportOf(-10, 10, -10, 10);
  viewport.view.definicion = 4097;
  EXPECT_EQ(viewport.prepare(), RangeVerdict::failed);
  viewport.view.definicion = 4095;
  EXPECT_EQ(viewport.prepare(), RangeVerdict::drawable);
}

TEST(Viewport, RefusesNoSamplesAtAllAsAFailure) {
  Viewport viewport = viewportOf(-10, 10, -10, 10);
  viewport.view.definicion = 0;
  EXPECT_EQ(viewport.prepare(), RangeVerdict::failed);
  viewport.view.definicion = 100;
  viewport.size = PictureSize::ofPixels(99, 600);
  EXPECT_EQ(viewport.prepare(), RangeVerdict::failed);
}

TEST(Viewport, TakesANegativeQualityAsItIs) {
  Viewport viewport = viewportOf(-10, 10, -10, 10);
  viewport.view.definicion = -1;
  EXPECT_EQ(viewport.prepare(), RangeVerdict::drawable);
  EXPECT_EQ(viewport.xStep(), -2.5);
}

TEST(Viewport, IsTooCloseWhenAStepFromTheLeftEndDoesNotLeaveIt) {
  constexpr double k2To53 = 9007199254740992;
  EXPECT_EQ(verdict(5, 5, -10, 10), RangeVerdict::too_close);
  EXPECT_EQ(verdict(0, 0, -10, 10), RangeVerdict::too_close);
  EXPECT_EQ(verdict(k2To53, k2To53 + 800, -10, 10), RangeVerdict::too_close);
  EXPECT_EQ(verdict(k2To53, k2To53 + 802, -10, 10), RangeVerdict::drawable);
  EXPECT_EQ(verdict(1, std::nextafter(1, 2), -10, 10), RangeVerdict::too_close);
  EXPECT_EQ(verdict(0, 1e-300, -1e300, 1e300), RangeVerdict::drawable);
}

TEST(Viewport, IsTooCloseBeforeItIsDividedByZero) {
  EXPECT_EQ(verdict(5, 5, 3, 3), RangeVerdict::too_close);
  EXPECT_EQ(verdict(0, std::numeric_limits<double>::denorm_min(), -10, 10),
            RangeVerdict::too_close);
}

TEST(Viewport, LooksAtTheXRangeOnlyForCloseness) {
  EXPECT_EQ(verdict(-10, 10, 1, std::nextafter(1, 2)), RangeVerdict::drawable);
  EXPECT_EQ(verdict(-10, 10, 0, 1e-290), RangeVerdict::drawable);
  EXPECT_EQ(verdict(-10, 10, 3, 3), RangeVerdict::failed);
}

TEST(Viewport, IsTooLargeWhenTheProductOfTheScalesVanishes) {
  EXPECT_EQ(verdict(-1e300, 1e300, -1e300, 1e300), RangeVerdict::too_large);
  EXPECT_EQ(verdict(-1e170, 1e170, -1e170, 1e170), RangeVerdict::too_large);
  EXPECT_EQ(verdict(-1e150, 1e150, -1e150, 1e150), RangeVerdict::drawable);
  EXPECT_EQ(verdict(-1e300, 1e300, -10, 10), RangeVerdict::drawable);
}

TEST(Viewport, IsBoundedByTheProductOfTheScalesAndTheSampleCount) {
  // The scales make 2^-1073, that is two of the smallest numbers.
  EXPECT_EQ(verdict(-1e160, 1e160, -2.8e170, 2.8e170), RangeVerdict::drawable);
  EXPECT_EQ(verdict(-1e160, 1e160, -2.8e171, 2.8e171), RangeVerdict::too_large);
  // The scales make 1.01E+306, of which the largest number is 177 times as much.
  Viewport viewport = viewportOf(-10, 10, 0, 1e-300);
  viewport.size = PictureSize::ofPixels(150, 600);
  const double scales = (2250.0 / 20) * (9000 / 1e-300);
  const int most = static_cast<int>(std::numeric_limits<double>::max() / scales);
  viewport.view.definicion = static_cast<std::int16_t>(most);
  EXPECT_EQ(viewport.prepare(), RangeVerdict::drawable);
  viewport.view.definicion = static_cast<std::int16_t>(most + 1);
  EXPECT_EQ(viewport.prepare(), RangeVerdict::failed);
}

TEST(Viewport, FailsWhereTheArithmeticOverflows) {
  EXPECT_EQ(verdict(-1e308, 1e308, -10, 10), RangeVerdict::failed);  // the width of x
  EXPECT_EQ(verdict(-10, 10, -1e308, 1e308), RangeVerdict::failed);  // the width of y
  EXPECT_EQ(verdict(-10, 10, 0, 1e-306), RangeVerdict::failed);      // the scale of y
  EXPECT_EQ(verdict(-10, 10, 0, 1e-302), RangeVerdict::failed);      // the product of the scales
  Viewport beyond = viewportOf(1.79e308, 1.7e308, -10, 10);          // the left end and one step
  beyond.view.definicion = 1;
  beyond.size = PictureSize::ofPixels(100, 100);
  EXPECT_EQ(beyond.prepare(), RangeVerdict::failed);
}

TEST(Viewport, FailsForEndsThatAreNoNumbers) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  const double nan = std::nan("");
  EXPECT_EQ(verdict(nan, 10, -10, 10), RangeVerdict::failed);
  EXPECT_EQ(verdict(-10, 10, -10, nan), RangeVerdict::failed);
  EXPECT_EQ(verdict(kInfinity, 10, -10, 10), RangeVerdict::failed);
  EXPECT_EQ(verdict(kInfinity, kInfinity, -10, 10), RangeVerdict::failed);
  EXPECT_EQ(verdict(-kInfinity, kInfinity, -10, 10), RangeVerdict::failed);
}

TEST(Viewport, DrawsARangeThatStandsUpsideDown) {
  EXPECT_EQ(verdict(10, -10, -10, 10), RangeVerdict::drawable);
  EXPECT_EQ(verdict(-10, 10, 10, -10), RangeVerdict::drawable);
}

TEST(Viewport, BecomesProportionalAboutTheCentreOfItsYRange) {
  Viewport viewport = viewportOf(-10, 10, 0, 4);
  viewport.size = PictureSize::ofPixels(800, 400);
  viewport.view.mantener_prop = true;
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  const ViewSettings expected = {-10, -3, 10, 7, 100, true};
  EXPECT_EQ(viewport.view, expected);
  EXPECT_EQ(viewport.xScale(), viewport.yScale());
}

TEST(Viewport, BecomesProportionalByTheOuterSizeOfThePicture) {
  Viewport viewport = viewportOf(-10, 10, -1, 1);
  viewport.size = {3000, 2000, 4000, 1000, 266};
  viewport.view.mantener_prop = true;
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  EXPECT_EQ(viewport.view.yi, -2.5);
  EXPECT_EQ(viewport.view.yf, 2.5);
  EXPECT_EQ(viewport.xScale(), 150);
  EXPECT_EQ(viewport.yScale(), 400);
}

TEST(Viewport, TurnsTheYRangeUprightWhenItBecomesProportional) {
  Viewport viewport = viewportOf(10, -10, 5, -3);
  viewport.size = PictureSize::ofPixels(800, 400);
  viewport.view.mantener_prop = true;
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  EXPECT_EQ(viewport.view.yi, -4);
  EXPECT_EQ(viewport.view.yf, 6);
}

TEST(Viewport, IsAsItWasWhenItCannotBecomeProportional) {
  Viewport viewport = viewportOf(-1e308, 7e307, -1, 1);
  viewport.view.mantener_prop = true;
  const ViewSettings before = viewport.view;
  EXPECT_EQ(viewport.prepare(), RangeVerdict::failed);
  EXPECT_EQ(viewport.view, before);
}

TEST(Viewport, KeepsTheProportionsBeforeItIsChecked) {
  // Proportions make a y range of any size, be it none: a point keeps its centre only.
  Viewport viewport = viewportOf(3, 3, 0, 4);
  viewport.view.mantener_prop = true;
  EXPECT_EQ(viewport.prepare(), RangeVerdict::too_close);
  EXPECT_EQ(viewport.view.yi, 2);
  EXPECT_EQ(viewport.view.yf, 2);
}

TEST(Viewport, FloorsWhatItMapsAndGrowsUpwards) {
  Viewport viewport = viewportOf(-10, 10, -10, 10);  // 600 and 450 twips to a unit
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  EXPECT_EQ(viewport.map(-10, 10), (Point{0, 0}));
  EXPECT_EQ(viewport.map(10, -10), (Point{12000, 9000}));
  EXPECT_EQ(viewport.map(0, 0), (Point{6000, 4500}));
  EXPECT_EQ(viewport.mapX(-9.9999), 0);
  EXPECT_EQ(viewport.mapX(-10.0001), -1);
  EXPECT_EQ(viewport.mapY(9.9999), 0);
  EXPECT_EQ(viewport.mapY(10.0001), -1);
  EXPECT_EQ(viewport.mapX(0.0025), 6001);
  EXPECT_EQ(viewport.mapY(0.0025), 4498);  // 4498,875
}

TEST(Viewport, MapsFarOutsideWithoutHarm) {
  Viewport viewport = viewportOf(-10, 10, -10, 10);
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  EXPECT_EQ(viewport.mapX(1e300), 1e300 * 600);
  EXPECT_EQ(viewport.mapY(1e300), -1e300 * 450);
}

TEST(Viewport, MapsBackWithoutFlooring) {
  Viewport viewport = viewportOf(-10, 10, -10, 10);
  ASSERT_EQ(viewport.prepare(), RangeVerdict::drawable);
  EXPECT_EQ(viewport.planeX(0), -10);
  EXPECT_EQ(viewport.planeX(6000), 0);
  EXPECT_EQ(viewport.planeX(6001), 6001.0 / 600 - 10);
  EXPECT_EQ(viewport.planeY(0), 10);
  EXPECT_EQ(viewport.planeY(4500), 0);
  EXPECT_EQ(viewport.planeY(4501), 10 - 4501.0 / 450);
}

TEST(Viewport, HasItsFourEdgesInside) {
  const Viewport viewport = viewportOf(-10, 10, -5, 5);
  EXPECT_TRUE(viewport.isInside(-10, -5));
  EXPECT_TRUE(viewport.isInside(10, 5));
  EXPECT_FALSE(viewport.isInside(std::nextafter(-10, -11), 0));
  EXPECT_FALSE(viewport.isInside(std::nextafter(10, 11), 0));
  EXPECT_FALSE(viewport.isInside(0, std::nextafter(-5, -6)));
  EXPECT_FALSE(viewport.isInside(0, std::nextafter(5, 6)));
  EXPECT_FALSE(viewport.isInside(0, std::nan("")));
}

TEST(ViewSettings, ShowTenToEachSideOfTheOriginAtFirst) {
  const ViewSettings view;
  EXPECT_EQ(view, (ViewSettings{-10, -10, 10, 10, 100, false}));
}

}  // namespace
}  // namespace zel::test
