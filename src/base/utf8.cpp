// A lead byte says how many bytes follow, of six bits each. What is longer than it need be, a
// surrogate, and what is beyond the last character of Unicode are no UTF-8.

#include "base/utf8.h"

#include <array>

namespace zel {
namespace {

/// How many bytes follow a lead byte; -1 for a byte that cannot lead.
int continuationCount(unsigned char lead) {
  if (lead < 0x80) return 0;
  if (lead >= 0xC2 && lead <= 0xDF) return 1;
  if (lead >= 0xE0 && lead <= 0xEF) return 2;
  if (lead >= 0xF0 && lead <= 0xF4) return 3;
  return -1;
}

bool isScalar(char32_t character, int continuations) {
  constexpr std::array<char32_t, 4> kLowest = {0, 0x80, 0x800, 0x10000};
  if (character < kLowest[static_cast<std::size_t>(continuations)]) return false;
  return character <= 0x10FFFF && (character < 0xD800 || character > 0xDFFF);
}

}  // namespace

DecodedCharacter decodeCharacter(std::string_view text) {
  const auto lead = static_cast<unsigned char>(text[0]);
  const int continuations = continuationCount(lead);
  if (continuations < 0 || text.size() <= static_cast<std::size_t>(continuations)) return {};
  char32_t character = continuations == 0 ? lead : lead & (0x3Fu >> continuations);
  for (int i = 1; i <= continuations; ++i) {
    const auto byte = static_cast<unsigned char>(text[static_cast<std::size_t>(i)]);
    if ((byte & 0xC0) != 0x80) return {};
    character = (character << 6) | (byte & 0x3Fu);
  }
  if (!isScalar(character, continuations)) return {};
  return {character, static_cast<std::size_t>(continuations) + 1};
}

bool isControl(char32_t character) {
  return character < 0x20 || (character >= 0x7F && character <= 0x9F);
}

bool holdsControl(std::string_view text) {
  constexpr unsigned char kLeadOfHighControls = 0xC2;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const auto byte = static_cast<unsigned char>(text[i]);
    if (byte < 0x80
            ? isControl(byte)
            : byte == kLeadOfHighControls && isControl(decodeCharacter(text.substr(i)).character))
      return true;
  }
  return false;
}

}  // namespace zel
