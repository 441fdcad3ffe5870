#pragma once

#include <optional>
#include <string>
#include <vector>

namespace zel {

struct HelpFile {
  std::string text;
  std::string folder;  // in which it lies, with its pictures
};

/// Where help files may lie, in the order in which they are looked for: beside the program, where
/// an installation puts them, and in the sources that the program was built from. On Windows only
/// beside the program.
std::vector<std::string> helpFolders(const std::string& program_folder);

/// The first file of this name; nothing when no folder has one, or for an empty name.
std::optional<HelpFile> readHelpFile(const std::vector<std::string>& folders,
                                     const std::string& name);

}  // namespace zel
