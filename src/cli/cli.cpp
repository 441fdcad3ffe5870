#include "cli/cli.h"

#include <algorithm>
#include <new>
#include <ostream>

#include <CLI/CLI.hpp>

#include "base/language.h"
#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console/console.h"
#include "cli/examples.h"
#include "files/system_language.h"

namespace zel {
namespace {

/// Hands the texts of all options over as they were typed.
void unprotectOptions(CLI::App& app) {
  for (CLI::Option* option : app.get_options()) {
    if (option->get_items_expected_max() == 0) continue;
    const bool is_file = option->check_name("FILE") || option->check_name("OUT");
    option->transform(is_file ? unprotectedFile : unprotected);
  }
}

void addCommands(CLI::App& app, Console& console, Command& command) {
  for (const auto add : {addEvaluate, addCompile, addCheckFormula, addCheck, addResave, addTable,
                         addRender, addDrive, addSelfTest})
    add(app, console, command);
  unprotectOptions(app);
  for (CLI::App* subcommand : app.get_subcommands({})) {
    subcommand->fallthrough();
    subcommand->group("Commands");
    subcommand->footer(std::string(examplesOf(subcommand->get_name())));
    unprotectOptions(*subcommand);
  }
  app.require_subcommand(1);
  app.footer("zel-cli COMMAND --help tells the options of a command, with examples.");
  app.get_formatter()->label("SUBCOMMAND", "COMMAND");
}

/// Nothing is done until all that was written has arrived.
int finish(int status, const Console& console) {
  console.out.flush();
  if (console.out.good()) return status;
  console.err << inLanguage("No se pudo escribir la salida.", "Cannot write the output.") << '\n';
  return kExitFailed;
}

int refuseLine(std::string_view complaint, const Console& console) {
  console.err << onOneLine(complaint) << '\n';
  return kExitUsage;
}

bool hasCommand(const CLI::App& app, const std::string& name) {
  return !app.get_subcommands([&](const CLI::App* one) { return one->get_name() == name; }).empty();
}

int runArguments(const std::vector<std::string>& arguments, Console& console) {
  SetCurrentLanguage(systemSpeaksEnglish() ? "EN" : "ES");
  Command command;
  std::string language;
  CLI::App app("The headless companion of zel, a grapher of mathematical functions.", "zel-cli");
  app.allow_windows_style_options(false);  // "/x" is a path everywhere
  app.set_version_flag("--version", "zel-cli 2.8");
  app.add_option("--lang", language, "Language of messages")
      ->check(CLI::IsMember({"ES", "EN"}))
      ->option_text("ES|EN");
  app.add_flag("--point", console.decimal_point, "Print numbers with a decimal point");
  addCommands(app, console, command);
  const std::string* const name = commandIn(arguments);
  if (name != nullptr && !hasCommand(app, *name))
    return refuseLine("there is no command " + *name, console);

  auto reversed = protectArguments(arguments);
  std::ranges::reverse(reversed);  // as the parser wants them
  try {
    app.parse(std::move(reversed));
    if (!language.empty()) SetCurrentLanguage(language);
    return finish(command(), console);
  } catch (const CLI::Success& asked) {  // for help, or the version
    app.exit(asked, console.out, console.err);
    return finish(kExitDone, console);
  } catch (const CLI::ParseError& error) {
    return refuseLine(complaintOf(app, error), console);
  }
}

}  // namespace

int runCli(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
           std::ostream& err) {
  Console console{in, out, err};
  try {
    return runArguments(arguments, console);
  } catch (const std::bad_alloc&) {
    return console.fail("Valores demasiado grandes para operar.");
  }
}

}  // namespace zel
