#include "engine/reference/parse_cache.h"

#include <string>
#include <vector>

#include "engine/engine_fixture.h"

namespace zel::test {
namespace {

class Cache : public EngineTest {
 protected:
  /// The first slots, separated by blanks, "_" for an empty one; then the position and the code.
  std::string state(std::size_t slots) const {
    std::string text;
    const ParseCache& cache = engine.parseCache();
    for (std::size_t i = 1; i <= slots; ++i)
      text += (cache.slot(i).empty() ? "_" : std::string(cache.slot(i))) + " ";
    return text + "at " + std::to_string(cache.position()) + " for '" + std::string(cache.code()) +
           "'";
  }

  std::string sum(std::size_t terms) const {
    std::string code = "x";
    for (std::size_t i = 1; i < terms; ++i) code += "+x";
    return code;
  }
};

TEST_F(Cache, RecordsTheFirstEvaluationSlotBySlot) {
  EXPECT_EQ(evaluateCode("(x+1)*(x)", 2), "= 6");
  // The text begins and ends with parentheses: a strip, although nothing comes off.
  EXPECT_EQ(state(8), "(x+1)*(x) x+1 x * x 1 + _ at 1 for '(x+1)*(x)'");
}

TEST_F(Cache, GivesTheSameValueFromItsRecord) {
  EXPECT_EQ(evaluateCode("2*(x+1)^2-7@x", 4), "= 48");
  const std::string recorded = state(20);
  EXPECT_EQ(evaluateCode("2*(x+1)^2-7@x", 9), "= 197");
  EXPECT_EQ(state(20), recorded);
}

TEST_F(Cache, IsInvalidatedAndRewoundByAnError) {
  EXPECT_EQ(evaluateCode("4@(x)", -1).substr(0, 3), "! E");
  EXPECT_EQ(state(4), "4 x @ _ at 1 for ''");
  EXPECT_EQ(evaluateCode("4@(x)", 1), "= 0");
  EXPECT_EQ(state(4), "4 x @ _ at 1 for '4@(x)'");
}

TEST_F(Cache, StaysWhereAFaultFoundItWhenValid) {
  EXPECT_EQ(evaluateCode("9@(x)", 2), "= 0,5");
  EXPECT_EQ(evaluateCode("9@(x)", 0), kFault);
  EXPECT_EQ(state(4), "9 x @ _ at 4 for '9@(x)'");
  // The next evaluation of the same code reads on from there and finds empty slots.
  EXPECT_EQ(evaluateCode("9@(x)", 2), kUserFunction);
  EXPECT_EQ(state(4), "9 x @ _ at 1 for ''");
  EXPECT_EQ(evaluateCode("9@(x)", 2), "= 0,5");
  EXPECT_EQ(state(4), "9 x @ _ at 1 for '9@(x)'");
}

TEST_F(Cache, ReadsOnBeyondItsOwnRecordInWhatAnotherCodeLeftThere) {
  EXPECT_EQ(evaluateCode("x+5*2", 1), "= 11");
  EXPECT_EQ(evaluateCode("9@(x)", 2), "= 0,5");
  EXPECT_EQ(state(7), "9 x @ 5 2 * _ at 1 for '9@(x)'");
  EXPECT_EQ(evaluateCode("9@(x)", 0), kFault);
  EXPECT_EQ(evaluateCode("9@(x)", 2), "= 10");
  EXPECT_EQ(evaluateCode("9@(x)", 2), "= 0,5");
}

TEST_F(Cache, RecordsFromTheFirstSlotAfterAFaultBeforeItIsValid) {
  EXPECT_EQ(evaluateCode("9@(x)+1", 0), kFault);
  EXPECT_EQ(state(7), "9@(x) 1 + 9 x @ _ at 7 for ''");
  EXPECT_EQ(evaluateCode("9@(x)+1", 0), kFault);
  EXPECT_EQ(state(7), "9@(x) 1 + 9 x @ _ at 7 for ''");
  EXPECT_EQ(evaluateCode("9@(x)+1", 2), "= 1,5");
  EXPECT_EQ(state(7), "9@(x) 1 + 9 x @ _ at 1 for '9@(x)+1'");
}

TEST_F(Cache, RecordsFromTheFirstSlotWhenAnotherCodeComesAfterAFault) {
  for (const bool is_valid : {false, true}) {
    if (is_valid) {
      EXPECT_EQ(evaluateCode("9@(x)", 2), "= 0,5");
    }
    EXPECT_EQ(evaluateCode("9@(x)", 0), kFault);
    EXPECT_EQ(engine.parseCache().position(), 4u);
    EXPECT_EQ(evaluateCode("x+1", 2), "= 3");
    EXPECT_EQ(state(4), "x 1 + _ at 1 for 'x+1'");
    EXPECT_EQ(evaluateCode("x+1", 3), "= 4");
  }
}

TEST_F(Cache, GoesThroughFaultsErrorsAndOtherCodesWithItsSlotsIntact) {
  // Worked out by hand: a fault with the cache valid, another code, a fault with the cache not yet
  // valid, another code, and the same code again.
  EXPECT_EQ(evaluateCode("1+9@(x)", 1), "= 2");
  EXPECT_EQ(state(9), "1 9@(x) + 9 x @ _ _ _ at 1 for '1+9@(x)'");
  EXPECT_EQ(evaluateCode("1+9@(x)", 0), kFault);
  EXPECT_EQ(state(9), "1 9@(x) + 9 x @ _ _ _ at 7 for '1+9@(x)'");
  EXPECT_EQ(evaluateCode("2-9@(x)", 0), kFault);
  EXPECT_EQ(state(9), "2 9@(x) - 9 x @ _ _ _ at 7 for ''");
  EXPECT_EQ(evaluateCode("x*5", 3), "= 15");
  EXPECT_EQ(state(9), "x 5 * 9 x @ _ _ _ at 1 for 'x*5'");
  EXPECT_EQ(evaluateCode("x*5", 4), "= 20");
  EXPECT_EQ(evaluateCode("x*5", 1e308), kFault);
  EXPECT_EQ(state(9), "x 5 * 9 x @ _ _ _ at 4 for 'x*5'");
  // It reads on in what the code before left: 9@x.
  EXPECT_EQ(evaluateCode("x*5", 4), "= 0,25");
  EXPECT_EQ(state(9), "x 5 * 9 x @ _ _ _ at 1 for 'x*5'");
  // An error of another code, whose record overwrites the slots from 1 on.
  EXPECT_EQ(evaluateCode("4@x", -1).substr(0, 3), "! E");
  EXPECT_EQ(state(6), "4 x @ 9 x @ at 1 for ''");
}

TEST_F(Cache, StaysBeyondItsLastSlotAfterAFaultThere) {
  const std::string code = sum(41) + "+9@x";
  EXPECT_EQ(evaluateCode(code, 1), "= 42");
  EXPECT_EQ(evaluateCode(code, 0), kFault);
  EXPECT_EQ(engine.parseCache().position(), 121u);
  EXPECT_EQ(evaluateCode(code, 0), kFault);
  EXPECT_EQ(engine.parseCache().position(), 121u);
  // Nothing is left to be read on: it is taken apart as if there was no cache.
  EXPECT_EQ(evaluateCode(code, 2), "= 82,5");
  EXPECT_EQ(engine.parseCache().position(), 1u);
}

TEST_F(Cache, ReplaysASignWithTheZeroThatWasPutBeforeIt) {
  EXPECT_EQ(evaluateCode("-x", 3), "= -3");
  EXPECT_EQ(state(3), "0 x - at 1 for '-x'");
  EXPECT_EQ(evaluateCode("-x", 4), "= -4");
}

TEST_F(Cache, RecordsAFailedSplitToo) {
  EXPECT_EQ(evaluateCode("x+2*", 1), "! Error: No se entiende el elemento: '2*'");
  EXPECT_EQ(state(7), "x 2* + 2 _ * _ at 1 for ''");
}

TEST_F(Cache, IsPassedBeyondItsLastSlot) {
  for (const std::size_t terms : {40u, 41u, 42u, 60u}) {
    const std::string code = sum(terms);
    EXPECT_EQ(evaluateCode(code, 2), "= " + std::to_string(2 * terms));
    EXPECT_EQ(evaluateCode(code, 3), "= " + std::to_string(3 * terms));
    EXPECT_EQ(engine.parseCache().slot(117), "+") << terms;
    EXPECT_EQ(engine.parseCache().position(), 1u);
  }
  EXPECT_EQ(engine.parseCache().slot(120), "+");
}

TEST_F(Cache, GivesAStripTheLastSlotsThatASplitCannotHave) {
  // One strip and 39 splits end at position 119, where a split needs 118 at most.
  std::string code = "(x)";
  for (int i = 0; i < 39; ++i) code += "+(x)";
  code = "(" + code + "+((x)*(x)))";
  EXPECT_EQ(evaluateCode(code, 2), "= 84");
  EXPECT_EQ(evaluateCode(code, 3), "= 129");
}

TEST_F(Cache, IsKeyedByTheCodeAsGivenAndNotByItsExpansion) {
  graphCode('f') = "x+1";
  EXPECT_EQ(evaluateCode("f(x)*2", 3), "= 5");
  EXPECT_EQ(std::string(engine.parseCache().code()), "f(x)*2");
}

TEST_F(Cache, NeverBecomesValidForAnEmptyCode) {
  EXPECT_EQ(evaluateCode("", 1), kNoOperator);
  EXPECT_EQ(state(3), "_ _ _ at 1 for ''");
}

}  // namespace
}  // namespace zel::test
