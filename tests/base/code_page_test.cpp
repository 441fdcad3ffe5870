#include "base/code_page.h"

#include <gtest/gtest.h>

namespace zel::test {
namespace {

TEST(CodePage, GivesEveryByteBack) {
  std::string bytes;
  for (int byte = 0; byte < 256; ++byte) bytes += static_cast<char>(byte);
  EXPECT_EQ(toCodePage(fromCodePage(bytes)), bytes);
}

TEST(CodePage, KeepsAscii) {
  EXPECT_EQ(toCodePage("x^2=\"1,5\"\r\n\t"), "x^2=\"1,5\"\r\n\t");
  EXPECT_EQ(fromCodePage("x^2=\"1,5\"\r\n\t"), "x^2=\"1,5\"\r\n\t");
}

TEST(CodePage, WritesAccentedLettersAsOneByte) {
  EXPECT_EQ(toCodePage("áéíóúüñ¿¡ÁÉÍÓÚÜÑ"),
            "\xE1\xE9\xED\xF3\xFA\xFC\xF1\xBF\xA1\xC1\xC9\xCD\xD3\xDA\xDC\xD1");
  EXPECT_EQ(fromCodePage("Gr\xE1"
                         "fico"),
            "Gráfico");
}

TEST(CodePage, KnowsTheCharactersBetweenAsciiAndTheLatinLetters) {
  EXPECT_EQ(fromCodePage("\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E"), "€‚ƒ„…†‡ˆ‰Š‹ŒŽ");
  EXPECT_EQ(fromCodePage("\x91\x92\x93\x94\x95\x96\x97\x98\x99\x9A\x9B\x9C\x9E\x9F"),
            "‘’“”•–—˜™š›œžŸ");
  EXPECT_EQ(toCodePage("€‚ƒ„…†‡ˆ‰Š‹ŒŽ"), "\x80\x82\x83\x84\x85\x86\x87\x88\x89\x8A\x8B\x8C\x8E");
}

TEST(CodePage, TakesTheFiveBytesWithoutACharacterAsControls) {
  EXPECT_EQ(fromCodePage("\x81\x8D\x8F\x90\x9D"), "\u0081\u008D\u008F\u0090\u009D");
}

TEST(CodePage, PutsAQuestionMarkForEachCharacterThatItLacks) {
  EXPECT_EQ(toCodePage("π≤Ω"), "???");
  EXPECT_EQ(toCodePage("a😀b"), "a?b");
  EXPECT_EQ(toCodePage("\u0080\u0100\uFFFD"), "???");
}

TEST(CodePage, TakesATextOffTheBeginningOfItsBytes) {
  std::string_view bytes = "x\xE9\x80?rest";
  EXPECT_TRUE(takeCodePage("x\u00E9", bytes));
  EXPECT_TRUE(takeCodePage("", bytes));
  EXPECT_TRUE(takeCodePage("\u20AC\u03C0", bytes));
  EXPECT_EQ(bytes, "rest");
  EXPECT_FALSE(takeCodePage("Rest", bytes));
  bytes = "rest";
  EXPECT_FALSE(takeCodePage("rest of it", bytes));
}

TEST(CodePage, PutsAQuestionMarkForEachByteThatIsNotUtf8) {
  EXPECT_EQ(toCodePage("a\xFFz"), "a?z");
  EXPECT_EQ(toCodePage("\xE1z"), "?z");
  EXPECT_EQ(toCodePage("\xE2\x82"), "??");
  EXPECT_EQ(toCodePage("\xC0\xAF"), "??");
  EXPECT_EQ(toCodePage("\xE0\x80\x80"), "???");
  EXPECT_EQ(toCodePage("\xED\xA0\x80"), "???");
  EXPECT_EQ(toCodePage("\xF4\x90\x80\x80"), "????");
  EXPECT_EQ(toCodePage("\xF5\x80"), "??");
  EXPECT_EQ(toCodePage("\x80"), "?");
}

TEST(CodePage, TellsTheSizeOfWhatItGives) {
  for (const char* const text : {"", "abc", "a€ñ", "\xE2\x82", "Ωz"})
    EXPECT_EQ(codePageSize(text), toCodePage(text).size()) << text;
}

TEST(CodePage, TellsWhetherATextIsKept) {
  EXPECT_TRUE(isKeptByCodePage("", ""));
  EXPECT_TRUE(isKeptByCodePage("a€ñ\u0081", "a€ñ\u0081"));
  EXPECT_TRUE(isKeptByCodePage("Ω\xFFz", "??z"));
  EXPECT_FALSE(isKeptByCodePage("Ω", "Ω"));
  EXPECT_FALSE(isKeptByCodePage("a€", "a"));
  EXPECT_FALSE(isKeptByCodePage("a", "a€"));
  EXPECT_FALSE(isKeptByCodePage("ab", "ac"));
}

TEST(CodePage, KeepsZeroBytesAndEmptyTexts) {
  const std::string zero("a\0b", 3);
  EXPECT_EQ(toCodePage(zero), zero);
  EXPECT_EQ(fromCodePage(zero), zero);
  EXPECT_EQ(toCodePage(""), "");
  EXPECT_EQ(fromCodePage(""), "");
}

}  // namespace
}  // namespace zel::test
