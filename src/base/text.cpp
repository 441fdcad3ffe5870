#include "base/text.h"

#include <algorithm>

namespace zel {
namespace {

char lowerAscii(char character) {
  return character >= 'A' && character <= 'Z' ? static_cast<char>(character - 'A' + 'a')
                                              : character;
}

/// Lower case of a two-byte UTF-8 character: À to Þ (but the sign ×), and Œ, Š, Ž, Ÿ.
void lowerPair(char& lead, char& trail) {
  const auto first = static_cast<unsigned char>(lead);
  const auto second = static_cast<unsigned char>(trail);
  if (first == 0xC3 && second >= 0x80 && second <= 0x9E && second != 0x97) {
    trail = static_cast<char>(second + 0x20);
  } else if (first == 0xC5 && (second == 0x92 || second == 0xA0 || second == 0xBD)) {
    trail = static_cast<char>(second + 1);
  } else if (first == 0xC5 && second == 0xB8) {
    lead = '\xC3';
    trail = '\xBF';
  }
}

/// What the replacing of every occurrence makes of the size of a text.
std::size_t sizeReplaced(std::string_view searched, std::string_view from, std::string_view to) {
  std::size_t size = searched.size();
  for (std::size_t found = searched.find(from); found != std::string_view::npos;
       found = searched.find(from, found + from.size()))
    size = size - from.size() + to.size();
  return size;
}

/// Replaces in `text` what stands at the places where `from` occurs in `searched`, a text of the
/// same size.
std::string replaceWhereFound(std::string_view text, std::string_view searched,
                              std::string_view from, std::string_view to) {
  if (from.empty()) return std::string(text);
  std::string result;
  result.reserve(sizeReplaced(searched, from, to));
  std::size_t position = 0;
  for (;;) {
    const std::size_t found = searched.find(from, position);
    result.append(text.substr(position, found - position));
    if (found == std::string_view::npos) return result;
    result.append(to);
    position = found + from.size();
  }
}

}  // namespace

std::string toLower(std::string_view text) {
  std::string result(text);
  for (std::size_t i = 0; i < result.size(); ++i) {
    result[i] = lowerAscii(result[i]);
    if (i + 1 < result.size()) lowerPair(result[i], result[i + 1]);
  }
  return result;
}

std::string toUpperAscii(std::string_view text) {
  std::string result(text);
  for (char& character : result)
    if (character >= 'a' && character <= 'z') character = static_cast<char>(character - 'a' + 'A');
  return result;
}

bool containsIgnoringCase(std::string_view text, std::string_view part) {
  return toLower(text).find(toLower(part)) != std::string::npos;
}

std::string replaceAll(std::string_view text, std::string_view from, std::string_view to) {
  return replaceWhereFound(text, text, from, to);
}

std::string replaceAllIgnoringCase(std::string_view text, std::string_view from,
                                   std::string_view to) {
  return replaceWhereFound(text, toLower(text), toLower(from), to);
}

void replaceWithin(std::string& text, std::string_view from, std::string_view to) {
  std::size_t found = from.empty() ? std::string::npos : text.find(from);
  if (found == std::string::npos) return;
  if (to.size() > from.size()) {
    text = replaceAll(text, from, to);
    return;
  }
  std::size_t kept = found;
  while (found != std::string::npos) {
    kept += to.copy(text.data() + kept, to.size());
    const std::size_t begin = found + from.size();
    found = text.find(from, begin);
    const std::size_t end = std::min(found, text.size());
    std::copy(text.data() + begin, text.data() + end, text.data() + kept);
    kept += end - begin;
  }
  text.resize(kept);
}

std::string_view trimBlanks(std::string_view text) {
  const std::size_t first = text.find_first_not_of(' ');
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(' ') - first + 1);
}

std::string stripRelationSigns(std::string_view text) {
  std::string bare(text);
  std::erase_if(bare, [](char c) { return c == '=' || c == '<' || c == '>'; });
  return std::string(trimBlanks(bare));
}

}  // namespace zel
