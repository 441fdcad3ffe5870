#include "platform/xdg/user_folders.h"

#include <cstdlib>
#include <filesystem>
#include <system_error>

namespace zel {
namespace {

/// Without the "/" at its end; empty for the root and for what does not begin there.
std::string absoluteFolder(const char* variable) {
  const char* const value = std::getenv(variable);
  std::string folder = value == nullptr || *value != '/' ? "" : value;
  folder.erase(folder.find_last_not_of('/') + 1);
  return folder;
}

}  // namespace

std::string folderNamedBy(const char* variable, const char* otherwise) {
  const std::string folder = absoluteFolder(variable);
  return folder.empty() ? absoluteFolder("HOME") + otherwise : folder;
}

bool makeFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(folder, error);
  return !error;
}

}  // namespace zel
