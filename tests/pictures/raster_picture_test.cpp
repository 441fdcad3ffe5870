#include "pictures/raster_picture.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <numbers>
#include <vector>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

constexpr std::int32_t kRed = 0x0000FF;
constexpr std::int32_t kBlue = 0xFF0000;
constexpr int kWidth = 40;
constexpr int kHeight = 30;

std::uint32_t pixel(const Bitmap& bitmap, int x, int y) {
  return bitmap.pixels.at(static_cast<std::size_t>(y) * static_cast<std::size_t>(bitmap.width) +
                          static_cast<std::size_t>(x));
}

/// How dark a pixel of a black drawing is: 0 to 1.
double ink(const Bitmap& bitmap, int x, int y) {
  return (255 - (pixel(bitmap, x, y) & 0xFF)) / 255.0;
}

double inkOf(const Bitmap& bitmap) {
  double sum = 0;
  for (const std::uint32_t pixel : bitmap.pixels) sum += (255 - (pixel & 0xFF)) / 255.0;
  return sum;
}

Point atPixel(double x, double y) { return {x * 15, y * 15}; }

class Raster : public ::testing::Test {
 protected:
  void piece(const std::vector<Point>& points) {
    picture.startPiece(points.front());
    for (std::size_t i = 1; i < points.size(); ++i) picture.extendPiece(points[i]);
  }

  RasterPicture picture{kWidth, kHeight};
};

TEST_F(Raster, IsWhiteUntilSomethingIsDrawn) {
  EXPECT_EQ(picture.finish().pixels, LargeVector<std::uint32_t>(kWidth * kHeight, 0xFFFFFFFF));
}

TEST_F(Raster, IsWhiteAgainWhenItIsCleared) {
  picture.beginGraph('a', 0);
  piece({atPixel(0, 0), atPixel(40, 30), atPixel(40, 0)});
  picture.clear();
  EXPECT_EQ(inkOf(picture.finish()), 0);
  picture.beginAxes();
  EXPECT_EQ(inkOf(picture.finish()), 0);
}

TEST_F(Raster, ForgetsTheColourOfTheLastGraphWhenItIsCleared) {
  picture.beginGraph('a', 0x0000FF);
  picture.clear();
  picture.line(atPixel(20.5, 0), atPixel(20.5, 30));
  EXPECT_EQ(pixel(picture.finish(), 20, 10), 0xFF000000);
}

TEST_F(Raster, DrawsAxesAWholePixelWide) {
  picture.beginAxes();
  picture.line(atPixel(20.5, 0), atPixel(20.5, 30));
  const Bitmap& bitmap = picture.finish();
  for (int y = 0; y < kHeight; ++y) EXPECT_EQ(pixel(bitmap, 20, y), 0xFF000000) << y;
  EXPECT_EQ(inkOf(bitmap), kHeight);
}

TEST_F(Raster, DrawsATickOverAllItsPixels) {
  picture.beginAxes();
  picture.line(atPixel(12, 10), atPixel(17, 10));
  const Bitmap& bitmap = picture.finish();
  for (int x = 12; x < 17; ++x) EXPECT_EQ(ink(bitmap, x, 10), 1) << x;
  EXPECT_EQ(inkOf(bitmap), 5);
}

TEST_F(Raster, DrawsATickThatIsShorterThanAPixel) {
  picture.beginAxes();
  picture.line({300, 150}, {302, 150});
  EXPECT_EQ(inkOf(picture.finish()), 1);
}

TEST_F(Raster, PutsAnAxisOnTheLastTwipOnTheLastPixel) {
  picture.beginAxes();
  picture.line(atPixel(40, 0), atPixel(40, 30));
  picture.line(atPixel(0, 30), atPixel(40, 30));
  const Bitmap& bitmap = picture.finish();
  EXPECT_EQ(inkOf(bitmap), kWidth + kHeight - 1);
  for (int x = 0; x < kWidth; ++x) EXPECT_EQ(ink(bitmap, x, kHeight - 1), 1) << x;
  for (int y = 0; y < kHeight; ++y) EXPECT_EQ(ink(bitmap, kWidth - 1, y), 1) << y;
}

