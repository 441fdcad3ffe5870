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

}  // namespace
}  // namespace zel::test
