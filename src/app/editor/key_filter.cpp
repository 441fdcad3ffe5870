// The rules look at the whole text of the box and neither at the caret nor at the selection. What
// can never be part of a number is swallowed; the rest is for the check of the value.

#include "app/editor/key_filter.h"

namespace zel {
namespace {

bool isLetter(char32_t key) { return (key >= 'A' && key <= 'Z') || (key >= 'a' && key <= 'z'); }

}  // namespace

KeyRefusal refusalOf(char32_t key, std::string_view text, bool refuse_minus) {
  const auto refusedIf = [](bool refused, KeyRefusal why) {
    return refused ? why : KeyRefusal::none;
  };
  const auto holds = [&](std::string_view characters) {
    return text.find_first_of(characters) != std::string_view::npos;
  };
  switch (key) {
    case '-':
      if (refuse_minus) return KeyRefusal::minus_refused;
      return refusedIf(holds("-"), KeyRefusal::second_minus);
    case ' ': return KeyRefusal::blank;
    case 'E':
      if (text.empty()) return KeyRefusal::exponent_first;
      return refusedIf(holds("E"), KeyRefusal::second_exponent);
    case 'e': return KeyRefusal::small_exponent;
    case ',':
    case '.': return refusedIf(holds(",."), KeyRefusal::second_separator);
    default: return refusedIf(isLetter(key), KeyRefusal::letter);
  }
}

void FilterNumericKey(char32_t& key, std::string_view text, bool refuse_minus) {
  if (refusalOf(key, text, refuse_minus) != KeyRefusal::none) key = 0;
}

}  // namespace zel
