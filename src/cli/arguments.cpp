#include "cli/arguments.h"

#include <cmath>

#include "cli/console/console.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

constexpr char kMark = '\x01';
constexpr char kVerbatimMark = '\x02';  // of what follows "--"

bool isMarked(std::string_view argument) {
  return argument.starts_with(kMark) || argument.starts_with(kVerbatimMark);
}

/// "-" alone is a file.
bool isDashed(std::string_view argument) { return argument.size() > 1 && argument[0] == '-'; }

/// Only "render" has an option of one letter beside the help: elsewhere "-o(3)" is a formula.
bool isOption(std::string_view argument, std::string_view command) {
  if (argument.starts_with("--") || argument == "-h") return true;
  return command == "render" && argument.starts_with("-o");
}

class NoSuchOption : public CLI::ParseError {
 public:
  explicit NoSuchOption(const std::string& option)
      : CLI::ParseError("there is no option " + option.substr(0, option.find('=')), kExitUsage) {}
};

}  // namespace

const std::string* commandIn(const std::vector<std::string>& arguments) {
  for (std::size_t i = 0; i < arguments.size(); ++i) {
    if (arguments[i] == "--") return nullptr;
    if (arguments[i] == "--lang")
      ++i;
    else if (!isDashed(arguments[i]))
      return &arguments[i];
  }
  return nullptr;
}

std::vector<std::string> protectArguments(const std::vector<std::string>& arguments) {
  const std::string* const command = commandIn(arguments);
  std::vector<std::string> result;
  bool is_after_command = false;
  bool options_ended = false;
  for (const std::string& argument : arguments) {
    if (options_ended)
      result.push_back(kVerbatimMark + argument);
    else if (argument == "--")
      options_ended = true;
    else if (is_after_command && !isOption(argument, *command))
      result.push_back(kMark + argument);
    else
      result.push_back(argument);
    is_after_command = is_after_command || &argument == command;
  }
  return result;
}

std::string unprotected(std::string argument) {
  if (isMarked(argument)) argument.erase(0, 1);
  return argument;
}

std::string unprotectedFile(std::string argument) {
  const bool is_verbatim = argument.starts_with(kVerbatimMark);
  if (isMarked(argument)) argument.erase(0, 1);
  if (!is_verbatim && isDashed(argument)) throw NoSuchOption(argument);
  return argument;
}

CLI::Option* addText(CLI::App& command, const std::string& name, std::optional<std::string>& text,
                     const std::string& description) {
  const auto take = [&text](const std::string& given) { text = given; };
  return command.add_option_function<std::string>(name, take, description);
}

std::string complaintOf(const CLI::App& app, const CLI::ParseError& error) {
  const auto unknown = app.remaining(true);
  if (dynamic_cast<const NoSuchOption*>(&error) != nullptr) return error.what();
  if (unknown.empty())
    return app.get_subcommands().empty() ? std::string("a command is missing") : error.what();
  const std::string& first = unknown.front();
  const std::string argument = unprotected(first);
  if (isDashed(argument) && !first.starts_with(kVerbatimMark)) return NoSuchOption(argument).what();
  return "one argument too many: " + argument;
}

double numberArgument(std::string_view name, std::string_view argument) {
  const auto number = readNumber(argument);
  if (!number)
    throw CLI::ValidationError(std::string(name),
                               "'" + std::string(argument) + "' is not a number");
  return *number;
}

int integerArgument(std::string_view name, std::string_view argument, int least, int most) {
  const double number = numberArgument(name, argument);
  if (std::trunc(number) != number || number < least || number > most)
    throw CLI::ValidationError(std::string(name), "give an integer from " + std::to_string(least) +
                                                      " to " + std::to_string(most));
  return static_cast<int>(number);
}

char letterArgument(std::string_view name, std::string_view argument) {
  if (argument.size() != 1 || argument[0] < 'a' || argument[0] > 'z')
    throw CLI::ValidationError(std::string(name), "give a letter from a to z");
  return argument[0];
}

}  // namespace zel
