#include "app/editor/key_filter.h"

#include <gtest/gtest.h>

namespace zel {
namespace {

bool passes(char32_t key, std::string_view text, bool refuse_minus = false) {
  const char32_t typed = key;
  FilterNumericKey(key, text, refuse_minus);
  EXPECT_TRUE(key == 0 || key == typed);
  return key != 0;
}

TEST(KeyFilter, LetsOneSeparatorIn) {
  EXPECT_TRUE(passes(',', "1"));
  EXPECT_TRUE(passes('.', ""));
  EXPECT_FALSE(passes('.', "1,5"));
  EXPECT_FALSE(passes(',', "1,5"));
  EXPECT_FALSE(passes(',', "1.5"));
}

TEST(KeyFilter, LetsOneExponentInAfterTheFirstCharacter) {
  EXPECT_FALSE(passes('E', ""));
  EXPECT_TRUE(passes('E', "2"));
  EXPECT_FALSE(passes('E', "2E"));
  EXPECT_TRUE(passes('E', "2e"));
}

TEST(KeyFilter, LetsOneMinusInUnlessItIsRefused) {
  EXPECT_TRUE(passes('-', ""));
  EXPECT_TRUE(passes('-', "3E"));
  EXPECT_FALSE(passes('-', "3E-"));
  EXPECT_FALSE(passes('-', "-3E"));
  EXPECT_FALSE(passes('-', "", true));
  EXPECT_FALSE(passes('-', "3E", true));
}

TEST(KeyFilter, SwallowsLettersAndBlanks) {
  for (char32_t letter = 'A'; letter <= 'Z'; ++letter)
    EXPECT_EQ(passes(letter, "1"), letter == 'E') << static_cast<char>(letter);
  for (char32_t letter = 'a'; letter <= 'z'; ++letter)
    EXPECT_FALSE(passes(letter, "1")) << static_cast<char>(letter);
  EXPECT_FALSE(passes(' ', "1"));
}

TEST(KeyFilter, KnowsWhyItSwallowsAKey) {
  struct Row {
    char32_t key;
    const char* text;
    bool refuse_minus;
    KeyRefusal why;
  };
  const Row rows[] = {
      {'-', "", true, KeyRefusal::minus_refused},
      {'-', "-", true, KeyRefusal::minus_refused},
      {'-', "-1", false, KeyRefusal::second_minus},
      {' ', "", false, KeyRefusal::blank},
      {'e', "2", false, KeyRefusal::small_exponent},
      {'E', "", false, KeyRefusal::exponent_first},
      {'E', "2E", false, KeyRefusal::second_exponent},
      {'.', "1,5", false, KeyRefusal::second_separator},
      {'x', "1", false, KeyRefusal::letter},
      {'5', "1", false, KeyRefusal::none},
      {'E', "2", false, KeyRefusal::none},
      {',', "1", false, KeyRefusal::none},
      {'-', "", false, KeyRefusal::none},
  };
  for (const Row& row : rows)
    EXPECT_EQ(refusalOf(row.key, row.text, row.refuse_minus), row.why)
        << static_cast<char>(row.key) << " in '" << row.text << "'";
}

TEST(KeyFilter, LetsDigitsControlsAndOtherSymbolsPass) {
  for (const char32_t key : U"0123456789+*/()\b\r\x1b") {
    if (key == 0) continue;  // the end of the literal
    EXPECT_TRUE(passes(key, "-1,5E-3", true));
  }
  EXPECT_TRUE(passes(U'ñ', "1"));
}

}  // namespace
}  // namespace zel
