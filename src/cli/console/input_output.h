#pragma once

#include <optional>
#include <string>
#include <string_view>

#include "cli/console/console.h"

/// Files that are read and written whole, where "-" is standard input or output.
namespace zel {

bool isStandardStream(std::string_view path);

/// All of standard input; nothing when it cannot be read, or is longer than a file that is read.
std::optional<std::string> readStandardInput(const Console& console);

/// Refuses "-" for the document of a command that reads other things from standard input; throws
/// CLI::ValidationError.
void keepInputFree(std::string_view name, std::string_view document);

/// Writes a file whole: Ctrl-C waits until it is in its place. A device or a pipe is written as it
/// is, and may keep the writer waiting for ever: there Ctrl-C ends the program.
bool writeOutput(const std::string& path, std::string_view bytes, const Console& console);

}  // namespace zel
