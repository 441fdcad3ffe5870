#include "engine/grammar.h"

#include <string>

#include <gtest/gtest.h>

namespace zel {
namespace {

TEST(Balance, CountsParenthesesUpToTheFirstCloserTooManyOrEmptyPair) {
  struct Row {
    std::string_view text;
    bool balanced;
  };
  const Row rows[] = {
      {"", true},       {"x+1", true},    {"(x)", true},      {"(x", false},    {"x)", false},
      {"a)+(b", false}, {"(a)(b)", true}, {"()", true},       {"()))((", true}, {"(()", false},
      {"x+()", true},   {"((x)", false},  {"(x)+()+(", true},
  };
  for (const Row& row : rows) EXPECT_EQ(IsBalanced(row.text), row.balanced) << row.text;
}

TEST(Strip, TakesOuterParenthesesOffAsLongAsTheInnerTextStaysBalanced) {
  struct Row {
    std::string_view text, stripped;
  };
  const Row rows[] = {
      {"((x+1))", "x+1"}, {"((x))", "x"}, {"(x)+(1)", "(x)+(1)"},
      {"x", "x"},         {"(x", "(x"},   {"x)", "x)"},
      {"()", ""},         {"(())", ""},   {"", ""},
      {"(", "("},         {"(5)", "5"},   {"(()x(())", "()x(()"},
  };
  for (const Row& row : rows) EXPECT_EQ(StripOuterParentheses(row.text), row.stripped) << row.text;
}

std::string describe(std::string_view text) {
  const Split split = SplitAtMainOperator(text);
  if (split.failure == SplitFailure::no_operator) return "no operator";
  const std::string parts =
      std::string(split.left) + "|" + std::string(split.op) + "|" + std::string(split.right);
  return split.failure == SplitFailure::none ? parts : "missing " + parts;
}

TEST(Split, IsAtTheRightmostOfTheWeakestOperatorsOutsideParentheses) {
  struct Row {
    std::string_view text, parts;
  };
  const Row rows[] = {
      {"a-b+c", "a-b|+|c"},     {"a+b-c", "a|+|b-c"}, {"a-b-c", "a-b|-|c"},
      {"a/b*c", "a|/|b*c"},     {"a*b/c", "a*b|/|c"}, {"a/b/c", "a/b|/|c"},
      {"a\\b/c", "a|\\|b/c"},   {"2^3^2", "2^3|^|2"}, {"10@x^2", "10|@|x^2"},
      {"3@x#0", "3|@|x#0"},     {"2^x#0", "2|^|x#0"}, {"2*(a+b)", "2|*|a+b"},
      {"((a))*((b))", "a|*|b"}, {"10@(x)", "10|@|x"}, {"x)+1", "x)|+|1"},
      {"(x)+(1)", "x|+|1"},
  };
  for (const Row& row : rows) EXPECT_EQ(describe(row.text), row.parts) << row.text;
}

TEST(Split, GivesASignWithoutALeftOperandAZero) {
  EXPECT_EQ(describe("-x^2"), "0|-|x^2");
  EXPECT_EQ(describe("+x"), "0|+|x");
}

TEST(Split, TellsAMissingOperand) {
  EXPECT_EQ(describe("2*"), "missing 2|*|");
  EXPECT_EQ(describe("*2"), "missing |*|2");
  EXPECT_EQ(describe("-"), "missing |-|");
  EXPECT_EQ(describe("2*()"), "missing 2|*|");
}

TEST(Split, FindsNoOperatorInsideParenthesesOrInATextWithoutAny) {
  for (const std::string_view text : {"", "x)", "(x", "abc", "(x+1)", "2(x+1)"})
    EXPECT_EQ(describe(text), "no operator") << text;
}

}  // namespace
}  // namespace zel
