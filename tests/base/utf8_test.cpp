#include "base/utf8.h"

#include <cstdint>

#include <gtest/gtest.h>

namespace zel {
namespace {

TEST(Utf8, DecodesTheFirstCharacter) {
  struct Row {
    std::string_view text;
    char32_t character;
    std::size_t size;
  };
  for (const Row& row : {Row{"xyz", U'x', 1}, Row{"ñ1", U'ñ', 2}, Row{"€", U'€', 3},
                         Row{"\xF0\x9F\x93\x88", U'\U0001F4C8', 4}, Row{{"\0", 1}, U'\0', 1}}) {
    const DecodedCharacter decoded = decodeCharacter(row.text);
    EXPECT_EQ(decoded.character, row.character) << row.text;
    EXPECT_EQ(decoded.size, row.size) << row.text;
  }
}

TEST(Utf8, FindsNoCharacterInOtherBytes) {
  for (const std::string_view bytes : {"\xFF", "\x80", "\xC3", "\xC3x", "\xE2\x82", "\xC0\xAF",
                                       "\xE0\x80\x80", "\xED\xA0\x80", "\xF4\x90\x80\x80"})
    EXPECT_EQ(decodeCharacter(bytes).size, 0u) << bytes;
}

TEST(Utf8, TakesWhatIsBelowTheBlankAndTheBytesFrom7FTo9FForControlCharacters) {
  for (const char32_t character : {U'\0', U'\t', U'\n', U'\x1F', U'\x7F', U'\x80', U'\x9F'})
    EXPECT_TRUE(isControl(character)) << static_cast<std::uint32_t>(character);
  for (const char32_t character : {U' ', U'~', U'\xA0', U'ñ', U'€'})
    EXPECT_FALSE(isControl(character)) << static_cast<std::uint32_t>(character);
}

TEST(Utf8, FindsAControlCharacterAnywhereInAText) {
  for (const std::string_view text : {"\ta", "a\r\nb", "ab\x7F", "ñ\xC2\x80", "\xC2\x9Fxy"})
    EXPECT_TRUE(holdsControl(text)) << text;
  for (const std::string_view text : {"", "a b~", "ñ€", "\xC2\xA0", "\x80", "\xC3\x9F"})
    EXPECT_FALSE(holdsControl(text)) << text;
}

}  // namespace
}  // namespace zel
