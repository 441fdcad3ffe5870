#include "cli/arguments.h"

#include <array>

#include "base/number_text.h"

namespace zel {
namespace {

constexpr char kMark = '\x01';
constexpr std::array<std::string_view, 2> kShortOptions = {"-o", "-h"};

bool needsProtection(std::string_view argument) {
  if (argument.starts_with('[')) return true;
  if (argument.size() < 2 || argument[0] != '-' || argument[1] == '-') return false;
  return std::ranges::find(kShortOptions, argument) == kShortOptions.end();
}

}  // namespace

std::vector<std::string> protectArguments(const std::vector<std::string>& arguments) {
  std::vector<std::string> result;
  bool options_ended = false;
  for (const std::string& argument : arguments) {
    if (!options_ended && argument == "--")
      options_ended = true;
    else if (options_ended || needsProtection(argument))
      result.push_back(kMark + argument);
    else
      result.push_back(argument);
  }
  return result;
}

std::string_view unprotected(std::string_view argument) {
  if (argument.starts_with(kMark)) argument.remove_prefix(1);
  return argument;
}

double numberArgument(std::string_view name, std::string_view argument) {
  const std::string_view text = unprotected(argument);
  const auto number = readNumber(text);
  if (!number)
    throw CLI::ValidationError(std::string(name), "'" + std::string(text) + "' is not a number");
  return *number;
}

}  // namespace zel
