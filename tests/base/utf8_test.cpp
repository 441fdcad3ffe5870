#include "base/utf8.h"

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

}  // namespace
}  // namespace zel
