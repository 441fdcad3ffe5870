#pragma once

#include <string>

/// The user's folders on the free desktop. Paths have the system's own bytes, which need not be
/// UTF-8.
namespace zel {

/// The folder that the environment variable names. One that is not from the root counts as none:
/// then it is `otherwise` ("/.local/share") in the user's home, which HOME names, or else the
/// user's entry in the system's list.
std::string folderNamedBy(const char* variable, const char* otherwise);

/// Whether the folder is there now.
bool makeFolder(const std::string& folder);

}  // namespace zel
