#include "app/output/print_preview.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

constexpr PaperSize kPaper{10000, 14000};
constexpr PaperSize kPicture{6000, 4000};

/// A page at a tenth of its size: 1000 x 1400 on the screen, the picture 600 x 400.
class Preview : public ::testing::Test {
 protected:
  Preview() { preview.setScaledPage({1000, 1400}); }

  PrintPreview preview{kPaper, kPicture};
};

TEST(PageOrientationOfAPicture, LiesAsThePictureDoes) {
  EXPECT_EQ(orientationFor({200, 100}), PageOrientation::landscape);
  EXPECT_EQ(orientationFor({100, 200}), PageOrientation::portrait);
  EXPECT_EQ(orientationFor({100, 100}), PageOrientation::portrait);
}

TEST(ScaledPage, KeepsTheProportionsOfThePaperInsideTheRoom) {
  EXPECT_EQ(scaledInto({500, 500}, {10000, 20000}), (PaperSize{250, 500}));
  EXPECT_EQ(scaledInto({500, 500}, {20000, 10000}), (PaperSize{500, 250}));
  EXPECT_EQ(scaledInto({4000, 1000}, {1000, 1000}), (PaperSize{1000, 1000}));
}

TEST_F(Preview, ShowsThePictureAtTheSizeThatItHasOnPaper) {
  EXPECT_EQ(preview.image().width, 600);
  EXPECT_EQ(preview.image().height, 400);
  preview.setScaledPage({500, 1400});
  EXPECT_EQ(preview.image().width, 300);
  EXPECT_EQ(preview.image().height, 400);
}

TEST_F(Preview, BeginsInTheMiddleOfThePage) {
  EXPECT_EQ(preview.image(), (Rectangle{200, 500, 600, 400}));
  EXPECT_EQ(preview.outline(), preview.image());
  EXPECT_EQ(preview.position(), (Point{2000, 5000}));
}

TEST_F(Preview, MovesTheOutlineByTheWayOfTheMouse) {
  preview.press(30, 40);
  preview.dragTo(50, 10);
  EXPECT_EQ(preview.outline(), (Rectangle{220, 470, 600, 400}));
  EXPECT_EQ(preview.image(), (Rectangle{200, 500, 600, 400}));
  preview.dragTo(30, 40);
  EXPECT_EQ(preview.outline(), preview.image());
}

TEST_F(Preview, PutsThePictureWhereTheOutlineIs) {
  preview.press(30, 40);
  preview.dragTo(50, 10);
  preview.release();
  EXPECT_EQ(preview.image(), (Rectangle{220, 470, 600, 400}));
  EXPECT_EQ(preview.position(), (Point{2200, 4700}));
  preview.press(0, 0);
  preview.dragTo(10, 10);
  EXPECT_EQ(preview.outline(), (Rectangle{230, 480, 600, 400}));
}

TEST_F(Preview, TheOutlineReachesEachEdgeAndStaysAtItsLastPlaceBeyond) {
  const struct {
    float x, y;      // the mouse as far as the edge allows
    float dx, dy;    // one step more
    Rectangle last;  // the outline's last place
  } cases[] = {
      {-200, 0, -1, 0, {0, 500, 600, 400}},
      {200, 0, 1, 0, {400, 500, 600, 400}},
      {0, -500, 0, -1, {200, 0, 600, 400}},
      {0, 500, 0, 1, {200, 1000, 600, 400}},
  };
  for (const auto& c : cases) {
    preview.press(0, 0);
    preview.dragTo(c.x, c.y);
    EXPECT_EQ(preview.outline(), c.last);
    preview.dragTo(c.x + c.dx, c.y + c.dy);
    EXPECT_EQ(preview.outline(), c.last);
  }
}

TEST_F(Preview, ADragBeyondOneEdgeDoesNotMoveAlongTheOther) {
  preview.press(0, 0);
  preview.dragTo(-150, 20);
  preview.dragTo(-250, 100);
  EXPECT_EQ(preview.outline(), (Rectangle{50, 520, 600, 400}));
  preview.release();
  EXPECT_EQ(preview.image(), (Rectangle{50, 520, 600, 400}));
}

TEST_F(Preview, APressAndReleaseAloneMovesNothing) {
  preview.press(30, 40);
  preview.release();
  EXPECT_EQ(preview.position(), (Point{2000, 5000}));
}

