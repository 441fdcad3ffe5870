#pragma once

#include <filesystem>
#include <string>

namespace zel {

/// The path of a name. Its bytes stay as they are on POSIX, and are UTF-8 on Windows.
std::filesystem::path pathOf(const std::string& name);

/// The path from the root, seen from the current folder; the path itself where that cannot be told.
/// The name's own bytes stay as they are.
std::string absolutePath(const std::string& path);

}  // namespace zel
