// Files hold one byte a character, the program UTF-8. Of the 256 bytes, 224 are the characters of
// their own number; the 32 from 0x80 on have a table. Whatever is no character of the code page,
// and whatever is no UTF-8, becomes a question mark, so that a text always has a form that can be
// written. Most texts are ASCII, which is the same in both.

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
  if (character < kFirstHighControl) return static_cast<char>(character);
  const auto found = std::ranges::find(kHighControls, static_cast<char16_t>(character));
  if (character <= 0xFFFF && found != kHighControls.end())
    return static_cast<char>(kFirstHighControl +
                             static_cast<char32_t>(found - kHighControls.begin()));
  const bool is_own_number = character >= 0xA0 && character <= 0xFF;
  return is_own_number ? static_cast<char>(character) : '?';
}

bool isAscii(std::string_view text) {
  return std::ranges::all_of(
      text, [](char byte) { return static_cast<unsigned char>(byte) < kFirstHighControl; });
}

/// Hands the byte of each character to `take`, until that returns false.
template <class Take>
void encode(std::string_view utf8, Take take) {
  while (!utf8.empty()) {
    const DecodedCharacter decoded = decodeCharacter(utf8);
    if (!take(decoded.size == 0 ? '?' : encodeByte(decoded.character))) return;
    utf8.remove_prefix(std::max<std::size_t>(decoded.size, 1));
  }
}

char32_t decodeByte(char byte) {
  const char32_t number = static_cast<unsigned char>(byte);
  const bool is_high_control =
      number >= kFirstHighControl && number < kFirstHighControl + kHighControls.size();
  return is_high_control ? kHighControls[number - kFirstHighControl] : number;
}

/// A character of the code page as UTF-8.
struct Utf8Character {
  std::array<char, 3> bytes{};
  std::size_t size = 0;

  std::string_view text() const { return {bytes.data(), size}; }
};

Utf8Character utf8Of(char32_t character) {
  const auto byte = [](char32_t bits) { return static_cast<char>(bits); };
  const char last = byte(0x80 | (character & 0x3F));
  if (character < 0x80) return {{byte(character)}, 1};
  if (character < 0x800) return {{byte(0xC0 | (character >> 6)), last}, 2};
  return {{byte(0xE0 | (character >> 12)), byte(0x80 | ((character >> 6) & 0x3F)), last}, 3};
}

}  // namespace

std::string toCodePage(std::string_view utf8) {
  std::string bytes;
  bytes.reserve(utf8.size());
  appendToCodePage(utf8, bytes);
  return bytes;
}

std::size_t codePageSize(std::string_view utf8) {
  if (isAscii(utf8)) return utf8.size();
  std::size_t size = 0;
  encode(utf8, [&](char) { return ++size > 0; });
  return size;
}

void appendToCodePage(std::string_view utf8, std::string& bytes) {
  if (isAscii(utf8)) {
    bytes += utf8;
    return;
  }
  encode(utf8, [&](char byte) {
    bytes += byte;
    return true;
  });
}

bool takeCodePage(std::string_view utf8, std::string_view& bytes) {
  bool is_same = true;
  encode(utf8, [&](char byte) {
    is_same = bytes.starts_with(byte);
    if (is_same) bytes.remove_prefix(1);
    return is_same;
  });
  return is_same;
}

bool isKeptByCodePage(std::string_view written, std::string_view read) {
  if (isAscii(written)) return written == read;
  bool is_kept = true;
  encode(written, [&](char byte) {
    const Utf8Character kept = utf8Of(decodeByte(byte));
    is_kept = read.starts_with(kept.text());
    if (is_kept) read.remove_prefix(kept.size);
    return is_kept;
  });
  return is_kept && read.empty();
}

std::string fromCodePage(std::string_view bytes) {
  if (isAscii(bytes)) return std::string(bytes);
  std::size_t size = 0;
  for (const char byte : bytes) size += utf8Of(decodeByte(byte)).size;
  std::string utf8;
  utf8.reserve(size);
  for (const char byte : bytes) utf8.append(utf8Of(decodeByte(byte)).text());
  return utf8;
}

}  // namespace zel
