#pragma once

#include <functional>

#include <CLI/CLI.hpp>

#include "cli/console/console.h"

namespace zel {

/// What the command line asks for: set by the command that was named, run after the whole line has
/// been read. Returns the exit status.
using Command = std::function<int()>;

/// Each adds one command to the parser.
void addEvaluate(CLI::App& app, Console& console, Command& command);
void addCompile(CLI::App& app, Console& console, Command& command);
void addCheckFormula(CLI::App& app, Console& console, Command& command);
void addCheck(CLI::App& app, Console& console, Command& command);
void addResave(CLI::App& app, Console& console, Command& command);
void addTable(CLI::App& app, Console& console, Command& command);
void addRender(CLI::App& app, Console& console, Command& command);
void addDrive(CLI::App& app, Console& console, Command& command);
void addSelfTest(CLI::App& app, Console& console, Command& command);

}  // namespace zel
