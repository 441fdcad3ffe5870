#include <istream>
#include <memory>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

#include "base/language.h"
#include "cli/arguments.h"
#include "cli/commands.h"
#include "cli/console/input_output.h"
#include "cli/console/line_reader.h"
#include "cli/console/progress.h"
#include "cli/session.h"
#include "engine/compiler.h"
#include "graphs/field_validation.h"
#include "numbers/number_text.h"

namespace zel {
namespace {

struct EvaluateOptions {
  std::optional<std::string> document;
  std::string t = "1";
  std::string p = "0";
  bool is_code = false;
  bool batch = false;
  std::optional<std::string> formula;
  std::vector<std::string> xs;
};

std::string answer(const Console& console, Engine& engine, double x, std::string_view code) {
  double value = 0;
  std::string message;
  if (engine.Evaluate(x, value, code, message)) return "ok\t" + console.number(value);
  return "error\t" + onOneLine(message);
}

/// The code of the formula that came last, so that a formula that comes again is compiled once.
class Compiled {
 public:
  explicit Compiled(bool is_code) : is_code_(is_code) {}

  std::string_view codeOf(std::string_view formula) {
    if (is_code_) return formula;
    if (!formula_ || *formula_ != formula) {
      formula_ = formula;
      code_ = NormaliseFormula(formula);
    }
    return code_;
  }

 private:
  bool is_code_;
  std::optional<std::string> formula_;
  std::string code_;
};

/// Evaluates line after line on one engine, nothing reset in between.
class Batch {
 public:
  Batch(const Console& console, Engine& engine, bool is_code)
      : console_(console), engine_(engine), compiled_(is_code) {}

  std::string answerTo(std::string_view line) {
    const auto x_text = takeField(line);
    const auto formula = takeField(line);
    const auto t_text = takeField(line);
    const auto p_text = takeField(line);
    std::string refusal;
    const auto x = read(x_text, "X", refusal);
    const auto t = read(t_text, "T", refusal);
    const auto p = read(p_text, "P", refusal);
    if (!refusal.empty()) return "error\t" + onOneLine(refusal);
    if (x) x_ = *x;
    if (t) engine_.SetT(*t);
    if (p) engine_.SetP(*p);
    return answer(console_, engine_, x_, compiled_.codeOf(formula));
  }

 private:
  static std::string_view takeField(std::string_view& line) {
    const std::string_view field = line.substr(0, line.find('\t'));
    line.remove_prefix(std::min(line.size(), field.size() + 1));
    return field;
  }

  /// Nothing for an empty text, which keeps the value that stands.
  static std::optional<double> read(std::string_view text, const char* name, std::string& refusal) {
    if (text.empty()) return std::nullopt;
    const auto number = readNumber(text);
    if (number || !refusal.empty()) return number;
    const Field field = {std::string(text), name};
    if (checkNumeric({&field, 1}, refusal))
      refusal = Localize("Valores demasiado grandes para operar.");
    return std::nullopt;
  }

  const Console& console_;
  Engine& engine_;
  Compiled compiled_;
  double x_ = 0;
};

int runBatch(const EvaluateOptions& options, const Console& console, Engine& engine) {
  Batch batch(console, engine, options.is_code);
  LineReader reader(console.in);
  Progress progress(console.err);
  std::size_t count = 0;
  while (const auto line = reader.next()) {
    if (reader.wasTooLong())
      console.out << "error\t" << Localize("Valores demasiado grandes para operar.") << '\n';
    else
      console.out << batch.answerTo(*line) << '\n';
    if (!reader.hasMoreAtHand()) console.out.flush();  // whoever asks line by line gets an answer
    if (!console.out.good()) break;
    ++count;
    progress.show([&] { return std::to_string(count); });
  }
  return reader.hasFailed() ? console.failReading() : kExitDone;
}

std::vector<double> readXs(const EvaluateOptions& options) {
  if (options.batch == options.formula.has_value())
    throw CLI::ValidationError("evaluate", "give a formula and its x, or --batch");
  std::vector<double> xs;
  for (const std::string& x : options.xs) xs.push_back(numberArgument("X", x));
  if (!options.batch && xs.empty()) throw CLI::ValidationError("evaluate", "an X is missing");
  return xs;
}

int evaluate(const EvaluateOptions& options, const Console& console) {
  const double t = numberArgument("--t", options.t);
  const double p = numberArgument("--p", options.p);
  const std::vector<double> xs = readXs(options);
  if (options.batch && options.document) keepInputFree("--document", *options.document);
  Session session;
  if (const int status = session.loadIfGiven(options.document, console)) return status;
  session.engine.SetT(t);
  session.engine.SetP(p);
  if (options.batch) return runBatch(options, console, session.engine);

  Compiled compiled(options.is_code);
  const auto code = compiled.codeOf(*options.formula);
  Progress progress(console.err);
  for (const double x : xs) {
    console.out << answer(console, session.engine, x, code) << '\n';
    progress.show([&] { return console.number(x); });
  }
  return kExitDone;
}

}  // namespace

void addEvaluate(CLI::App& app, Console& console, Command& command) {
  const auto options = std::make_shared<EvaluateOptions>();
  CLI::App* evaluation = app.add_subcommand("evaluate", "Evaluate a formula at each X");
  addText(*evaluation, "--document", options->document, "Document whose graphs can be called")
      ->type_name("FILE");
  evaluation->add_option("--t", options->t, "Value of t (1)")->type_name("NUMBER");
  evaluation->add_option("--p", options->p, "Value of p (0)")->type_name("NUMBER");
  evaluation->add_flag("--code", options->is_code, "The formula is compiled code already");
  evaluation->add_flag("--batch", options->batch, "Read lines X<TAB>FORMULA[<TAB>T<TAB>P]");
  addText(*evaluation, "FORMULA", options->formula, "What is evaluated")->type_name("");
  evaluation->add_option("X", options->xs, "Where it is evaluated")->type_name("");
  evaluation->callback([&command, &console, options] {
    command = [&console, options] { return evaluate(*options, console); };
  });
}

}  // namespace zel
