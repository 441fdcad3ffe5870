#include "files/absolute_path.h"

#include <exception>
#include <filesystem>

namespace zel {

std::string absolutePath(const std::string& path) {
  try {
    // Bytes pass through char8_t unchanged on POSIX, and as UTF-8 on Windows.
    const std::filesystem::path given(std::u8string(path.begin(), path.end()));
    const std::u8string full = std::filesystem::absolute(given).u8string();
    return {full.begin(), full.end()};
  } catch (const std::exception&) {
    return path;
  }
}

}  // namespace zel
