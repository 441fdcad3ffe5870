#include "forms/plot/wheel_notches.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(WheelNotches, CountWholeNotches) {
  WheelNotches wheel;
  EXPECT_EQ(wheel.turn(120), 1);
  EXPECT_EQ(wheel.turn(-120), -1);
  EXPECT_EQ(wheel.turn(360), 3);
  EXPECT_EQ(wheel.turn(0), 0);
}

TEST(WheelNotches, CollectSmallTurns) {
  WheelNotches wheel;
  int notches = 0;
  for (int i = 0; i < 81; ++i) notches += wheel.turn(3);
  EXPECT_EQ(notches, 2);
  for (int i = 0; i < 39; ++i) notches += wheel.turn(3);
  EXPECT_EQ(notches, 3);
}

TEST(WheelNotches, ForgetWhatIsLeftWhenTheWheelTurnsBack) {
  WheelNotches wheel;
  EXPECT_EQ(wheel.turn(100), 0);
  EXPECT_EQ(wheel.turn(-100), 0);
  EXPECT_EQ(wheel.turn(-20), -1);
}

}  // namespace
}  // namespace zel::test