TEST_F(Raster, DrawsNoLineBeyondThePicture) {
  picture.beginAxes();
  picture.line(atPixel(40.1, 0), atPixel(40.1, 30));
  picture.line(atPixel(0, -0.1), atPixel(40, -0.1));
  picture.line(atPixel(-9, 4), atPixel(-5, 4));
  picture.line({-1e300, 1e300}, {1e300, 1e300});
  EXPECT_EQ(inkOf(picture.finish()), 0);
}

TEST_F(Raster, DrawsSlantedLinesToo) {
  picture.beginAxes();
  picture.line(atPixel(0, 0), atPixel(30, 30));
  const Bitmap& bitmap = picture.finish();
  EXPECT_EQ(ink(bitmap, 15, 15), 1);
  EXPECT_EQ(ink(bitmap, 18, 15), 0);
}

TEST(RasterDensity, DrawsBothAxesInEquallyManyPixels) {
  for (const double density : {0.5, 1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0}) {
    RasterPicture picture(100, 100, density);
    picture.beginAxes();
    picture.line({241, 0}, {241, 3000});
    picture.line({0, 307}, {3000, 307});
    int wide = 0;
    int high = 0;
    for (int i = 0; i < 100; ++i) {
      if (ink(picture.finish(), i, 2) == 1) ++wide;
      if (ink(picture.finish(), 2, i) == 1) ++high;
    }
    EXPECT_EQ(wide, std::max(1.0, std::round(density))) << density;
    EXPECT_EQ(high, wide) << density;
  }
}

/// How many pixels of a row are black, from a column on in a direction.
int blackFrom(const Bitmap& bitmap, int x, int y, int direction) {
  int count = 0;
  for (; ink(bitmap, x, y) == 1; x += direction) ++count;
  return count;
}

TEST(RasterDensity, DrawsATickEvenlyOnItsAxisWhereverThatLies) {
  for (const double density : {1.0, 1.25, 1.5, 1.75, 2.0, 3.0}) {
    for (double place = 600; place < 615; ++place) {
      RasterPicture picture(200, 200, density);
      picture.beginAxes();
      picture.line({place, 0}, {place, 600});
      picture.line({place - 40, 300}, {place + 40, 300});
      const Bitmap& bitmap = picture.finish();
      int first = 0;  // pixel of the axis
      while (ink(bitmap, first, 0) == 0) ++first;
      const int width = blackFrom(bitmap, first, 0, 1);
      const int row = static_cast<int>(20 * density - (width - 1) / 2.0);
      const int before = blackFrom(bitmap, first - 1, row, -1);
      EXPECT_GE(before, 2) << density << " at " << place;
      EXPECT_EQ(blackFrom(bitmap, first + width, row, 1), before) << density << " at " << place;
    }
  }
}

TEST(RasterDensity, DrawsAWideAxisWholeOnTheLastPixels) {
  RasterPicture picture(100, 100, 3);
  picture.beginAxes();
  picture.line({500, 0}, {500, 500});
  EXPECT_EQ(inkOf(picture.finish()), 300);
}

TEST_F(Raster, DrawsEachPieceByItselfInTheColourOfItsGraph) {
  picture.beginGraph('a', kRed);
  piece({atPixel(5, 5.5), atPixel(15, 5.5)});
  piece({atPixel(25, 5.5), atPixel(35, 5.5)});
  picture.beginGraph('b', kBlue);
  piece({atPixel(5, 20.5), atPixel(35, 20.5)});
  const Bitmap& bitmap = picture.finish();
  EXPECT_EQ(pixel(bitmap, 10, 5), 0xFFFF0000);
  EXPECT_EQ(pixel(bitmap, 30, 5), 0xFFFF0000);
  EXPECT_EQ(pixel(bitmap, 20, 5), 0xFFFFFFFF);
  EXPECT_EQ(pixel(bitmap, 20, 20), 0xFF0000FF);
}

