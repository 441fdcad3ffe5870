#pragma once

#include <filesystem>
#include <fstream>
#include <iterator>
#include <random>
#include <set>
#include <string>
#include <string_view>

namespace zel::test {

/// A path from UTF-8; some systems take a plain text for another encoding.
inline std::filesystem::path pathOf(std::string_view utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

inline std::string utf8Of(const std::filesystem::path& path) {
  const std::u8string text = path.u8string();
  return {text.begin(), text.end()};
}

/// An empty folder that goes away with all it holds. Paths are UTF-8, with "/" on every system.
class TemporaryFolder {
 public:
  TemporaryFolder() {
    std::random_device random;
    do {
      const auto name = "zel-test-" + std::to_string(random());
      path_ = (std::filesystem::temp_directory_path() / name).generic_u8string();
    } while (!std::filesystem::create_directory(path_));
  }
  TemporaryFolder(const TemporaryFolder&) = delete;
  TemporaryFolder& operator=(const TemporaryFolder&) = delete;
  ~TemporaryFolder() {
    std::error_code ignored;
    std::filesystem::remove_all(path_, ignored);
  }

  const std::filesystem::path& path() const { return path_; }

  /// The path of a name inside.
  std::string operator/(std::string_view name) const {
    return utf8Of(path_) + "/" + std::string(name);
  }

  std::set<std::string> names() const {
    std::set<std::string> result;
    for (const auto& entry : std::filesystem::directory_iterator(path_))
      result.insert(utf8Of(entry.path().filename()));
    return result;
  }

 private:
  std::filesystem::path path_;
};

inline std::string bytesOf(const std::string& path) {
  std::ifstream stream(pathOf(path), std::ios::binary);
  return {std::istreambuf_iterator<char>(stream), {}};
}

inline void putBytes(const std::string& path, std::string_view bytes) {
  std::ofstream stream(pathOf(path), std::ios::binary);
  stream.write(bytes.data(), static_cast<std::streamsize>(bytes.size()));
}

/// Makes a folder the current one and goes back at the end.
class CurrentFolderGuard {
 public:
  explicit CurrentFolderGuard(const std::filesystem::path& folder)
      : before_(std::filesystem::current_path()) {
    std::filesystem::current_path(folder);
  }
  CurrentFolderGuard(const CurrentFolderGuard&) = delete;
  CurrentFolderGuard& operator=(const CurrentFolderGuard&) = delete;
  ~CurrentFolderGuard() {
    std::error_code ignored;
    std::filesystem::current_path(before_, ignored);
  }

 private:
  std::filesystem::path before_;
};

}  // namespace zel::test
