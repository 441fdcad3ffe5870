#include "platform/xdg/user_folders.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>
#include <vector>

#include <pwd.h>
#include <unistd.h>

#include "platform/desktop_services.h"

namespace zel {
namespace {

bool isFromTheRoot(const char* folder) { return folder != nullptr && *folder == '/'; }

std::string withoutSlashes(std::string folder) {
  folder.erase(folder.find_last_not_of('/') + 1);
  return folder;
}

/// The home of the user's entry among those of the system; the root without one.
std::string homeOfEntry() {
  constexpr std::size_t kLongestEntry = 1 << 16;
  std::vector<char> texts(kLongestEntry);
  passwd entry{};
  passwd* found = nullptr;
  const bool is_read = ::getpwuid_r(::getuid(), &entry, texts.data(), texts.size(), &found) == 0;
  return is_read && found != nullptr && isFromTheRoot(found->pw_dir) ? found->pw_dir : "/";
}

std::string home() {
  const char* const named = std::getenv("HOME");
  return withoutSlashes(isFromTheRoot(named) ? named : homeOfEntry());
}

}  // namespace

std::string folderNamedBy(const char* variable, const char* otherwise) {
  const char* const named = std::getenv(variable);
  const std::string folder = isFromTheRoot(named) ? withoutSlashes(named) : "";
  return folder.empty() ? home() + otherwise : folder;
}

void nameHome() {
  if (!isFromTheRoot(std::getenv("HOME"))) ::setenv("HOME", homeOfEntry().c_str(), 1);
}

bool makeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return !error;
}

}  // namespace zel
