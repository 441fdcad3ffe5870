// The whole grammar is one rule: a text is split at the rightmost of its weakest operators outside
// of parentheses. One walk from the right finds it, because only a strictly weaker operator
// replaces the best so far. All precedence and associativity follow, a/b*c = a/(b*c) included.

#include "engine/grammar.h"

#include "base/language.h"

namespace zel {

bool IsBalanced(std::string_view text) {
  std::size_t opened = 0;
  std::size_t closed = 0;
  char previous = '\0';
  for (const char character : text) {
    if (character == '(') ++opened;
    if (character == ')') {
      ++closed;
      if (closed > opened || previous == '(') break;
    }
    previous = character;
  }
  return opened == closed;
}

std::string_view StripOuterParentheses(std::string_view text) {
  while (text.starts_with('(') && text.ends_with(')')) {
    const std::string_view inner = text.substr(1, text.size() - 2);
    if (!IsBalanced(inner)) break;
    text = inner;
  }
  return text;
}

Split SplitAtMainOperator(std::string_view text) {
  std::size_t best_level = OperatorPrecedence.size();
  std::size_t best_place = text.size();
  long depth = 0;
  for (std::size_t i = text.size(); i-- > 0;) {
    if (text[i] == '(') {
      ++depth;
    } else if (text[i] == ')') {
      --depth;
    } else if (depth == 0) {
      const std::size_t level = OperatorPrecedence.find(text[i]);
      if (level < best_level) {  // not found is the largest of all
        best_level = level;
        best_place = i;
      }
    }
  }
  if (best_place == text.size()) return {{}, {}, {}, SplitFailure::no_operator};

  return MakeSplit(StripOuterParentheses(text.substr(0, best_place)), text.substr(best_place, 1),
                   StripOuterParentheses(text.substr(best_place + 1)));
}

Split MakeSplit(std::string_view left, std::string_view op, std::string_view right) {
  Split split = {left, right, op};
  const bool is_sign = op == "+" || op == "-";
  if (is_sign && left.empty() && !right.empty()) split.left = "0";
  if (split.left.empty() || right.empty()) split.failure = SplitFailure::missing_operand;
  return split;
}

std::string SplitMessage(SplitFailure failure, std::string_view text) {
  if (failure == SplitFailure::no_operator) return Localize("No se encuentra el operador.");
  return Localize("Error: No se entiende el elemento: ") + "'" + std::string(text) + "'";
}

}  // namespace zel