TEST_F(Preview, StaysAtItsPlaceOnPaperWhenThePageIsScaledAnew) {
  preview.press(0, 0);
  preview.dragTo(-100, 100);
  preview.release();
  preview.setScaledPage({2000, 2800});
  EXPECT_EQ(preview.image(), (Rectangle{200, 1200, 1200, 800}));
  EXPECT_EQ(preview.position(), (Point{1000, 6000}));
}

TEST_F(Preview, ComesToTheSamePlaceOnPaperFromAnyScale) {
  preview.setScaledPage({317, 444});
  preview.press(5, 5);
  preview.dragTo(-20, 17);
  preview.release();
  const Rectangle image = preview.image();
  EXPECT_NEAR(preview.position().x, image.left * kPaper.width / 317, 1e-9);
  EXPECT_NEAR(preview.position().y, image.top * kPaper.height / 444, 1e-9);
}

TEST_F(Preview, MovesInStepsInsideThePage) {
  EXPECT_TRUE(preview.moveBy(-2000, 0));
  EXPECT_EQ(preview.position(), (Point{0, 5000}));
  EXPECT_FALSE(preview.moveBy(-1, 0));
  EXPECT_FALSE(preview.moveBy(0, 5001));
  EXPECT_TRUE(preview.moveBy(0, 5000));
  EXPECT_EQ(preview.position(), (Point{0, 10000}));
  EXPECT_EQ(preview.outline(), preview.image());
}

TEST_F(Preview, TakesAPlaceOnThePageOnly) {
  EXPECT_TRUE(preview.moveTo({4000, 0}));
  EXPECT_FALSE(preview.moveTo({4001, 0}));
  EXPECT_EQ(preview.position(), (Point{4000, 0}));
}

TEST(PreviewOfALargePicture, StandsOutOnBothSidesAndDoesNotMove) {
  PrintPreview preview(kPaper, {12000, 4000});
  preview.setScaledPage({1000, 1400});
  EXPECT_EQ(preview.image(), (Rectangle{-100, 500, 1200, 400}));
  preview.press(0, 0);
  preview.dragTo(0, 10);
  EXPECT_EQ(preview.outline(), preview.image());
  EXPECT_FALSE(preview.moveBy(100, 0));
}

TEST(PreviewOfALargePicture, APictureOfThePagesSizeFillsIt) {
  PrintPreview preview(kPaper, kPaper);
  preview.setScaledPage({317, 444});
  EXPECT_EQ(preview.image(), (Rectangle{0, 0, 317, 444}));
  EXPECT_FALSE(preview.moveBy(1, 0));
}

TEST(FittedPicture, IsAsLargeAsThePageLetsItBetweenItsMargins) {
  PrintPreview preview({11900, 16840}, {18000, 6000});
  EXPECT_TRUE(preview.isLarger());
  preview.setFitted(true);
  EXPECT_NEAR(preview.picture().width, 11900 - 720, 1e-9);
  EXPECT_NEAR(preview.picture().height, 6000 * 11180.0 / 18000, 1e-9);
  EXPECT_NEAR(preview.position().x, 360, 1e-9);
  EXPECT_NEAR(preview.position().y, (16840 - preview.picture().height) / 2, 1e-9);
  EXPECT_EQ(preview.outline(), preview.image());
}

TEST(FittedPicture, CanBeMovedWhereItLeavesRoom) {
  PrintPreview preview({11900, 16840}, {18000, 6000});
  EXPECT_FALSE(preview.moveBy(0, 100));
  preview.setFitted(true);
  EXPECT_TRUE(preview.moveBy(0, 100));
  EXPECT_FALSE(preview.moveBy(361, 0));
}

TEST(FittedPicture, GetsItsOwnSizeBack) {
  PrintPreview preview({11900, 16840}, {18000, 6000});
  preview.setFitted(true);
  preview.setFitted(false);
  EXPECT_EQ(preview.picture(), (PaperSize{18000, 6000}));
  EXPECT_EQ(preview.position(), (Point{-3050, 5420}));
  EXPECT_EQ(preview.scale(), 1);
}

TEST(FittedPicture, StaysAsItIsWhereItIsNotLarger) {
  PrintPreview preview({11900, 16840}, {11900, 16840});
  EXPECT_FALSE(preview.isLarger());
  preview.setFitted(true);
  EXPECT_EQ(preview.scale(), 1);
  EXPECT_EQ(preview.position(), (Point{0, 0}));
}

TEST(FittedPicture, HasAPlaceOnTheSmallestPaper) {
  PrintPreview preview({80, 80}, {6000, 3000});
  preview.setFitted(true);
  EXPECT_EQ(preview.picture(), (PaperSize{60, 30}));
}

}  // namespace
}  // namespace zel::test
