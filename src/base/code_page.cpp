// Files hold one byte a character, the program UTF-8. Of the 256 bytes, 224 are the characters of
// their own number; the 32 from 0x80 on have a table. Whatever is no character of the code page,
// and whatever is no UTF-8, becomes a question mark, so that a text always has a form that can be
// written.

#include "base/code_page.h"

#include <algorithm>
#include <array>
#include <cstdint>

#include "base/utf8.h"

namespace zel {
namespace {

/// The characters of the bytes 0x80 to 0x9F; all others are the characters of their own number.
constexpr std::array<char16_t, 32> kHighControls = {
    0x20AC, 0x0081, 0x201A, 0x0192, 0x201E, 0x2026, 0x2020, 0x2021, 0x02C6, 0x2030, 0x0160,
    0x2039, 0x0152, 0x008D, 0x017D, 0x008F, 0x0090, 0x2018, 0x2019, 0x201C, 0x201D, 0x2022,
    0x2013, 0x2014, 0x02DC, 0x2122, 0x0161, 0x203A, 0x0153, 0x009D, 0x017E, 0x0178};
constexpr char32_t kFirstHighControl = 0x80;

char encodeByte(char32_t character) {
  const auto found = std::ranges::find(kHighControls, static_cast<char16_t>(character));
  if (character <= 0xFFFF && found != kHighControls.end())
    return static_cast<char>(kFirstHighControl +
                             static_cast<char32_t>(found - kHighControls.begin()));
  const bool is_own_number = character < 0x80 || (character >= 0xA0 && character <= 0xFF);
  return is_own_number ? static_cast<char>(character) : '?';
}

void appendUtf8(char32_t character, std::string& text) {
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += static_cast<char>(0xC0 | (character >> 6));
    text += static_cast<char>(0x80 | (character & 0x3F));
  } else {
    text += static_cast<char>(0xE0 | (character >> 12));
    text += static_cast<char>(0x80 | ((character >> 6) & 0x3F));
    text += static_cast<char>(0x80 | (character & 0x3F));
  }
}

}  // namespace

std::string toCodePage(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  while (!utf8.empty()) {
    const DecodedCharacter decoded = decodeCharacter(utf8);
    bytes += decoded.size == 0 ? '?' : encodeByte(decoded.character);
    utf8.remove_prefix(std::max<std::size_t>(decoded.size, 1));
  }
  return bytes;
}

std::string fromCodePage(std::string_view bytes) {
  std::string utf8;
  utf8.reserve(bytes.size());
  for (const char byte : bytes) {
    const char32_t number = static_cast<unsigned char>(byte);
    const bool is_high_control =
        number >= kFirstHighControl && number < kFirstHighControl + kHighControls.size();
    appendUtf8(is_high_control ? kHighControls[number - kFirstHighControl] : number, utf8);
  }
  return utf8;
}

}  // namespace zel
