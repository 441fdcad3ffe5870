#include "platform/qt/png_writer.h"

#include <QByteArray>
#include <random>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

QImage readBack(const std::string& bytes) {
  return QImage::fromData(QByteArray::fromStdString(bytes), "PNG");
}

void expectSame(const QImage& image) {
  const QImage read = readBack(writePng(image));
  ASSERT_EQ(read.size(), image.size());
  EXPECT_EQ(read.convertToFormat(QImage::Format_RGB32),
            image.convertToFormat(QImage::Format_RGB32));
  EXPECT_FALSE(read.hasAlphaChannel());
}

QImage plain(int width, int height) {
  QImage image(width, height, QImage::Format_RGB32);
  image.fill(Qt::white);
  return image;
}

TEST(PngWriter, GivesBackEveryPixel) {
  QImage image = plain(300, 200);
  for (int x = 0; x < 300; ++x) image.setPixel(x, x % 200, qRgb(x % 256, 255 - x % 256, 17));
  expectSame(image);
}

TEST(PngWriter, TakesTheSmallestImage) { expectSame(plain(1, 1)); }

TEST(PngWriter, TakesNoiseThatDoesNotCompress) {
  std::mt19937 random(5);
  QImage image = plain(700, 500);
  for (int y = 0; y < 500; ++y)
    for (int x = 0; x < 700; ++x) image.setPixel(x, y, 0xff000000 | (random() & 0xffffff));
  expectSame(image);
}

TEST(PngWriter, TakesALargePlainImage) { expectSame(plain(4000, 3000)); }

TEST(PngWriter, TakesRowsOfAnyLength) {
  for (int width = 2; width < 40; ++width) expectSame(plain(width, 3));
}

TEST(PngWriter, TakesOtherFormats) {
  expectSame(plain(30, 20).convertToFormat(QImage::Format_Indexed8));
}

TEST(PngWriter, MakesNothingOfNoImage) { EXPECT_EQ(writePng(QImage()), ""); }

}  // namespace
}  // namespace zel::test
