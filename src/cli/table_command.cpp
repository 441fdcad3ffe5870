#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console/progress.h"
#include "cli/session.h"
#include "cli/table_rows.h"
#include "plot/curves/parameter_range.h"

namespace zel {
namespace {

struct TableOptions {
  std::string file;
  std::string graph;
  std::string from;
  std::string to;
  std::string step;
  std::string p = "0";
  bool json = false;
};

/// A step below 0 leads from the first value down to the last.
template <class Visit>
void countDown(const ParameterRange& range, const Visit& visit) {
  const ParameterRange mirrored = {-range.inicio, -range.fin, -range.variacion};
  forEachParameter(mirrored, [&](double value) { return visit(0 - value); });  // not -value: no -0
}

/// The values of a graph at each of its x, or t where it is parametric.
class Values {
 public:
  Values(Engine& engine, const GraphDef& def) : engine_(engine), is_curve_(def.tipo == 'T') {
    if (is_curve_)
      codes_ = {parameter(def, "codigo_xt"), parameter(def, "codigo_yt")};
    else
      codes_ = {def.codigo};
  }

  const std::vector<std::optional<double>>& at(double value) {
    if (is_curve_) engine_.SetT(value);
    values_.clear();
    for (const std::string& code : codes_) {
      double result = 0;
      const bool is_defined = engine_.Evaluate(value, result, code, message_);
      values_.push_back(is_defined ? std::optional(result) : std::nullopt);
    }
    return values_;
  }

 private:
  Engine& engine_;
  bool is_curve_;
  std::vector<std::string> codes_;
  std::vector<std::optional<double>> values_;
  std::string message_;
};

void writeRows(const ParameterRange& range, Values& values, TableRows& rows,
               const Console& console) {
  Progress progress(console.err);
  const auto write_row = [&](double value) {
    rows.write(value, values.at(value));
    progress.show([&] { return console.number(value); });
    return console.out.good();
  };
  if (range.variacion < 0)
    countDown(range, write_row);
  else
    forEachParameter(range, write_row);
  rows.end();
}

int table(const TableOptions& options, const Console& console) {
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
  Values values(session.engine, *def);
  const auto rows =
      options.json ? makeJsonRows(console.out, def->tipo == 'T') : makeTextRows(console);
  writeRows(range, values, *rows, console);
  return kExitDone;
}

}  // namespace

void addTable(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<TableOptions>();
  CLI::App* subcommand = app.add_subcommand("table", "Print the values of a graph");
  subcommand->add_option("FILE", options->file, "Document; - is standard input")
      ->type_name("")
      ->required();
  subcommand->add_option("--graph", options->graph, "The graph")->type_name("LETTER")->required();
  subcommand->add_option("--from", options->from, "First x (or t)")->type_name("A")->required();
  subcommand->add_option("--to", options->to, "Last x (or t)")->type_name("B")->required();
  subcommand->add_option("--step", options->step, "Step")->type_name("S")->required();
  subcommand->add_option("--p", options->p, "Value of p (0)")->type_name("NUMBER");
  subcommand->add_flag("--json", options->json, "Print an array of objects in the place of lines");
  subcommand->callback([&command, &console, options] {
    command = [&console, options] { return table(*options, console); };
  });
}

}  // namespace zel
