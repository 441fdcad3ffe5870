#include "cli/cli.h"

#include <algorithm>
#include <iostream>

#include <CLI/CLI.hpp>

#include "base/language.h"
#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console.h"
#include "files/system_language.h"

namespace zel {
namespace {

void addCommands(CLI::App& app, Console& console, Command& command) {
  for (const auto add : {addEvaluate, addCompile, addCheckFormula, addCheck, addResave, addTable,
                         addRender, addDrive, addSelfTest})
    add(app, console, command);
  for (CLI::App* subcommand : app.get_subcommands({})) {
    subcommand->fallthrough();
    for (CLI::Option* option : subcommand->get_options()) {
      if (option->get_items_expected_max() > 0) option->transform(unprotected);
    }
  }
  app.require_subcommand(1);
}

int runChecked(const Command& command, const Console& console) {
  const int status = command();
  console.out.flush();
  if (console.out.good()) return status;
  console.err << inLanguage("No se pudo escribir la salida.", "Cannot write the output.") << '\n';
  return kExitFailed;
}

}  // namespace

int runCli(const std::vector<std::string>& arguments, std::istream& in, std::ostream& out,
           std::ostream& err) {
  Console console{in, out, err};
  Command command;
  std::string language;
  CLI::App app("The headless companion of zel, a grapher of mathematical functions.", "zel-cli");
  app.set_version_flag("--version", "zel-cli 2.8");
  app.add_option("--lang", language, "Language of messages")->check(CLI::IsMember({"ES", "EN"}));
  app.add_flag("--point", console.decimal_point, "Print numbers with a decimal point");
  addCommands(app, console, command);

  auto reversed = protectArguments(arguments);
  std::ranges::reverse(reversed);  // as the parser wants them
  try {
    app.parse(std::move(reversed));
    if (language.empty()) language = systemSpeaksEnglish() ? "EN" : "ES";
    SetCurrentLanguage(language);
    return runChecked(command, console);
  } catch (const CLI::ParseError& error) {
    return app.exit(error, out, err) == 0 ? kExitDone : kExitUsage;
  } catch (const std::bad_alloc&) {
    return console.fail("Valores demasiado grandes para operar.");
  }
}

}  // namespace zel
