#pragma once

#include <string>

#include "cli/drive/drive_window.h"
#include "engine/engine.h"

namespace zel {

/// All that a user of the window can see, as a JSON object on one line. A number that is not
/// finite is null; the others read back to the same double.
std::string driveObject(const DriveWindow& window, const Engine& engine);

}  // namespace zel
