#include "pictures/line_clip.h"

#include <gtest/gtest.h>

#include "pictures/picture.h"

namespace zel::test {
namespace {

constexpr ClipBox kBox = {-1, -1, 10, 10};

TEST(ClippedLine, EndsAtTheEdgesThatItCrosses) {
  Point from = {-5, 5};
  Point to = {25, 5};
  EXPECT_TRUE(clipLine(from, to, kBox));
  EXPECT_EQ(from, (Point{-1, 5}));
  EXPECT_EQ(to, (Point{10, 5}));
}

TEST(ClippedLine, IsGoneWhereItPassesTheBox) {
  Point from = {-5, 0};
  Point to = {5, 100};
  EXPECT_FALSE(clipLine(from, to, kBox));
}

TEST(ClippedLine, EndsInTheBoxEvenWhereTheShareOfTheLineIsRoundedToAllOfIt) {
  for (const double far : {1e300, -1e300}) {
    Point from = {far, 0};
    Point to = {far * 1e-270, 2};
    if (!clipLine(from, to, kBox)) continue;
    EXPECT_TRUE(kBox.holds(from)) << far;
    EXPECT_TRUE(kBox.holds(to)) << far;
  }
  Point from = {0, 5};
  Point to = {1e300, 5};
  ASSERT_TRUE(clipLine(from, to, kBox));
  EXPECT_EQ(to, (Point{10, 5}));
}

}  // namespace
}  // namespace zel::test
