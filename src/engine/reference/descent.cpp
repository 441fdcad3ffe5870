// One step down into a code: a number and a name are values, anything else is stripped of its
// parentheses and split. The reducer and the maker of plans go down by the same step.

#include "engine/reference/descent.h"

#include "numbers/number_text.h"

namespace zel {
namespace {

bool isName(std::string_view text) {
  return text == "x" || text == "t" || text == "p" || text == "e";
}

}  // namespace

Descent descend(std::string_view text, ParseCache& cache, Splitter& splitter) {
  if (splitter.isNumber(text)) return {Descent::Kind::number, text, {}};
  if (text.starts_with('(') && text.ends_with(')')) text = cache.strip(text, splitter);
  if (isName(text)) return {Descent::Kind::name, text, {}};
  const Split split = cache.split(text, splitter);
  if (split.failure != SplitFailure::none) return {Descent::Kind::failed, text, split};
  if (!split.left.empty() && !split.right.empty()) return {Descent::Kind::split, text, split};
  return {isNumeric(text) ? Descent::Kind::number : Descent::Kind::user_function, text, split};
}

}  // namespace zel
