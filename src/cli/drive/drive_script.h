#pragma once

#include <string>
#include <string_view>

#include "cli/drive/drive_window.h"

namespace zel {

/// Carries out one line of a script. What is wrong with it, in the current language, when it is no
/// command; empty otherwise. A command changes nothing when the window is closed.
std::string runDriveLine(DriveWindow& window, std::string_view line);

}  // namespace zel
