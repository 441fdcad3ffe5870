#include "pictures/colour.h"

#include <limits>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(Colour, HasRedInItsLowByte) {
  EXPECT_EQ(colourText(0x000000), "#000000");
  EXPECT_EQ(colourText(0x0000FF), "#ff0000");
  EXPECT_EQ(colourText(0x00FF00), "#00ff00");
  EXPECT_EQ(colourText(0xFF0000), "#0000ff");
  EXPECT_EQ(colourText(0xABCDEF), "#efcdab");
  EXPECT_EQ(colourText(0x010203), "#030201");
}

TEST(Colour, DoesNotMindItsHighestByte) {
  EXPECT_EQ(colourText(0x7F0000FF), "#ff0000");
  EXPECT_EQ(colourText(-1), "#ffffff");
  EXPECT_EQ(colourText(std::numeric_limits<std::int32_t>::min()), "#000000");
}

TEST(PerceivedDistance, IsOneBetweenBlackAndWhiteAndNoneBetweenAlike) {
  EXPECT_NEAR(perceivedDistance(0x000000, 0xFFFFFF), 1, 1e-6);
  EXPECT_EQ(perceivedDistance(0x336699, 0x336699), 0);
  EXPECT_EQ(perceivedDistance(0x336699, 0x7F336699), 0) << "the highest byte does not count";
}

TEST(PerceivedDistance, IsThatOfTheOkLabSpace) {
  // Red is 0.62796, 0.22486, 0.12585 there, blue 0.45201, -0.03246, -0.31153.
  EXPECT_NEAR(perceivedDistance(0x0000FF, 0x000000), 0.67876, 1e-4);
  EXPECT_NEAR(perceivedDistance(0x0000FF, 0xFF0000), 0.53709, 1e-4);
}

TEST(PerceivedDistance, IsSmallWhereEyesSeeLittle) {
  EXPECT_LT(perceivedDistance(0xB27200, 0xBB7700), 0.03) << "two blues";
  EXPECT_GT(perceivedDistance(0xBB7700, 0x225511), 0.2) << "blue and green";
}

}  // namespace
}  // namespace zel::test
