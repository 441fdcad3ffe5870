#include "platform/icons/icon_drawing.h"

#include <QImage>
#include <QPainter>
#include <string>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

QByteArray svg(const QByteArray& shapes, const QByteArray& attributes = {}) {
  return "<svg viewBox=\"0 0 8 8\" " + attributes + ">" + shapes + "</svg>";
}

QColor asInTheFile(const QColor& colour) { return colour; }

/// The picture on white, its units as large as `scale` pixels.
QImage painted(const QByteArray& text, int scale = 1,
               const IconDrawing::Colouring& colouring = asInTheFile) {
  QImage image(8 * scale, 8 * scale, QImage::Format_RGB32);
  image.fill(Qt::white);
  const auto drawing = IconDrawing::read(text);
  EXPECT_TRUE(drawing) << text.toStdString();
  QPainter painter(&image);
  if (drawing) drawing->paint(painter, image.rect(), colouring);
  return image;
}

std::string colourAt(const QImage& image, int x, int y) {
  return image.pixelColor(x, y).name().toStdString();
}

TEST(IconDrawing, FillsAShapeInBlackWhereNothingIsSaid) {
  const QImage image = painted(svg("<rect x='2' y='2' width='4' height='4'/>"));
  EXPECT_EQ(colourAt(image, 1, 3), "#ffffff");
  EXPECT_EQ(colourAt(image, 2, 2), "#000000");
  EXPECT_EQ(colourAt(image, 5, 5), "#000000");
  EXPECT_EQ(colourAt(image, 6, 5), "#ffffff");
}

TEST(IconDrawing, StrokesWithTheShapesOwnAttributesOrThoseOfTheWhole) {
  const QImage image = painted(svg("<path d='M1 2H7'/><path stroke='#0000ff' d='M1 6H7'/>",
                                   "fill='none' stroke='#ff0000' stroke-width='2'"));
  EXPECT_EQ(colourAt(image, 3, 1), "#ff0000");
  EXPECT_EQ(colourAt(image, 3, 2), "#ff0000");
  EXPECT_EQ(colourAt(image, 3, 5), "#0000ff");
  EXPECT_EQ(colourAt(image, 0, 1), "#ffffff");
  EXPECT_EQ(colourAt(image, 3, 3), "#ffffff");
}

TEST(IconDrawing, HasRoundEndsAndCornersWhereTheFileSaysSo) {
  const QByteArray line = "<path fill='none' stroke='#000000' stroke-width='4' d='M4 4H6'";
  EXPECT_EQ(colourAt(painted(svg(line + "/>"), 10), 35, 40), "#ffffff");
  EXPECT_EQ(colourAt(painted(svg(line + " stroke-linecap='round'/>"), 10), 35, 40), "#000000");
  const QByteArray corner = "<path fill='none' stroke='#000000' stroke-width='4' d='M2 8V2H8'";
  EXPECT_EQ(colourAt(painted(svg(corner + "/>"), 10), 2, 2), "#000000");
  EXPECT_EQ(colourAt(painted(svg(corner + " stroke-linejoin='round'/>"), 10), 2, 2), "#ffffff");
  const QByteArray rect = "<rect width='8' height='8'";
  EXPECT_EQ(colourAt(painted(svg(rect + "/>"), 10), 2, 2), "#000000");
  EXPECT_EQ(colourAt(painted(svg(rect + " rx='3'/>"), 10), 2, 2), "#ffffff");
}

TEST(IconDrawing, PaintsLaterShapesOverEarlierOnes) {
  const QImage image = painted(svg("<circle cx='4' cy='4' r='4' fill='#ff0000'/>"
                                   "<circle cx='4' cy='4' r='2' fill='#00ff00'/>"),
                               10);
  EXPECT_EQ(colourAt(image, 40, 40), "#00ff00");
  EXPECT_EQ(colourAt(image, 40, 70), "#ff0000");
  EXPECT_EQ(colourAt(image, 2, 2), "#ffffff");
}

TEST(IconDrawing, AsksForTheColourOfEachShape) {
  const auto redAsGreen = [](const QColor& colour) {
    return colour == QColor(Qt::red) ? QColor(Qt::green) : colour;
  };
  const QImage image = painted(svg("<rect width='8' height='4' fill='#ff0000'/>"
                                   "<path d='M0 6H8' stroke='#ff0000' stroke-width='2'/>"
                                   "<rect y='7' width='8' height='1' fill='#0000ff'/>"),
                               1, redAsGreen);
  EXPECT_EQ(colourAt(image, 3, 1), "#00ff00");
  EXPECT_EQ(colourAt(image, 3, 5), "#00ff00");
  EXPECT_EQ(colourAt(image, 3, 7), "#0000ff");
}

TEST(IconDrawing, IsNotReadWhenASingleWordIsNotUnderstood) {
  ASSERT_TRUE(IconDrawing::read(svg("<path d='M0 0H1'/>")));
  for (const QByteArray& text :
       {QByteArray(), QByteArray("<svg/>"), QByteArray("<svg viewBox='0 0 8'/>"),
        QByteArray("<svg viewBox='0 0 8 0'/>"), QByteArray("<html viewBox='0 0 8 8'/>"),
        svg("<path d='M0 0H1'>"), svg("<path d='M0'/>"), svg("<text x='1'/>"),
        svg("<path d='M0 0' transform='scale(2)'/>"), svg("<path d='M0 0' fill='url(#a)'/>"),
        svg("<path d='M0 0' stroke-linecap='square'/>"), svg("<circle r='1m'/>"),
        svg("<path d='M0 0'/>", "opacity='0.5'")})
    EXPECT_FALSE(IconDrawing::read(text)) << text.toStdString();
}

}  // namespace
}  // namespace zel::test
