#include "platform/qt/painter_picture.h"

#include <QImage>
#include <cmath>
#include <optional>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

constexpr std::int32_t kRed = 0x0000FF;
constexpr std::int32_t kBlue = 0xFF0000;

class Painting : public ::testing::Test {
 protected:
  Painting() {
    image_.fill(Qt::green);
    painter_.begin(&image_);
    painter_.scale(1 / 15.0, 1 / 15.0);
    picture.emplace(painter_, QRectF(0, 0, 40 * 15, 30 * 15), Qt::white, Qt::black);
    picture->clear();
  }

  /// The finished image.
  const QImage& finish() {
    picture.reset();
    if (painter_.isActive()) painter_.end();
    return image_;
  }

  QImage paintedSoFar() const { return image_.copy(); }

  int pixelsOf(QColor colour) {
    const QImage& image = finish();
    int count = 0;
    for (int y = 0; y < image.height(); ++y)
      for (int x = 0; x < image.width(); ++x)
        if (image.pixelColor(x, y) == colour) ++count;
    return count;
  }

  static bool isDark(QColor colour) { return colour.lightness() < 140; }

 private:
  QImage image_{40, 30, QImage::Format_RGB32};
  QPainter painter_;

 protected:
  std::optional<PainterPicture> picture;
};

TEST_F(Painting, ClearsToTheBackground) { EXPECT_EQ(pixelsOf(Qt::white), 40 * 30); }

TEST_F(Painting, DrawsAxesAPixelWideInTheirColour) {
  picture->beginAxes();
  picture->line({20.5 * 15, 0}, {20.5 * 15, 30 * 15});
  const QImage& image = finish();
  for (int y = 0; y < 30; ++y) {
    EXPECT_TRUE(isDark(image.pixelColor(20, y))) << y;
    EXPECT_EQ(image.pixelColor(18, y), QColor(Qt::white)) << y;
    EXPECT_EQ(image.pixelColor(22, y), QColor(Qt::white)) << y;
  }
}

TEST_F(Painting, DrawsEachPieceByItselfInTheColourOfItsGraph) {
  picture->beginGraph('a', kRed);
  picture->startPiece({5 * 15, 5 * 15});
  picture->extendPiece({15 * 15, 5 * 15});
  picture->startPiece({25 * 15, 5 * 15});
  picture->extendPiece({35 * 15, 5 * 15});
  picture->beginGraph('b', kBlue);
  picture->startPiece({5 * 15, 20 * 15});
  picture->extendPiece({35 * 15, 20 * 15});
  const QImage& image = finish();
  EXPECT_GT(image.pixelColor(10, 5).red(), 200);
  EXPECT_LT(image.pixelColor(10, 5).blue(), 140);
  EXPECT_GT(image.pixelColor(30, 5).red(), 200);
  EXPECT_LT(image.pixelColor(30, 5).blue(), 140);
  EXPECT_EQ(image.pixelColor(20, 5), QColor(Qt::white));
  EXPECT_GT(image.pixelColor(20, 20).blue(), 200);
  EXPECT_LT(image.pixelColor(20, 20).red(), 140);
}

TEST_F(Painting, ShowsAPieceOfOnePointAsADot) {
  picture->beginGraph('a', kRed);
  picture->startPiece({10.5 * 15, 10.5 * 15});
  const QImage& image = finish();
  EXPECT_LT(image.pixelColor(10, 10).blue(), 140);
  EXPECT_EQ(image.pixelColor(14, 10), QColor(Qt::white));
}

TEST_F(Painting, DrawsAnAlmostStraightPieceWithoutBlots) {
  picture->beginGraph('a', 0);
  picture->startPiece({0, 10 * 15});
  for (int x = 1; x <= 40; ++x) picture->extendPiece({x * 15.0, 10 * 15.0 + (x > 20 ? 1 : 0)});
  const QImage& image = finish();
  for (int x = 2; x < 38; ++x) {
    EXPECT_GT(image.pixelColor(x, 9).lightness(), 30) << x;
    EXPECT_NEAR(image.pixelColor(x, 9).lightness(), image.pixelColor(x + 1, 9).lightness(), 30)
        << x;
  }
}

TEST(PaintingDensity, DrawsBothAxesInEquallyManyPixels) {
  for (const double ratio : {1.0, 1.25, 1.5, 1.75, 2.0, 2.5, 3.0}) {
    QImage image(QSize(100, 100), QImage::Format_RGB32);
    image.setDevicePixelRatio(ratio);
    QPainter painter(&image);
    painter.scale(1 / 15.0, 1 / 15.0);
    PainterPicture picture(painter, QRectF(0, 0, 1500, 1500), Qt::white, Qt::black);
    picture.clear();
    picture.beginAxes();
    picture.line({241, 0}, {241, 1500});
    picture.line({0, 307}, {1500, 307});
    int wide = 0;
    int high = 0;
    for (int i = 0; i < 100; ++i) {
      if (image.pixelColor(i, 2) == QColor(Qt::black)) ++wide;
      if (image.pixelColor(2, i) == QColor(Qt::black)) ++high;
    }
    EXPECT_EQ(wide, std::round(ratio)) << ratio;
    EXPECT_EQ(high, std::round(ratio)) << ratio;
  }
}

