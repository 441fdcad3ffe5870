#include "plot/curves/parameter_range.h"

#include <string>
#include <vector>

#include <gmock/gmock.h>

#include "plot/plot_fixture.h"

namespace zel::test {
namespace {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

constexpr double k2To53 = 9007199254740992;

/// The values of the range, 100 of them at the most.
std::vector<double> values(double inicio, double fin, double variacion) {
  std::vector<double> result;
  forEachParameter({inicio, fin, variacion}, [&](double value) {
    result.push_back(value);
    return result.size() < 100;
  });
  return result;
}

TEST(ParameterRange, GoesFromTheFirstToTheLastValue) {
  EXPECT_THAT(values(-1, 1, 0.5), ElementsAre(-1, -0.5, 0, 0.5, 1));
  EXPECT_THAT(values(-1, 0.9, 0.5), ElementsAre(-1, -0.5, 0, 0.5));
  EXPECT_THAT(values(3, 3, 1), ElementsAre(3));
  EXPECT_THAT(values(3, 2, 1), IsEmpty());
}

TEST(ParameterRange, AddsItsStepAgainAndAgain) {
  // Three times 0,1 is more than 0,3.
  EXPECT_THAT(values(0, 0.3, 0.1), ElementsAre(0, 0.1, 0.2));
}

TEST(ParameterRange, HoldsItsFirstValueOnlyWhenTheStepIsLarger) {
  EXPECT_THAT(values(2, 5, 3.5), ElementsAre(2));
  EXPECT_THAT(values(2, 5, 1e308), ElementsAre(2));
}

TEST(ParameterRange, EndsWhereItsStepNoLongerAdvances) {
  EXPECT_THAT(values(k2To53 - 1, k2To53 + 6, 1), ElementsAre(k2To53 - 1, k2To53));
  EXPECT_THAT(values(1, 2, 1e-300), ElementsAre(1));
  EXPECT_THAT(values(1, 2, -1e-300), ElementsAre(1));
}

TEST(ParameterRange, EndsWhereItsStepLeadsBeyondTheLargestNumber) {
  EXPECT_THAT(values(1e308, 1.7e308, 1e308), ElementsAre(1e308));
  EXPECT_THAT(values(-1e308, 0, -1e308), ElementsAre(-1e308));
}

TEST(ParameterRange, GoesOnWithAStepOf0OrBelowUntilItIsStopped) {
  EXPECT_EQ(values(1, 2, 0), std::vector<double>(100, 1));
  EXPECT_EQ(values(1, 2, -1).back(), -98);
}

TEST(ParameterRange, IsReadFromTheTextsOfAGraph) {
  const auto range = parameterRange(graphOf(
      'Z', {{"parametro", "P"}, {"inicio", "-1,5"}, {"fin", "2.5"}, {"variacion", "1e-3"}}));
  ASSERT_TRUE(range);
  EXPECT_EQ(range->inicio, -1.5);
  EXPECT_EQ(range->fin, 2.5);
  EXPECT_EQ(range->variacion, 1e-3);
}

TEST(ParameterRange, IsNotThereWhenATextIsNoNumber) {
  const std::vector<std::pair<std::string, std::string>> good = {
      {"inicio", "0"}, {"fin", "1"}, {"variacion", "1"}};
  EXPECT_TRUE(parameterRange(graphOf('Z', good)));
  for (std::size_t i = 0; i < good.size(); ++i) {
    for (const char* text : {"", "x", "1 ", "1e999"}) {
      auto bad = good;
      bad[i].second = text;
      EXPECT_FALSE(parameterRange(graphOf('Z', bad))) << bad[i].first << " = '" << text << "'";
    }
  }
  EXPECT_FALSE(parameterRange(graphOf('Z', {})));
  GraphDef empty = graphOf('Z', {});
  empty.parameters = nullptr;
  EXPECT_FALSE(parameterRange(empty));
}

}  // namespace
}  // namespace zel::test
