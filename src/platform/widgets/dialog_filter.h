#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace zel {

/// The filters of a text "Name (*.ext)|*.ext|Name|*.a;*.b" in Qt's form: "Name (*.ext)",
/// "Name (*.a *.b)". A name without patterns is left out.
std::vector<std::string> dialogFilters(std::string_view filter);

/// The ending that the first pattern asks for, with its dot (".ext"); empty for "*.*" and the like.
std::string filterEnding(std::string_view filter);

/// The path with the ending behind a file name that holds no dot at all.
std::string withEnding(std::string_view path, std::string_view ending);

}  // namespace zel
