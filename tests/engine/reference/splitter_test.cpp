#include "engine/reference/splitter.h"

#include <random>
#include <string>

#include <gtest/gtest.h>

#include "engine/random_codes.h"
#include "numbers/number_text.h"

namespace zel::test {
namespace {

bool same(const Split& split, const Split& expected) {
  return split.left == expected.left && split.right == expected.right && split.op == expected.op &&
         split.failure == expected.failure;
}

/// All parts of a text, or so many of them.
void compareParts(const std::string& text, std::size_t steps, std::mt19937_64& random) {
  Splitter splitter;
  for (std::size_t i = 0; i < steps; ++i) {
    const std::size_t begin = random() % (text.size() + 1);
    const std::string_view part =
        std::string_view(text).substr(begin, random() % (text.size() - begin + 1));
    ASSERT_TRUE(same(splitter.split(part), SplitAtMainOperator(part))) << part;
    ASSERT_EQ(splitter.strip(part), StripOuterParentheses(part)) << part;
    ASSERT_EQ(splitter.isNumber(part), isNumeric(part)) << part;
  }
}

TEST(Splitters, TakeAnyPartOfALongTextApartAsTheGrammarDoes) {
  std::mt19937_64 random(5);
  for (const std::string_view letters : {"x1()", "1234567890+", "12345678901234567890e-,",
                                         "((((x))))+-*", "(()x)(1)+-", "x+-\\/*@^#()", "()"}) {
    for (int i = 0; i < 200 && !::testing::Test::HasFatalFailure(); ++i) {
      std::string text;
      while (text.size() < 300) text += letters[random() % letters.size()];
      compareParts(text, 200, random);
    }
  }
}

TEST(Splitters, TakeLongCodesApartAsTheGrammarDoes) {
  std::mt19937_64 random(6);
  RandomCodes codes(6);
  for (int i = 0; i < 300 && !::testing::Test::HasFatalFailure(); ++i) {
    std::string code = codes.code();
    while (code.size() < 200) code = "(" + code + ")*" + codes.code();
    compareParts(code, 100, random);
  }
}

TEST(Splitters, StripDeepParentheses) {
  const std::string text = std::string(8000, '(') + "x" + std::string(8000, ')');
  Splitter splitter;
  EXPECT_EQ(splitter.strip(text), "x");
  EXPECT_EQ(splitter.strip(std::string_view(text).substr(1)), std::string_view(text).substr(1));
}

TEST(Splitters, TellOneTextFromAnother) {
  const std::string first = std::string(100, '1') + "+" + std::string(100, '2');
  const std::string second = std::string(100, '3') + "*" + std::string(100, '4');
  Splitter splitter;
  for (int i = 0; i < 2; ++i) {
    EXPECT_EQ(splitter.split(first).op, "+");
    EXPECT_EQ(splitter.split(second).op, "*");
  }
}

}  // namespace
}  // namespace zel::test
