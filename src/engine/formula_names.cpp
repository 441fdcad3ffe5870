// In a code every function that is known has become a number, so all letters that are left are
// values, calls, or unknown. A name of which a function is only a part ("sinh", "arcsin") is told
// as it was typed: the function beside the rest gets its name back.

#include "engine/formula_names.h"

#include <charconv>
#include <cstddef>

#include "engine/compiler.h"

namespace zel {
namespace {

constexpr std::string_view kValues = "xtpe";
constexpr std::string_view kDigits = "0123456789";

/// Also of the bytes of a character that is no ASCII, which is in no name that is known.
bool isLetter(char character) {
  return (character >= 'a' && character <= 'z') || static_cast<unsigned char>(character) >= 0x80;
}

/// The function whose code is this text of digits; empty where there is none.
std::string_view functionName(std::string_view digits) {
  std::size_t number = PrefixFunctions.size();
  const auto end = digits.data() + digits.size();
  const auto read = std::from_chars(digits.data(), end, number);
  const bool is_code = read.ec == std::errc() && read.ptr == end && number < PrefixFunctions.size();
  return is_code ? PrefixFunctions[number] : std::string_view();
}

/// The function that is applied right at the end of a text; empty where there is none.
std::string_view functionAtEnd(std::string_view before) {
  if (before.empty() || before.back() != '@') return {};
  before.remove_suffix(1);
  const std::size_t other = before.find_last_not_of(kDigits);
  return functionName(before.substr(other == std::string_view::npos ? 0 : other + 1));
}

std::string_view functionAtStart(std::string_view after) {
  const std::size_t at = after.find_first_not_of(kDigits);
  if (at == std::string_view::npos || after[at] != '@') return {};
  return functionName(after.substr(0, at));
}

bool isKnown(std::string_view letters, bool is_call, const GraphCodes& graphs) {
  if (letters.size() != 1) return false;
  if (is_call) return graphs && !graphs(letters.front()).empty();
  return kValues.find(letters) != std::string_view::npos;
}

}  // namespace

std::optional<UnknownName> findUnknownName(std::string_view formula, const GraphCodes& graphs) {
  const std::string text = NormaliseFormula(formula);
  const std::string_view code = text;
  for (std::size_t begin = 0, end = 0; begin < code.size(); begin = end + 1) {
    end = begin;
    while (end < code.size() && isLetter(code[end])) ++end;
    if (end == begin) continue;
    const std::string_view letters = code.substr(begin, end - begin);
    const std::string_view after = code.substr(end);
    const bool is_call = letters.size() == 1 && after.starts_with('(');
    if (isKnown(letters, is_call, graphs)) continue;
    const std::string_view before = functionAtEnd(code.substr(0, begin));
    std::string name(before);
    name.append(letters).append(functionAtStart(after));
    return UnknownName{name, is_call && before.empty()};
  }
  return std::nullopt;
}

}  // namespace zel
