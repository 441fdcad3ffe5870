#pragma once

#include <string>

/// A program that a package or an installer has put in its place keeps its configuration in a
/// folder of the user's own; any other keeps it where it is started. All paths are UTF-8.
namespace zel {

/// The marker's name. Only packages and installers put the file.
inline constexpr const char* kInstallationMarker = "zel.installed";

/// Whether the marker lies beside the program or, where programs have a folder for themselves, in
/// "../share/zel" from there.
bool isInstalledProgram(const std::string& program_folder);

/// Makes the folder, which is made where it is missing, the current one. False when that cannot be:
/// then the current folder stays as it was.
bool enterFolder(const std::string& folder);

}  // namespace zel
