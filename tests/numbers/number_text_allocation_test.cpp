#include <cfloat>
#include <string>

#include <gtest/gtest.h>

#include "counting_new.h"
#include "numbers/number_text.h"

namespace zel::test {
namespace {

TEST(NumberTextAllocation, IsSeenByTheCounter) {
  const std::size_t before = allocationCount();
  const std::string text(1000, 'x');
  EXPECT_EQ(allocationCount(), before + 1) << text.size();
}

TEST(NumberTextAllocation, IsNeverNeededToWriteAndReadANumber) {
  const std::size_t before = allocationCount();
  double sum = 0;
  for (const double value : {0.0, 1.5, -2.0 / 3, 1e15, 1.6e-15, DBL_MAX / 2, DBL_MIN, -1e-310}) {
    const NumberText text = writeNumber(value);
    if (isNumeric(text)) sum += *readNumber(text);
  }
  const std::size_t after = allocationCount();
  EXPECT_EQ(after, before);
  EXPECT_GT(sum, 0);
}

}  // namespace
}  // namespace zel::test
