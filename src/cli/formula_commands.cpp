#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "base/text.h"
#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console/progress.h"
#include "cli/session.h"
#include "engine/compiler.h"
#include "engine/self_test.h"
#include "graphs/graph_builders.h"

namespace zel {
namespace {

struct FormulaOptions {
  std::optional<std::string> document;
  std::vector<std::string> formulas;
};

int compile(const FormulaOptions& options, const Console& console) {
  for (const std::string& formula : options.formulas)
    console.out << onOneLine(NormaliseFormula(formula)) << '\n';
  return kExitDone;
}

/// What the graph editor says of this text in the field of a function; empty when it takes it.
std::string refusalOf(const std::string& text, Engine& engine) {
  const auto caption = inLanguage("Declaración de la función", "Function");
  std::string message;
  checkFormulaField({stripRelationSigns(text), std::string(caption)}, engine, message);
  return message;
}

int checkFormulas(const FormulaOptions& options, const Console& console) {
  Session session;
  if (const int status = session.loadIfGiven(options.document, console)) return status;
  Progress progress(console.err);
  std::size_t count = 0;
  for (const std::string& formula : options.formulas) {
    const std::string refusal = refusalOf(formula, session.engine);
    if (refusal.empty())
      console.out << "ok\n";
    else
      console.out << "error\t" << onOneLine(refusal) << '\n';
    progress.show([&] { return std::to_string(++count); });
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
                            const std::shared_ptr<FormulaOptions>& options) {
  CLI::App* subcommand = app.add_subcommand(name, description);
  subcommand->add_option("FORMULA", options->formulas, "As it is typed")->type_name("")->required();
  return subcommand;
}

}  // namespace

void addCompile(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<FormulaOptions>();
  addFormulaCommand(app, "compile", "Print the code of each formula", options)
      ->callback([&command, &console, options] {
        command = [&console, options] { return compile(*options, console); };
      });
}

void addCheckFormula(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<FormulaOptions>();
  CLI::App* check =
      addFormulaCommand(app, "check-formula", "Say whether each formula may be declared", options);
  addText(*check, "--document", options->document, "Document whose graphs can be called")
      ->type_name("FILE");
  check->callback([&command, &console, options] {
    command = [&console, options] { return checkFormulas(*options, console); };
  });
}

void addSelfTest(CLI::App& app, Console& console, Command& command) {
  app.add_subcommand("self-test", "Run the self-test of the start-up")
      ->callback([&command, &console] { command = [&console] { return selfTest(console); }; });
}

}  // namespace zel