TEST_F(Raster, DrawsALaterGraphOverAnEarlierOne) {
  picture.beginGraph('a', kRed);
  piece({atPixel(5, 5.5), atPixel(35, 5.5)});
  picture.beginGraph('b', kBlue);
  piece({atPixel(20.5, 0), atPixel(20.5, 30)});
  EXPECT_EQ(pixel(picture.finish(), 20, 5), 0xFF0000FF);
}

TEST_F(Raster, HoldsAGraphBackUntilItHasEnded) {
  picture.beginGraph('a', kRed);
  piece({atPixel(0, 15), atPixel(40, 15)});
  EXPECT_EQ(pixel(picture.bitmap(), 20, 15), 0xFFFFFFFFu);
  EXPECT_EQ(pixel(picture.soFar(), 20, 15), pixel(picture.finish(), 20, 15));
  EXPECT_NE(pixel(picture.bitmap(), 20, 15), 0xFFFFFFFFu);
}

TEST_F(Raster, ShowsAPieceOfOnePointAsADot) {
  picture.beginGraph('a', 0);
  picture.startPiece(atPixel(10.5, 10.5));
  const Bitmap& bitmap = picture.finish();
  EXPECT_EQ(ink(bitmap, 10, 10), 1);
  EXPECT_NEAR(inkOf(bitmap), std::numbers::pi * 0.75 * 0.75, 0.3);
}

TEST_F(Raster, DrawsACurveAPixelAndAHalfWideWhateverItsSlope) {
  for (int degrees = 0; degrees < 360; degrees += 3) {
    const double angle = degrees * std::numbers::pi / 180;
    const double x = 12 * std::cos(angle);
    const double y = 12 * std::sin(angle);
    picture.clear();
    picture.beginGraph('a', 0);
    piece({atPixel(20.3 - x, 15.1 - y), atPixel(20.3 + x, 15.1 + y)});
    const double round_ends = std::numbers::pi * 0.75 * 0.75;
    EXPECT_NEAR(inkOf(picture.finish()), 24 * 1.5 + round_ends, 1.5) << degrees;
  }
}

TEST_F(Raster, EndsALineRoundWhateverItsSlope) {
  for (int degrees = 0; degrees < 360; degrees += 5) {
    const double angle = degrees * std::numbers::pi / 180;
    picture.clear();
    picture.beginGraph('a', 0);
    piece({atPixel(20.5, 15.5), atPixel(20.5 + 12 * std::cos(angle), 15.5 + 12 * std::sin(angle))});
    const Bitmap& bitmap = picture.finish();
    for (int y = 12; y < 19; ++y) {
      for (int x = 17; x < 24; ++x) {
        const double ahead = (x - 20) * std::cos(angle) + (y - 15) * std::sin(angle);
        if (ahead > 0) continue;
        const double expected = std::clamp(1.25 - std::hypot(x - 20, y - 15), 0.0, 1.0);
        EXPECT_NEAR(ink(bitmap, x, y), expected, 0.02) << degrees << " " << x << "," << y;
      }
    }
  }
}

TEST_F(Raster, IsNoDarkerWhereACurveGoesOverItself) {
  picture.beginGraph('a', 0);
  piece({atPixel(5, 5), atPixel(35, 22)});
  const Bitmap once = picture.soFar();
  for (int i = 0; i < 3; ++i) piece({atPixel(35, 22), atPixel(5, 5)});
  piece({atPixel(5, 5), atPixel(35, 22)});
  EXPECT_TRUE(picture.finish() == once);
}

TEST_F(Raster, GoesRoundASharpTurnWithoutAGapOrASpike) {
  picture.beginGraph('a', 0);
  piece({atPixel(5, 25.5), atPixel(20.5, 10.5), atPixel(36, 25.5)});
  const Bitmap& bitmap = picture.finish();
  EXPECT_EQ(ink(bitmap, 20, 10), 1);
  EXPECT_NEAR(ink(bitmap, 20, 9), 0.25, 0.02);
  EXPECT_EQ(ink(bitmap, 20, 8), 0);
}

