#pragma once

#include <cstddef>
#include <string_view>

/// Characters of UTF-8 texts, one at a time.
namespace zel {

struct DecodedCharacter {
  char32_t character = 0;
  std::size_t size = 0;  // bytes; 0 where the text does not begin with a character
};

/// The first character of a text that is not empty.
DecodedCharacter decodeCharacter(std::string_view text);

/// Line breaks, tabs and all others below the blank, and those from U+007F to U+009F.
bool isControl(char32_t character);
/// Whether one of them is in the text.
bool holdsControl(std::string_view text);

}  // namespace zel
