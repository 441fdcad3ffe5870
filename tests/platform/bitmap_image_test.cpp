#include "platform/qt/bitmap_image.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(BitmapOfAnImage, HasItsPixelsRowByRow) {
  QImage image(3, 2, QImage::Format_RGB32);
  image.fill(Qt::white);
  image.setPixelColor(2, 0, QColor(0x12, 0x34, 0x56));
  image.setPixelColor(0, 1, Qt::black);
  const Bitmap bitmap = toBitmap(image);
  EXPECT_EQ(
      bitmap,
      (Bitmap{3, 2, {0xFFFFFFFF, 0xFFFFFFFF, 0xFF123456, 0xFF000000, 0xFFFFFFFF, 0xFFFFFFFF}}));
  EXPECT_EQ(toImage(bitmap), image);
}

TEST(BitmapOfAnImage, HasThePixelsOfADenseScreen) {
  QImage image(4, 4, QImage::Format_RGB32);
  image.fill(Qt::red);
  image.setDevicePixelRatio(2);
  const Bitmap bitmap = toBitmap(image);
  EXPECT_EQ(bitmap.width, 4);
  EXPECT_EQ(bitmap.pixels.size(), 16u);
}

TEST(BitmapOfAnImage, MayBeEmpty) {
  EXPECT_EQ(toBitmap(QImage()), Bitmap());
  EXPECT_TRUE(toImage(Bitmap()).isNull());
}

}  // namespace
}  // namespace zel::test
