#pragma once

#include <cstddef>
#include <functional>
#include <optional>
#include <string>
#include <string_view>

namespace zel {

/// The compiled code of the graph that bears a letter ("a" to "z"); empty when there is none.
using GraphCodes = std::function<std::string_view(char letter)>;

/// Puts the codes of graphs in the place of their calls: for each letter from "a" to "z", of the
/// code as expanded so far, the first call's argument stands for every "x" of the graph's code, and
/// the result, not in parentheses, for every call with that same argument. A second call of the
/// same letter with another argument stays as it is. All this is meant: with f = x+1, "2*f(3)"
/// becomes "2*(3)+1". A call that is never closed stays too.
/// Nothing when the text would outgrow `limit` bytes on its way.
std::optional<std::string> ExpandReferences(std::string_view code, const GraphCodes& graphs,
                                            std::size_t limit);

}  // namespace zel
