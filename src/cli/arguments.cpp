#include "cli/arguments.h"

#include "numbers/number_text.h"

namespace zel {
namespace {

constexpr char kMark = '\x01';
bool needsProtection(std::string_view argument) {
  if (argument.starts_with('[')) return true;
  const bool is_dashed = argument.size() > 1 && argument[0] == '-' && argument[1] != '-';
  return is_dashed && argument != "-h" && !argument.starts_with("-o");
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

std::string unprotected(std::string argument) {
  if (argument.starts_with(kMark)) argument.erase(0, 1);
  return argument;
}

double numberArgument(std::string_view name, std::string_view argument) {
  const auto number = readNumber(argument);
  if (!number)
    throw CLI::ValidationError(std::string(name),
                               "'" + std::string(argument) + "' is not a number");
  return *number;
}

char letterArgument(std::string_view name, std::string_view argument) {
  if (argument.size() != 1 || argument[0] < 'a' || argument[0] > 'z')
    throw CLI::ValidationError(std::string(name), "give a letter from a to z");
  return argument[0];
}

}  // namespace zel
