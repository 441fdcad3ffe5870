#include <memory>
#include <ostream>
#include <string>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/progress.h"
#include "cli/session.h"
#include "plot/curves/parameter_range.h"

namespace zel {
namespace {

struct Options {
  std::string file;
  std::string graph;
  std::string from;
  std::string to;
  std::string step;
  std::string p = "0";
};

/// One row; a value that is undefined is empty.
class Rows {
 public:
  Rows(const Console& console, Engine& engine) : console_(console), engine_(engine) {}

  void writeFunction(const GraphDef& def, double x) {
    console_.out << console_.number(x) << ';' << valueAt(x, def.codigo) << '\n';
  }

  void writeParametric(const GraphDef& def, double t) {
    engine_.SetT(t);
    const std::string x = valueAt(t, parameter(def, "codigo_xt"));
    const std::string y = valueAt(t, parameter(def, "codigo_yt"));
    console_.out << console_.number(t) << ';' << x << ';' << y << '\n';
  }

 private:
  std::string valueAt(double x, std::string_view code) {
    double value = 0;
    return engine_.Evaluate(x, value, code, message_) ? console_.number(value) : std::string();
  }

  const Console& console_;
  Engine& engine_;
  std::string message_;
};

/// A step below 0 leads from the first value down to the last.
template <class Visit>
void countDown(const ParameterRange& range, const Visit& visit) {
  const ParameterRange mirrored = {-range.inicio, -range.fin, -range.variacion};
  forEachParameter(mirrored, [&](double value) { return visit(-value); });
}

int table(const Options& options, const Console& console) {
  const ParameterRange range = {numberArgument("--from", options.from),
                                numberArgument("--to", options.to),
                                numberArgument("--step", options.step)};
  const double p = numberArgument("--p", options.p);
  const char letter = letterArgument("--graph", options.graph);
  Session session;
  if (const int status = session.load(options.file, console)) return status;
  const auto def = session.graphInUse(letter, console);
  if (!def) return kExitFailed;

  session.engine.SetP(p);
  Rows rows(console, session.engine);
  Progress progress(console.err);
  const auto write_row = [&](double x) {
    if (def->tipo == 'T')
      rows.writeParametric(*def, x);
    else
      rows.writeFunction(*def, x);
    progress.show([&] { return console.number(x); });
    return console.out.good();
  };
  if (range.variacion < 0)
    countDown(range, write_row);
  else
    forEachParameter(range, write_row);
  return kExitDone;
}

}  // namespace

void addTable(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<Options>();
  CLI::App* subcommand = app.add_subcommand("table", "Print the values of a graph");
  subcommand->add_option("FILE", options->file, "Document; - is standard input")
      ->type_name("")
      ->required();
  subcommand->add_option("--graph", options->graph, "The graph")->type_name("LETTER")->required();
  subcommand->add_option("--from", options->from, "First x (or t)")->type_name("A")->required();
  subcommand->add_option("--to", options->to, "Last x (or t)")->type_name("B")->required();
  subcommand->add_option("--step", options->step, "Step")->type_name("S")->required();
  subcommand->add_option("--p", options->p, "Value of p (0)")->type_name("NUMBER");
  subcommand->callback([&command, &console, options] {
    command = [&console, options] { return table(*options, console); };
  });
}

}  // namespace zel
