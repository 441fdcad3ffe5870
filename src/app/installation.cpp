#include "app/installation.h"

#include <filesystem>
#include <system_error>

#include "files/absolute_path.h"

namespace zel {

bool isInstalledProgram(const std::string& program_folder) {
  const std::filesystem::path folder = pathOf(program_folder);
  std::error_code ignored;
  return std::filesystem::exists(folder / kInstallationMarker, ignored) ||
         std::filesystem::exists(folder / "../share/zel" / kInstallationMarker, ignored);
}

bool enterFolder(const std::string& folder) {
  std::error_code error;
  std::filesystem::create_directories(pathOf(folder), error);
  if (error) return false;
  std::filesystem::current_path(pathOf(folder), error);
  return !error;
}

}  // namespace zel
