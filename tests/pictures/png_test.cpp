#include "pictures/png.h"

#include <memory>
#include <random>
#include <vector>

#include <gtest/gtest.h>

#include "pictures/raster_picture.h"
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

/// Axes and lines, as in a plot window.
Bitmap drawn() {
  RasterPicture picture(800, 600);
  picture.beginAxes();
  picture.line({0, 4500}, {12000, 4500});
  picture.line({6000, 0}, {6000, 9000});
  picture.beginGraph('a', 0xFF0000);
  for (int i = 0; i < 9; ++i) {
    picture.startPiece({0, 1000.0 * i});
    picture.extendPiece({12000, 8500.0 - 900 * i});
  }
  return picture.finish();
}

// Each time the compression lies somewhere else in memory.
TEST(Png, HasTheSameBytesWhereverItIsCompressed) {
  const Bitmap bitmap = drawn();
  const std::string first = writePng(bitmap);
  std::vector<std::unique_ptr<char[]>> between;
  for (int i = 0; i < 2000; ++i) {
    between.push_back(std::make_unique_for_overwrite<char[]>(100'000));
    ASSERT_TRUE(writePng(bitmap) == first) << i;
  }
}

constexpr std::size_t kPart = std::size_t{1} << 17;  // bytes of rows, at the most

TEST(Png, AsksBehindEachPartWhetherItGoesOnAndHasTheSameBytes) {
  const Bitmap bitmap = drawn();
  std::size_t asked = 0;
  const std::string file = writePng(bitmap, [&] {
    ++asked;
    return true;
  });
  EXPECT_GE(asked, 3 * bitmap.pixels.size() / kPart);
  EXPECT_TRUE(file == writePng(bitmap));
}

TEST(Png, IsNotMadeWhereItIsGivenUp) {
  const Bitmap bitmap = plain(800, 600);
  for (std::size_t last = 1; last <= 3 * bitmap.pixels.size() / kPart; ++last) {
    std::size_t asked = 0;
    EXPECT_EQ(writePng(bitmap, [&] { return ++asked < last; }), "");
    EXPECT_EQ(asked, last) << "it is given up at once";
  }
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
