#include "engine/plan/plan.h"

#include <array>
#include <bit>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "engine/plan/block_program.h"
#include "engine/plan/plan_cache.h"
#include "engine/plan/scalar_program.h"
#include "engine/random_codes.h"
#include "numbers/rounding.h"
#include "support/language_guard.h"

namespace zel::test {
namespace {

Plan planOf(std::string_view code) { return Plan::make(code); }

std::size_t operationsOf(std::string_view code) { return planOf(code).operations().size(); }

TEST(PlanOfACode, HasNoOperationForParenthesesAndNames) {
  EXPECT_EQ(operationsOf("x"), 0u);
  EXPECT_EQ(operationsOf("((x))"), 0u);
  EXPECT_EQ(operationsOf("((x)+(t))"), 1u);
}

TEST(PlanOfACode, ComputesConstantsBeforehand) {
  EXPECT_EQ(operationsOf("2*3+4"), 0u);
  EXPECT_EQ(operationsOf("2*3*x"), 1u);
  EXPECT_EQ(operationsOf("7@(2)*x"), 1u);
  EXPECT_EQ(planOf("2*3+4").evaluateStrictly({}).value, 10);
}

TEST(PlanOfACode, KeepsAConstantThatFailsForTheEvaluation) {
  EXPECT_EQ(operationsOf("1/0"), 1u);
  const auto outcome = planOf("x+1/0").evaluateStrictly({});
  EXPECT_EQ(outcome.failure, Failure::zero_divisor);
  EXPECT_EQ(outcome.position, 7u);
}

TEST(PlanOfACode, ComputesOnceWhatStandsTwice) {
  EXPECT_EQ(operationsOf("(x+1)*(x+1)"), 2u);
  EXPECT_EQ(operationsOf("(x+1)*(1+x)"), 3u);
}

TEST(PlanOfACode, KeepsTheOrderOfTheReference) {
  const auto plan = planOf("4@x+7@x");
  EXPECT_EQ(plan.evaluateStrictly({.x = -1}).failure, Failure::logarithm_of_negative);
  EXPECT_EQ(plan.evaluateStrictly({.x = -1}).position, 7u);
}

TEST(PlanOfACode, EndsWhereTheGrammarRejectsAPart) {
  LanguageGuard language("ES");
  const std::vector<std::array<std::string_view, 2>> messages = {
      {"", "No se encuentra el operador."},    {"x+", "Error: No se entiende el elemento: 'x+'"},
      {"x)", "No se encuentra el operador."},  {"2*-x", "Error: No se entiende el elemento: '2*'"},
      {"(5)", "No se encuentra el operador."}, {"x+(y)", "No se encuentra el operador."},
  };
  for (const auto& [code, message] : messages) {
    const Plan plan = planOf(code);
    EXPECT_FALSE(plan.isPlain()) << code;
    EXPECT_EQ(plan.message(plan.evaluateStrictly({})), message) << code;
  }
}

TEST(PlanOfACode, FailsBeforeARejectedPartWhereTheReferenceDoes) {
  LanguageGuard language("EN");
  const Plan plan = planOf("9@x+4@x+y");
  EXPECT_EQ(plan.evaluateStrictly({.x = 0}).kind, Outcome::Kind::fault);
  EXPECT_EQ(plan.evaluateStrictly({.x = 0}).position, 10u);
  EXPECT_EQ(
      plan.message(plan.evaluateStrictly({.x = -1})),
      "Error in function 'ln'\r\nDetail: Logarithmand must be numeric and greater than zero.");
  EXPECT_EQ(plan.message(plan.evaluateStrictly({.x = 1})), "Cannot find operator.");
}

TEST(PlanOfACode, RecordsTheSlotsOfAnEvaluation) {
  EXPECT_EQ(planOf("(x+1)*(x)").record(),
            (ParseRecord{"(x+1)*(x)", "x+1", "x", "*", "x", "1", "+"}));
}

TEST(PlanOfACode, OfAnyLengthStopsRecordingAtTheLastSlot) {
  std::string code = "x";
  for (int i = 0; i < 500; ++i) code += "+x*" + std::to_string(i);
  const auto plan = planOf(code);
  EXPECT_EQ(plan.record().size(), ParseCache::kSlots);
  EXPECT_EQ(plan.evaluateStrictly({.x = 2}).value, 2 + 2 * 499 * 500 / 2);
}

TEST(PlanOfACode, LeavesANumberThatCannotBeReadToTheStrictEvaluation) {
  const auto plan = planOf("1e999");
  EXPECT_FALSE(plan.isPlain());
  EXPECT_TRUE(plan.evaluateStrictly({}).at_the_end);
  EXPECT_TRUE(std::isnan(ScalarProgram(plan).evaluate(1, 0, 0)));
}

TEST(BlockProgram, TakesFewerValuesAtOnceOfACodeWithManySteps) {
  std::string many_steps = "4@x";
  for (int i = 1; i < 200; ++i) many_steps += "+4@(x+" + std::to_string(i) + ")";
  const std::size_t of_few = BlockProgram(planOf("x+1")).capacity();
  const std::size_t of_many = BlockProgram(planOf(many_steps)).capacity();
  EXPECT_GE(of_many, BlockProgram::kChunk);
  EXPECT_LT(of_many, of_few) << "all its values stay in the cache of a processor";
}

TEST(PlanCache, KeepsThePlansOfAllGraphs) {
  PlanCache plans;
  std::vector<std::string> codes;
  std::vector<std::shared_ptr<PreparedPlan>> made;
  for (int graph = 0; graph < 26; ++graph) codes.push_back("x+" + std::to_string(graph));
  for (const std::string& code : codes) made.push_back(plans.find(code));
  for (std::size_t i = 0; i < codes.size(); ++i) EXPECT_EQ(plans.find(codes[i]), made[i]);
}

TEST(PlanCache, DropsPlansThatAreNotUsed) {
  PlanCache plans;
  const std::weak_ptr<PreparedPlan> first = plans.find("x");
  for (int i = 0; i < 1'000; ++i) plans.find("x+" + std::to_string(i));
  EXPECT_TRUE(first.expired());
}

class Programs : public ::testing::TestWithParam<InstructionSet> {
 protected:
  void SetUp() override {
    if (GetParam() > bestInstructionSet()) GTEST_SKIP() << "not on this machine";
  }
};

/// What the programs say of an outcome.
double valueOf(const PlanOutcome& outcome) {
  return outcome.kind == Outcome::Kind::value ? outcome.value : std::nan("");
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
    if (!plan.isPlain()) continue;
    ScalarProgram scalar(plan, GetParam());
    BlockProgram blocks(plan, GetParam());
    std::vector<double> xs(std::min<std::size_t>(blocks.capacity(), 50));
    const double step = std::ldexp(1, -static_cast<int>(codes.below(12)));
    for (std::size_t n = 0; n < xs.size(); ++n)
      xs[n] = codes.oneIn(10) ? codes.number() : static_cast<double>(n) * step - 3;
    std::vector<double> values(xs.size());
    blocks.setNames(0.5, -2);
    const auto report = blocks.run(xs, false, values);
    for (std::size_t n = 0; n < xs.size() && !HasFatalFailure(); ++n) {
      const double x = std::isfinite(xs[n]) ? roundTo15Digits(xs[n]) : HUGE_VAL;
      const PlanOutcome outcome = plan.evaluateStrictly({x, 0.5, -2});
      const std::string where = code + " at " + std::to_string(xs[n]);
      if (std::isfinite(x)) expectSame(scalar.evaluate(xs[n], 0.5, -2), valueOf(outcome), where);
      if (std::isfinite(x)) expectSame(values[n], valueOf(outcome), where);
      if (outcome.kind == Outcome::Kind::fault && std::isfinite(x)) {
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
