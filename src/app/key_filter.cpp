// The rules look at the whole text of the box and neither at the caret nor at the selection. What
// can never be part of a number is swallowed; the rest is for the check of the value.

#include "app/key_filter.h"

namespace zel {
namespace {

bool isLetter(char32_t key) { return (key >= 'A' && key <= 'Z') || (key >= 'a' && key <= 'z'); }

bool isSwallowed(char32_t key, std::string_view text, bool refuse_minus) {
  const auto holds = [&](std::string_view characters) {
    return text.find_first_of(characters) != std::string_view::npos;
  };
  if (key == '-') return refuse_minus || holds("-");
  if (key == ' ') return true;
  if (key == 'E') return text.empty() || holds("E");
  if (key == ',' || key == '.') return holds(",.");
  return isLetter(key);
}

}  // namespace

void FilterNumericKey(char32_t& key, std::string_view text, bool refuse_minus) {
  if (isSwallowed(key, text, refuse_minus)) key = 0;
}

}  // namespace zel
