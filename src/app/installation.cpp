#include "app/installation.h"

#include <filesystem>
#include <system_error>

namespace zel {
namespace {

namespace fs = std::filesystem;

fs::path pathOf(const std::string& text) { return {std::u8string(text.begin(), text.end())}; }

}  // namespace

bool isInstalledProgram(const std::string& program_folder) {
  const fs::path folder = pathOf(program_folder);
  std::error_code ignored;
  return fs::exists(folder / kInstallationMarker, ignored) ||
         fs::exists(folder / "../share/zel" / kInstallationMarker, ignored);
}

bool enterFolder(const std::string& folder) {
  std::error_code error;
  fs::create_directories(pathOf(folder), error);
  if (error) return false;
  fs::current_path(pathOf(folder), error);
  return !error;
}

}  // namespace zel
