#include "files/absolute_path.h"

namespace zel {

std::filesystem::path pathOf(const std::string& name) {
  return {std::u8string(name.begin(), name.end())};
}

std::string absolutePath(const std::string& path) {
  try {
    const std::u8string full = std::filesystem::absolute(pathOf(path)).u8string();
    return {full.begin(), full.end()};
  } catch (const std::filesystem::filesystem_error&) {
    return path;
  }
}

}  // namespace zel
