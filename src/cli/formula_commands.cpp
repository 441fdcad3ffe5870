#include <memory>
#include <ostream>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/session.h"
#include "engine/compiler.h"
#include "engine/formula_check.h"
#include "engine/self_test.h"

namespace zel {
namespace {

struct Options {
  std::string document;
  std::vector<std::string> formulas;
};

int compile(const Options& options, const Console& console) {
  for (const std::string& formula : options.formulas)
    console.out << asLine(NormaliseFormula(formula)) << '\n';
  return kExitDone;
}

int checkFormulas(const Options& options, const Console& console) {
  Session session;
  if (const int status = session.loadIfGiven(options.document, console)) return status;
  for (const std::string& formula : options.formulas) {
    std::string message;
    if (CheckFormula(session.engine, formula, message))
      console.out << "ok\n";
    else
      console.out << "error\t" << onOneLine(message) << '\n';
  }
  return kExitDone;
}

int selfTest(const Console& console) {
  Session session;
  std::string report;
  if (!RunSelfTest(session.engine, report)) return console.fail(report);
  console.out << "ok\n";
  return kExitDone;
}

CLI::App* addFormulaCommand(CLI::App& app, const char* name, const char* description,
                            const std::shared_ptr<Options>& options) {
  CLI::App* subcommand = app.add_subcommand(name, description);
  subcommand->add_option("formula", options->formulas, "FORMULA...")->required();
  return subcommand;
}

}  // namespace

void addCompile(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<Options>();
  addFormulaCommand(app, "compile", "Print the code of each formula", options)
      ->callback([&command, &console, options] {
        command = [&console, options] { return compile(*options, console); };
      });
}

void addCheckFormula(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<Options>();
  CLI::App* check =
      addFormulaCommand(app, "check-formula", "Say whether each formula may be declared", options);
  check->add_option("--document", options->document, "Document whose graphs can be called");
  check->callback([&command, &console, options] {
    command = [&console, options] { return checkFormulas(*options, console); };
  });
}

void addSelfTest(CLI::App& app, Console& console, Command& command) {
  app.add_subcommand("self-test", "Run the self-test of the start-up")
      ->callback([&command, &console] { command = [&console] { return selfTest(console); }; });
}

}  // namespace zel
