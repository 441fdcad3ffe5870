#pragma once

#include <string_view>

namespace zel {

/// What the help of a command ends with: lines to type, each after "$ ", and what they print, to be
/// tried in the folder of the example documents.
std::string_view examplesOf(std::string_view command);

}  // namespace zel