TEST_F(Raster, KeepsItsWidthWhereACurveTurnsFromFlatToSteep) {
  RasterPicture circle(200, 200);
  circle.beginGraph('a', 0);
  circle.startPiece({2500, 1500});
  for (int i = 1; i <= 600; ++i) {
    const double angle = i * std::numbers::pi / 300;
    circle.extendPiece(
        {std::floor(1500 + 1000 * std::cos(angle)), std::floor(1500 + 1000 * std::sin(angle))});
  }
  const Bitmap& bitmap = circle.finish();
  for (int y = 0; y < 200; ++y) {
    for (int x = 0; x < 200; ++x) {
      const double from_line = std::fabs(std::hypot(x + 0.5 - 100, y + 0.5 - 100) - 1000 / 15.0);
      EXPECT_NEAR(ink(bitmap, x, y), std::clamp(1.25 - from_line, 0.0, 1.0), 0.12) << x << "," << y;
    }
  }
}

TEST_F(Raster, LooksTheSameWithMorePointsOnItsLines) {
  picture.beginGraph('a', 0);
  piece({atPixel(2, 3), atPixel(38, 27)});
  const Bitmap at_once = picture.soFar();
  picture.clear();
  picture.beginGraph('a', 0);
  piece({atPixel(2, 3), atPixel(5, 5), atPixel(20, 15), atPixel(35, 25), atPixel(38, 27)});
  EXPECT_TRUE(picture.finish() == at_once);
}

TEST_F(Raster, LookingAtItMeanwhileChangesNothing) {
  std::vector<Point> points;
  for (int i = 0; i <= 60; ++i)
    points.push_back({i * 10.0, std::floor(225 + 200 * std::sin(i * 0.2))});
  picture.beginGraph('a', kRed);
  piece(points);
  const Bitmap whole = picture.soFar();
  picture.clear();
  picture.beginGraph('a', kRed);
  picture.startPiece(points.front());
  Bitmap last;
  for (std::size_t i = 1; i < points.size(); ++i) {
    picture.extendPiece(points[i]);
    last = picture.soFar();
  }
  EXPECT_TRUE(last == whole);
  EXPECT_TRUE(picture.finish() == whole);
}

TEST_F(Raster, ShowsAllThatWasDrawnSoFar) {
  picture.beginGraph('a', 0);
  piece({atPixel(5, 5.5), atPixel(15, 5.5), atPixel(30, 5.5)});
  EXPECT_EQ(ink(picture.soFar(), 28, 5), 1);
}

TEST_F(Raster, FillsADot) {
  picture.beginGraph('a', kBlue);
  picture.dot(atPixel(20.5, 15.5), 5 * 15);
  const Bitmap& bitmap = picture.finish();
  EXPECT_EQ(pixel(bitmap, 20, 15), 0xFF0000FF);
  EXPECT_EQ(pixel(bitmap, 24, 15), 0xFF0000FF);
  EXPECT_EQ(pixel(bitmap, 26, 15), 0xFFFFFFFF);
}

TEST_F(Raster, DrawsTheVisiblePartOfADotAtTheEdge) {
  picture.beginGraph('a', 0);
  picture.dot(atPixel(0, 0), 5 * 15);
  picture.dot(atPixel(40, 30), 5 * 15);
  picture.dot({1e300, -1e300}, 5 * 15);
  EXPECT_NEAR(inkOf(picture.finish()), std::numbers::pi * 25 / 2, 1);
}

TEST_F(Raster, DrawsTheVisiblePartOfALineThatLeavesThePlane) {
  picture.beginGraph('a', 0);
  piece({atPixel(20, 15.5), {-1e300, 15.5 * 15}});
  piece({{1e200, 1e300}, {1e300, 1e300}});
  piece({atPixel(-1000, -1000.5), atPixel(1000, 999.5)});
  const Bitmap& bitmap = picture.finish();
  EXPECT_EQ(ink(bitmap, 0, 15), 1);
  EXPECT_EQ(ink(bitmap, 30, 15), 0);
  EXPECT_GT(ink(bitmap, 25, 24), 0.8);
}

