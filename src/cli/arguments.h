#pragma once

#include <string>
#include <string_view>
#include <vector>

#include <CLI/CLI.hpp>

namespace zel {

/// Arguments that begin with "-" but name no option ("-x", "-2,5", "-(x+1)"), those in brackets and
/// all that follow "--" are formulas, numbers and files: they are marked so that the parser takes
/// them as they are.
std::vector<std::string> protectArguments(const std::vector<std::string>& arguments);

/// The argument as it was typed. Every option of every command passes its texts through it.
std::string unprotected(std::string argument);

/// A number of the command line, with either separator; throws CLI::ValidationError with a line
/// that says what is wrong.
double numberArgument(std::string_view name, std::string_view argument);

/// The letter of a graph, "a" to "z"; throws likewise.
char letterArgument(std::string_view name, std::string_view argument);

}  // namespace zel