TEST(PaintingInParts, LooksLikeOnePolyline) {
  QPolygonF points;
  for (int x = 0; x <= 200; ++x)
    points.append({x * 15.0, std::floor(1500 + 1200 * std::sin(x * 0.07))});
  QImage image(QSize(200, 200), QImage::Format_RGB32);
  QImage expected = image;
  for (QImage* target : {&image, &expected}) {
    target->fill(Qt::white);
    QPainter painter(target);
    painter.scale(1 / 15.0, 1 / 15.0);
    PainterPicture picture(painter, QRectF(0, 0, 3000, 3000), Qt::white, Qt::black);
    picture.beginGraph('a', 0);
    if (target == &expected) {
      painter.drawPolyline(points);
      continue;
    }
    picture.startPiece({points[0].x(), points[0].y()});
    for (qsizetype i = 1; i < points.size(); ++i)
      picture.extendPiece({points[i].x(), points[i].y()});
  }
  constexpr int kUnseen = 255 / 5;
  for (int y = 0; y < 200; ++y)
    for (int x = 0; x < 200; ++x)
      ASSERT_NEAR(image.pixelColor(x, y).green(), expected.pixelColor(x, y).green(), kUnseen)
          << x << "," << y;
}

TEST_F(Painting, DrawsAPieceThatTurnsBackToItsFarthestPoint) {
  picture->beginGraph('a', kRed);
  picture->startPiece({5 * 15, 10 * 15});
  picture->extendPiece({20 * 15, 10 * 15});
  picture->extendPiece({35 * 15, 10 * 15});
  picture->extendPiece({10 * 15, 10 * 15});
  const QImage& image = finish();
  EXPECT_LT(image.pixelColor(33, 10).blue(), 140);
  EXPECT_LT(image.pixelColor(7, 10).blue(), 140);
}

TEST_F(Painting, FillsADot) {
  picture->beginGraph('a', kBlue);
  picture->dot({20 * 15, 15 * 15}, 5 * 15);
  const QImage& image = finish();
  EXPECT_EQ(image.pixelColor(20, 15), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(17, 15), QColor(Qt::blue));
  EXPECT_EQ(image.pixelColor(27, 15), QColor(Qt::white));
}

TEST_F(Painting, GoesOnWithAPieceAfterShowingItSoFar) {
  picture->beginGraph('a', kRed);
  picture->startPiece({5 * 15, 5 * 15});
  picture->extendPiece({15 * 15, 5 * 15});
  picture->flush();
  picture->extendPiece({35 * 15, 5 * 15});
  EXPECT_LT(finish().pixelColor(25, 5).blue(), 140);
}

TEST_F(Painting, ShowingItSoFarPaintsNothingTwice) {
  picture->beginGraph('a', kRed);
  picture->startPiece({5.2 * 15, 5.2 * 15});
  picture->extendPiece({15.2 * 15, 9.2 * 15});
  picture->flush();
  const QImage once = paintedSoFar();
  for (int i = 0; i < 5; ++i) picture->flush();
  picture->startPiece({30 * 15, 20 * 15});
  EXPECT_EQ(paintedSoFar(), once);
}

TEST_F(Painting, DrawsTheVisiblePartOfALineThatLeavesThePlane) {
  picture->beginGraph('a', kRed);
  picture->startPiece({20 * 15, 15 * 15});
  picture->extendPiece({-1e300, 15 * 15});
  picture->startPiece({1e200, 1e300});
  picture->extendPiece({1e300, 1e300});
  const QImage& image = finish();
  EXPECT_LT(image.pixelColor(5, 15).blue(), 140);
  EXPECT_EQ(image.pixelColor(30, 15), QColor(Qt::white));
}

TEST_F(Painting, PaintsAVeryLongPieceWhole) {
  picture->beginGraph('a', kRed);
  picture->startPiece({0, 10 * 15});
  for (int i = 1; i <= 20000; ++i) picture->extendPiece({40 * 15 * (i / 20000.0), 10 * 15});
  const QImage& image = finish();
  for (int x = 0; x < 40; ++x) EXPECT_LT(image.pixelColor(x, 10).blue(), 160) << x;
}

}  // namespace
}  // namespace zel::test
