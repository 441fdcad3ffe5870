#pragma once

#include <string_view>

namespace zel {

/// Why a key can never be part of a number.
enum class KeyRefusal {
  none,  // it can
  minus_refused,
  second_minus,
  blank,
  small_exponent,  // "e"
  exponent_first,
  second_exponent,
  second_separator,
  letter,
};

/// `key` is the character of a key that is pressed in a numeric text box with this text. It looks
/// at the whole text and not at the caret: a box holds one "E", one separator and one "-" at the
/// most, the "E" not as the first character; no blank, no other letter (also no "e"), and no "-" at
/// all where that is refused. All else passes on purpose.
KeyRefusal refusalOf(char32_t key, std::string_view text, bool refuse_minus);

/// Keeps a numeric text box free of what refusalOf refuses: sets the key to 0 to swallow it.
void FilterNumericKey(char32_t& key, std::string_view text, bool refuse_minus);

}  // namespace zel
