// What the pixels of the plot need, in which others than those that are seen have no part for long.
#include <gtest/gtest.h>

#include "forms/plot/picture_box.h"
#include "support/heap_posix.h"
#include "support/qt_application.h"

namespace zel::test {
namespace {

class PixelsOfTheBox : public ::testing::Test {
 protected:
  static constexpr std::size_t kMegabyte = std::size_t{1} << 20;

  void SetUp() override {
#ifdef __SANITIZE_ADDRESS__
    GTEST_SKIP() << "the address sanitizer keeps what was freed";
#endif
    draw(100, 80);
  }

  void draw(int width, int height) {
    box.resize(width, height);
    box.clear();
    box.beginGraph('a', 0);
    box.startPiece({0, 0});
    box.extendPiece({1500, 1200});
    box.showDrawn();
  }

  QApplication& app = application();
  PictureBox box;
};

TEST_F(PixelsOfTheBox, AreGivenBackOnceASmallerPictureIsShown) {
  const std::size_t before = heapInUse();
  draw(3000, 2000);
  draw(3000, 2000);
  EXPECT_GT(heapInUse(), before + 40 * kMegabyte);
  draw(100, 80);
  EXPECT_LT(heapInUse(), before + kMegabyte);
}

}  // namespace
}  // namespace zel::test
