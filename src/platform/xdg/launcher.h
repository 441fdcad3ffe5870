#pragma once

#include <functional>
#include <string>
#include <vector>

namespace zel {

/// Starts a program with its arguments and lets it run on its own; false when it cannot be started.
using Launcher =
    std::function<bool(const std::string& program, const std::vector<std::string>& arguments)>;

/// The launcher of this platform. The program is looked for in PATH, hears nothing and its output
/// is thrown away; how it ends is not awaited.
bool launch(const std::string& program, const std::vector<std::string>& arguments);

/// Whether PATH leads to a program of this name.
bool isInstalled(const std::string& program);

}  // namespace zel
