#include "engine/plan/plan.h"

#include <bit>
#include <cmath>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "engine/plan/block_program.h"
#include "engine/plan/scalar_program.h"
#include "engine/random_codes.h"
#include "numbers/rounding.h"

namespace zel::test {
namespace {

std::unique_ptr<Plan> planOf(std::string_view code) { return Plan::make(code, ParseCache()); }

std::size_t operationsOf(std::string_view code) { return planOf(code)->operations().size(); }

TEST(PlanOfACode, HasNoOperationForParenthesesAndNames) {
  EXPECT_EQ(operationsOf("x"), 0u);
  EXPECT_EQ(operationsOf("((x))"), 0u);
  EXPECT_EQ(operationsOf("((x)+(t))"), 1u);
}

TEST(PlanOfACode, ComputesConstantsBeforehand) {
  EXPECT_EQ(operationsOf("2*3+4"), 0u);
  EXPECT_EQ(operationsOf("2*3*x"), 1u);
  EXPECT_EQ(operationsOf("7@(2)*x"), 1u);
  EXPECT_EQ(planOf("2*3+4")->evaluateStrictly({}).value, 10);
}

TEST(PlanOfACode, KeepsAConstantThatFailsForTheEvaluation) {
  EXPECT_EQ(operationsOf("1/0"), 1u);
  const auto outcome = planOf("x+1/0")->evaluateStrictly({});
  EXPECT_EQ(outcome.failure, Failure::zero_divisor);
  EXPECT_EQ(outcome.position, 7u);
}

TEST(PlanOfACode, ComputesOnceWhatStandsTwice) {
  EXPECT_EQ(operationsOf("(x+1)*(x+1)"), 2u);
  EXPECT_EQ(operationsOf("(x+1)*(1+x)"), 3u);
}

TEST(PlanOfACode, KeepsTheOrderOfTheReference) {
  const auto plan = planOf("4@x+7@x");
  EXPECT_EQ(plan->evaluateStrictly({.x = -1}).failure, Failure::logarithm_of_negative);
  EXPECT_EQ(plan->evaluateStrictly({.x = -1}).position, 7u);
}

TEST(PlanOfACode, IsNotThereWhereTheGrammarRejectsAPart) {
  for (const std::string_view code : {"", "x+", "x)", "2*-x", "(5)", "2x", "x+(y)"})
    EXPECT_EQ(planOf(code), nullptr) << code;
}

TEST(PlanOfACode, RecordsTheSlotsOfAnEvaluation) {
  EXPECT_EQ(*planOf("(x+1)*(x)")->record(),
            (ParseRecord{"(x+1)*(x)", "x+1", "x", "*", "x", "1", "+"}));
}

TEST(PlanOfACode, OfAnyLengthStopsRecordingAtTheLastSlot) {
  std::string code = "x";
  for (int i = 0; i < 500; ++i) code += "+x*" + std::to_string(i);
  const auto plan = planOf(code);
  EXPECT_EQ(plan->record()->size(), ParseCache::kSlots);
  EXPECT_EQ(plan->evaluateStrictly({.x = 2}).value, 2 + 2 * 499 * 500 / 2);
}

TEST(PlanOfACode, LeavesANumberThatCannotBeReadToTheStrictEvaluation) {
  const auto plan = planOf("1e999");
  EXPECT_FALSE(plan->isPlain());
  EXPECT_TRUE(plan->evaluateStrictly({}).at_the_end);
  EXPECT_TRUE(std::isnan(ScalarProgram(*plan).evaluate(1, 0, 0)));
}

class Programs : public ::testing::TestWithParam<InstructionSet> {
 protected:
  void SetUp() override {
    if (GetParam() > bestInstructionSet()) GTEST_SKIP() << "not on this machine";
  }
};

/// What the programs say of an outcome.
double valueOf(const PlanOutcome& outcome) {
  return outcome.failure == Failure::none ? outcome.value : std::nan("");
}

void expectSame(double value, double expected, const std::string& where) {
  if (std::isnan(expected)) {
    ASSERT_TRUE(std::isnan(value)) << where << ": " << value;
  } else {
    ASSERT_EQ(std::bit_cast<std::uint64_t>(value), std::bit_cast<std::uint64_t>(expected))
        << where << ": " << value << " and not " << expected;
  }
}

TEST_P(Programs, GiveWhatTheStrictEvaluationGives) {
  RandomCodes codes(7);
  for (int i = 0; i < 3000 && !HasFatalFailure(); ++i) {
    const std::string code = codes.code();
    const auto plan = planOf(code);
    if (!plan || !plan->isPlain()) continue;
    ScalarProgram scalar(*plan, GetParam());
    BlockProgram blocks(*plan, GetParam());
    std::vector<double> xs(std::min<std::size_t>(blocks.capacity(), 50));
    const double step = std::ldexp(1, -static_cast<int>(codes.below(12)));
    for (std::size_t n = 0; n < xs.size(); ++n)
      xs[n] = codes.oneIn(10) ? codes.number() : static_cast<double>(n) * step - 3;
    std::vector<double> values(xs.size());
    blocks.setNames(0.5, -2);
    const auto report = blocks.run(xs, false, values);
    for (std::size_t n = 0; n < xs.size() && !HasFatalFailure(); ++n) {
      const double x = std::isfinite(xs[n]) ? roundTo15Digits(xs[n]) : HUGE_VAL;
      const PlanOutcome outcome = plan->evaluateStrictly({x, 0.5, -2});
      const std::string where = code + " at " + std::to_string(xs[n]);
      if (std::isfinite(x)) expectSame(scalar.evaluate(xs[n], 0.5, -2), valueOf(outcome), where);
      if (std::isfinite(x)) expectSame(values[n], valueOf(outcome), where);
      if (outcome.failure == Failure::fault && std::isfinite(x)) {
        ASSERT_TRUE(report.has_fault) << where;
      }
    }
  }
}

INSTANTIATE_TEST_SUITE_P(InstructionSets, Programs,
                         ::testing::Values(InstructionSet::baseline, InstructionSet::v3,
                                           InstructionSet::v4),
                         [](const auto& tested) {
                           switch (tested.param) {
                             case InstructionSet::v4: return "v4";
                             case InstructionSet::v3: return "v3";
                             default: return "baseline";
                           }
                         });

}  // namespace
}  // namespace zel::test
