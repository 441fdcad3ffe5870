#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

namespace zel {

/// The command that the line names: its first argument that is no option and no option's value.
/// Null when there is none.
const std::string* commandIn(const std::vector<std::string>& arguments);

/// The parser would take a formula like "-x" for an option, a file "check" for a command and
/// brackets for a list. So all that follows the command, but the options, is marked, and so is
/// what follows "--".
std::vector<std::string> protectArguments(const std::vector<std::string>& arguments);

/// The argument as it was typed. Every option of every command passes its texts through it.
std::string unprotected(std::string argument);

/// The same for a file, which begins with "-" only after "--": throws CLI::ParseError for an
/// option that does not exist.
std::string unprotectedFile(std::string argument);

/// Adds an option whose text may be empty, which is not the same as not being given.
CLI::Option* addText(CLI::App& command, const std::string& name, std::optional<std::string>& text,
                     const std::string& description);

/// What is wrong with a command line that the parser refused, on one line: what it did not know is
/// named.
std::string complaintOf(const CLI::App& app, const CLI::ParseError& error);

/// A number of the command line, with either separator; throws CLI::ValidationError with a line
/// that says what is wrong.
double numberArgument(std::string_view name, std::string_view argument);

/// A decimal integer from `least` to `most`; throws likewise.
int integerArgument(std::string_view name, std::string_view argument, int least, int most);

/// The letter of a graph, "a" to "z"; throws likewise.
char letterArgument(std::string_view name, std::string_view argument);

}  // namespace zel
