#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>

/// The checks of the users' fields. Each returns whether all is well; when it is not, it adds a
/// paragraph in the current language to `message`, which the caller shows once at the end.
namespace zel {

/// An input field, and the caption of the label that stands beside it.
struct Field {
  std::string text;
  std::string label;
};

/// The caption without any "=", "<" and ">" and without blanks at its ends.
std::string fieldLabel(std::string_view caption);

/// Lists the fields that are not numeric. A failure replaces what the message held: this is meant.
bool checkNumeric(std::span<const Field> fields, std::string& message);

/// Lists the fields that are not numeric, below 0, or beyond the range of a double. 0 passes,
/// although the message speaks of positive numbers.
bool checkNonNegative(std::span<const Field> fields, std::string& message);

/// Both must be numbers within the range of a double, and `high` the greater one. The label is
/// named once when both fields share it.
bool checkIncreasing(const Field& low, const Field& high, std::string& message);

/// The name must occur in the formula, case ignored.
bool checkParameterUsed(std::string_view formula, std::string_view parameterName,
                        std::string& message);

/// The first parenthesis of a formula that does not fit.
struct ParenthesisFault {
  enum class Kind { closes_nothing, holds_nothing, stays_open };

  Kind kind = Kind::stays_open;
  std::size_t place = 0;  // in bytes
};

/// One that closes nothing or holds nothing ("()"), or else the last of those that stay open;
/// nothing when all fit.
std::optional<ParenthesisFault> findParenthesisFault(std::string_view formula);

/// Refuses a formula that closes more parentheses than it has opened, leaves one open, or holds
/// "()".
bool checkParentheses(std::string_view formula, std::string_view fieldName, std::string& message);

}  // namespace zel
