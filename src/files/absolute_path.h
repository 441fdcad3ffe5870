#pragma once

#include <string>

namespace zel {

/// The path from the root, seen from the current folder; the path itself where that cannot be told.
/// The name's own bytes stay as they are.
std::string absolutePath(const std::string& path);

}  // namespace zel