TEST_F(Raster, DrawsNothingThatIsNotFinite) {
  constexpr double kInfinity = std::numeric_limits<double>::infinity();
  picture.beginGraph('a', 0);
  piece({atPixel(20, 15), {kInfinity, 0}, {std::nan(""), 4}, {-1e308, 1e308}, {1e308, 0}});
  picture.dot({kInfinity, 0}, 20);
  picture.dot({std::nan(""), 0}, 20);
  picture.beginAxes();
  picture.line({kInfinity, 0}, {kInfinity, 100});
  picture.line({std::nan(""), 0}, {3, 3});
  EXPECT_LT(inkOf(picture.finish()), 4);
}

TEST_F(Raster, DrawsAtTheEdgesOfThePictureAndBeyondThem) {
  for (double from = -4; from < 44; from += 0.25) {
    picture.beginGraph('a', 0);
    piece({atPixel(from, -3), atPixel(from, 33), atPixel(from + 1, -3), atPixel(44, from)});
    piece({atPixel(-3, from), atPixel(43, from), atPixel(-3, from + 1)});
    picture.dot(atPixel(from, from), 20);
  }
  EXPECT_EQ(inkOf(picture.finish()), kWidth * kHeight);
}

TEST_F(Raster, BeginsAPieceWhereThereIsNone) {
  picture.beginGraph('a', 0);
  picture.extendPiece(atPixel(5, 5.5));
  picture.extendPiece(atPixel(15, 5.5));
  EXPECT_EQ(ink(picture.finish(), 10, 5), 1);
}

TEST_F(Raster, HandsOverItsPixelsAndIsEmptyOnOthers) {
  picture.beginGraph('a', 0);
  piece({atPixel(5, 5.5), atPixel(30, 5.5)});
  const Bitmap drawn = picture.soFar();
  Bitmap given = picture.exchange({});
  EXPECT_TRUE(given == drawn);
  picture.beginGraph('b', 0);
  piece({atPixel(5, 20.5), atPixel(30, 20.5)});
  const Bitmap second = picture.exchange(std::move(given));
  EXPECT_EQ(ink(second, 10, 5), 0);
  EXPECT_EQ(ink(second, 10, 20), 1);
  EXPECT_EQ(inkOf(picture.finish()), 0);
}

TEST(RasterSize, IsAPixelAtLeast) {
  RasterPicture picture(0, -3);
  picture.beginGraph('a', 0);
  picture.startPiece({0, 0});
  picture.extendPiece({15, 15});
  EXPECT_EQ(picture.finish().pixels.size(), 1u);
}

TEST(RasterSize, MayBeAnyNumberOfPixels) {
  for (int size = 1; size < 70; ++size) {
    RasterPicture picture(size, 70 - size);
    picture.beginGraph('a', 0);
    picture.startPiece({0, 0});
    picture.extendPiece({15.0 * size, 15.0 * (70 - size)});
    const Bitmap& bitmap = picture.finish();
    EXPECT_GT(ink(bitmap, size - 1, 69 - size), 0.7) << size;
  }
}

// 2 MB of pixels, and of the coverage of them, come between two pauses.
TEST(LargeRaster, PausesWhileItIsMade) {
  int pauses = 0;
  const RasterPicture picture(2048, 2048, 1, [&] { ++pauses; });
  EXPECT_EQ(pauses, 7 + 2);
}

TEST(LargeRaster, PausesWhereAGraphIsLaidOnIt) {
  int pauses = 0;
  RasterPicture picture(100, 800, 1, [&] { ++pauses; });
  RasterPicture other(100, 800);
  for (RasterPicture* one : {&picture, &other}) {
    one->beginGraph('a', kRed);
    one->startPiece(atPixel(50, 20));
    one->extendPiece(atPixel(50, 780));
  }
  EXPECT_EQ(pauses, 0);
  EXPECT_TRUE(picture.finish() == other.finish());
  EXPECT_GE(pauses, 760 / CoverageMask::kTileHeight);
}

}  // namespace
}  // namespace zel::test
