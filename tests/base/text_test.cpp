#include "base/text.h"

#include <gtest/gtest.h>

#include "base/code_page.h"

namespace zel::test {
namespace {

TEST(Text, LowersTheLettersOfTheCodePage) {
  EXPECT_EQ(toLower("ABC xyz 019"), "abc xyz 019");
  EXPECT_EQ(toLower("ÁÉÍÓÚÜÑÇ ÀÞ"), "áéíóúüñç àþ");
  EXPECT_EQ(toLower("ŒŠŽŸ"), "œšžÿ");
}

TEST(Text, LowersEachByteOfTheCodePageToOneByte) {
  for (int byte = 0; byte < 256; ++byte) {
    const std::string character = fromCodePage(std::string(1, static_cast<char>(byte)));
    const std::string lowered = toCodePage(toLower(character));
    ASSERT_EQ(lowered.size(), 1u) << byte;
    EXPECT_TRUE(lowered != "?" || byte == '?') << byte;
  }
}

TEST(Text, LeavesAllElseAsItIsWhenLowering) {
  EXPECT_EQ(toLower("áßþÿ×÷¿¡€ ЖΩ"), "áßþÿ×÷¿¡€ ЖΩ");
  EXPECT_EQ(toLower("\xC3"), "\xC3");
  EXPECT_EQ(toLower(""), "");
}

TEST(Text, RaisesTheLettersOfAsciiOnly) { EXPECT_EQ(toUpperAscii("azAZ09ñ"), "AZAZ09ñ"); }

TEST(Text, FindsAPartWhateverItsCase) {
  EXPECT_TRUE(containsIgnoringCase("M*x", "m"));
  EXPECT_TRUE(containsIgnoringCase("función", "FUNCIÓN"));
  EXPECT_FALSE(containsIgnoringCase("funcion", "ó"));
  EXPECT_FALSE(containsIgnoringCase("", "x"));
  EXPECT_TRUE(containsIgnoringCase("", ""));
  EXPECT_TRUE(containsIgnoringCase("x", ""));
}

TEST(Text, ReplacesFromLeftToRightAndNeverInWhatItPutIn) {
  EXPECT_EQ(replaceAll("aaa", "aa", "b"), "ba");
  EXPECT_EQ(replaceAll("x+x", "x", "(x)"), "(x)+(x)");
  EXPECT_EQ(replaceAll("aXa", "x", "y"), "aXa");
  EXPECT_EQ(replaceAll("abc", "", "y"), "abc");
  EXPECT_EQ(replaceAll("abcabc", "b", ""), "acac");
  EXPECT_EQ(replaceAll("", "b", "c"), "");
}

TEST(Text, ReplacesWithinATextAsInACopyOfIt) {
  const auto within = [](std::string text, std::string_view from, std::string_view to) {
    replaceWithin(text, from, to);
    return text;
  };
  EXPECT_EQ(within("aaa", "aa", "b"), "ba");
  EXPECT_EQ(within("x+x", "x", "(x)"), "(x)+(x)");
  EXPECT_EQ(within("abc", "", "y"), "abc");
  EXPECT_EQ(within("abcabc", "b", ""), "acac");
  EXPECT_EQ(within("senxsen+senx", "sen", "10@"), "10@x10@+10@x");
  EXPECT_EQ(within("gamma1gamma", "gamma", "1@"), "1@11@");
  EXPECT_EQ(within("", "b", "c"), "");
}

TEST(Text, ReplacesWhateverTheCase) {
  EXPECT_EQ(replaceAllIgnoringCase("h*H", "h", "(1)"), "(1)*(1)");
  EXPECT_EQ(replaceAllIgnoringCase("SENO seno", "sen", "10@"), "10@O 10@o");
  EXPECT_EQ(replaceAllIgnoringCase("ÑñN", "ñ", "n"), "nnN");
  EXPECT_EQ(replaceAllIgnoringCase("abc", "", "y"), "abc");
}

TEST(Text, LosesRelationSignsBeforeItsEndsAreTrimmed) {
  EXPECT_EQ(stripRelationSigns(" <= x > 3 = "), "x  3");
  EXPECT_EQ(stripRelationSigns("=<>"), "");
  EXPECT_EQ(stripRelationSigns("año"), "año");
}

TEST(Text, TrimsBlanksAndNoOtherWhiteSpace) {
  EXPECT_EQ(trimBlanks("  a b "), "a b");
  EXPECT_EQ(trimBlanks("\t a \r\n"), "\t a \r\n");
  EXPECT_EQ(trimBlanks("   "), "");
  EXPECT_EQ(trimBlanks(""), "");
}

TEST(Text, StripsRelationSignsAndThenBlanks) {
  EXPECT_EQ(stripRelationSigns(" x <= 3 "), "x  3");
  EXPECT_EQ(stripRelationSigns("= x+1 ="), "x+1");
  EXPECT_EQ(stripRelationSigns(" <=> "), "");
}

}  // namespace
}  // namespace zel::test
