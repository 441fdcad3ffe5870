#include "pictures/png.h"

#include <random>

#include <gtest/gtest.h>

#include "support/png_reader.h"

namespace zel::test {
namespace {

Bitmap plain(int width, int height) {
  const auto size = static_cast<std::size_t>(width) * static_cast<std::size_t>(height);
  return {width, height, LargeVector<std::uint32_t>(size, 0xFFFFFFFF)};
}

void expectGivenBack(const Bitmap& bitmap) { EXPECT_TRUE(readPng(writePng(bitmap)) == bitmap); }

TEST(Png, GivesBackEveryPixel) {
  Bitmap bitmap = plain(300, 200);
  for (std::uint32_t i = 0; i < bitmap.pixels.size(); ++i)
    bitmap.pixels[i] = 0xFF000000 | (i * 2654435761U >> 8);
  expectGivenBack(bitmap);
}

TEST(Png, TakesTheSmallestBitmap) { expectGivenBack(plain(1, 1)); }

TEST(Png, TakesNoiseThatDoesNotCompress) {
  std::mt19937 random(5);
  Bitmap bitmap = plain(700, 500);
  for (std::uint32_t& pixel : bitmap.pixels)
    pixel = 0xFF000000 | (static_cast<std::uint32_t>(random()) & 0xFFFFFF);
  expectGivenBack(bitmap);
}

TEST(Png, TakesALargePlainBitmap) {
  const std::string file = writePng(plain(4000, 3000));
  EXPECT_LT(file.size(), 500'000u);
  EXPECT_TRUE(readPng(file) == plain(4000, 3000));
}

TEST(Png, TakesRowsOfAnyLength) {
  for (int width = 2; width < 40; ++width) expectGivenBack(plain(width, 3));
}

TEST(Png, MakesNothingOfNoBitmap) { EXPECT_EQ(writePng(Bitmap()), ""); }

TEST(Png, IsCheckedByAReaderThatKnowsDamage) {
  const std::string file = writePng(plain(30, 20));
  ASSERT_FALSE(readPng(file).pixels.empty());
  for (const std::size_t at : {std::size_t{0}, std::size_t{20}, file.size() / 2}) {
    std::string damaged = file;
    damaged[at] ^= 1;
    EXPECT_TRUE(readPng(damaged).pixels.empty()) << at;
  }
}

}  // namespace
}  // namespace zel::test
