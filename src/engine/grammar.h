#pragma once

#include <string>
#include <string_view>

/// The grammar of the code: how a text is taken apart into operands. Precedence and associativity
/// fall out of the split rule alone, surprises included: a/b*c is a/(b*c), and a unary minus binds
/// weakest of all.
namespace zel {

/// The operators from the weakest to the strongest. "@" applies a prefix function (its code stands
/// on the left), "#" a postfix function (its code stands on the right).
inline constexpr std::string_view OperatorPrecedence = "+-\\/*@^#";

/// The balance test of an inner text: the walk stops right after the first ")" too many or the
/// first pair "()", and the counts must be equal there. So an inner text that begins with "()"
/// passes whatever follows; this is meant.
bool IsBalanced(std::string_view text);

/// Takes the outer parentheses off as long as the inner text passes the balance test.
std::string_view StripOuterParentheses(std::string_view text);

/// Why a text could not be split.
enum class SplitFailure { none, no_operator, missing_operand };

/// A text split at its main operator, each operand stripped of its outer parentheses. `op` is empty
/// when no operator stands outside parentheses; an operand is empty when it is missing.
struct Split {
  std::string_view left;
  std::string_view right;
  std::string_view op;
  SplitFailure failure = SplitFailure::none;
};

/// The main operator is the rightmost of the weakest operators outside parentheses. A sign without
/// a left operand gets "0" there.
Split SplitAtMainOperator(std::string_view text);

/// The split at an operator that has been found, its operands stripped.
Split MakeSplit(std::string_view left, std::string_view op, std::string_view right);

/// The message of a text that could not be split, in the current language.
std::string SplitMessage(SplitFailure failure, std::string_view text);

}  // namespace zel
