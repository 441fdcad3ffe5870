#include "platform/widgets/help_files.h"

#include <utility>

#include "files/whole_file.h"

namespace zel {

std::vector<std::string> helpFolders(const std::string& program_folder) {
#ifdef _WIN32
  return {program_folder};
#else
  return {program_folder, program_folder + "/../share/zel/help", ZEL_HELP_SOURCE_DIR};
#endif
}

std::optional<HelpFile> readHelpFile(const std::vector<std::string>& folders,
                                     const std::string& name) {
  if (name.empty()) return std::nullopt;
  const std::string place = "/" + name;
  for (const std::string& folder : folders)
    if (auto text = readWholeFile(folder + place)) return HelpFile{*std::move(text), folder};
  return std::nullopt;
}

}  // namespace zel
