#include "plot/rounded_text.h"

#include <cmath>

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(RoundedText, EndsAtItsPlace) {
  struct Row {
    double number;
    int decade;
    const char* text;
  };
  const Row rows[] = {
      {0.1234, -2, "0,12"}, {1234, 2, "1200"},          {-0.05, -1, "-0,1"}, {0.04, -1, "0"},
      {-0.04, -1, "0"},     {0.1 + 0.2, -10, "0,3"},    {7, -3, "7"},        {2.5, 0, "3"},
      {1e-9, -9, "1E-09"},  {123456, -3, "123456"},     {1e20, 0, "1E+20"},  {1e300, 299, "1E+300"},
      {0.1, -400, "0,1"},   {1.7e308, 308, "1,7E+308"},
  };
  for (const Row& row : rows)
    EXPECT_EQ(roundedText(row.number, row.decade), row.text) << row.number << " " << row.decade;
}

TEST(RoundedText, IsThatOfTheNumberWherePlacesAreTooManyToBeCounted) {
  EXPECT_EQ(roundedText(0.9999999999999994, -15), "0,999999999999999");  // a count of 1E+15
  EXPECT_EQ(roundedText(1000000000000014.5, 0), "1,00000000000001E+15");
  EXPECT_EQ(roundedText(-1000000000000014.5, 0), "-1,00000000000001E+15");
  EXPECT_EQ(roundedText(999999999999998.5, 0), "999999999999999");
}

TEST(RoundedText, KnowsThePlaceOfTheFirstDigit) {
  EXPECT_EQ(placeOf(1), 0);
  EXPECT_EQ(placeOf(9.99), 0);
  EXPECT_EQ(placeOf(0.1), -1);
  EXPECT_EQ(placeOf(1e300), 300);
  EXPECT_EQ(unitOfPlace(-3), 0.001);
  EXPECT_EQ(unitOfPlace(400), HUGE_VAL);
}

}  // namespace
}  // namespace zel::test
