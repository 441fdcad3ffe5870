#include "pictures/coordinate_text.h"

#include <limits>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(CoordinateText, HasNoMoreThanTheNumberNeeds) {
  EXPECT_EQ(coordinateText(0), "0");
  EXPECT_EQ(coordinateText(-0.0), "0");
  EXPECT_EQ(coordinateText(-450), "-450");
  EXPECT_EQ(coordinateText(22.5), "22.5");
  EXPECT_EQ(coordinateText(999999999999999), "999999999999999");
  EXPECT_EQ(coordinateText(1e15), "1e+15");
  EXPECT_EQ(coordinateText(-1.7976931348623157e308), "-1.7976931348623157e+308");
}

TEST(CoordinateText, TakesWhatIsNearerThanAMillionthForZero) {
  EXPECT_EQ(coordinateText(-1.2345678901234567e-6), "-0.0000012345678901234567");
  for (const double least :
       {9.9e-7, -1.2345678901234567e-13, 8e-302, std::numeric_limits<double>::denorm_min()})
    EXPECT_EQ(coordinateText(least), "0") << least;
}

}  // namespace
}  // namespace zel::test
