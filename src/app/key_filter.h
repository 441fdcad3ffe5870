#pragma once

#include <string_view>

namespace zel {

/// Keeps a numeric text box free of characters that can never form a number. `key` is the
/// character of the pressed key; the filter sets it to 0 to swallow the key. It looks at the box's
/// whole text and not at the caret: a box holds one "E", one separator and one "-" at the most, the
/// "E" not as the first character; no blank, no other letter (also no "e"), and no "-" at all where
/// that is refused. All else passes on purpose.
void FilterNumericKey(char32_t& key, std::string_view text, bool refuse_minus);

}  // namespace zel
