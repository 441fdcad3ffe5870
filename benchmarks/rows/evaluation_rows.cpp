// Every formula over the samples of one sweep, by the engine and beside it. Seconds are those of
// one value.
#include <algorithm>
#include <cmath>
#include <iomanip>
#include <limits>
#include <sstream>
#include <stdexcept>
#include <string>
#include <vector>

#include "benchmarks/formulas.h"
#include "benchmarks/rows/measure.h"
#include "benchmarks/rows/plain_doubles.h"
#include "benchmarks/rows/rows.h"
#include "engine/compiler.h"
#include "engine/engine.h"
#include "engine/reference/reference_engine.h"

namespace zel::bench {
namespace {

struct Contest {
  std::string_view row;
  int rounds;
  double tolerance;  // of the values beside, of each value or of 1
  Clock clock = Clock::thread;
};

constexpr Contest kSweep{"sweep", 201, 1e-9};
constexpr Contest kSweepOnAll{"sweep-on-all", 201, 1e-9, Clock::wall};
constexpr Contest kSingle{"single", 201, 1e-9};
constexpr Contest kReference{"reference", 41, 0};
constexpr Contest kSingleReference{"single-reference", 41, 0};

struct Samples {
  std::vector<double> xs;
  std::vector<double> values = std::vector<double>(kSamples);  // NaN where there is none
  std::vector<double> others = values;

  Samples() {
    double x = kFirstX;
    for (int i = 0; i < kSamples; ++i, x += kXStep) xs.push_back(x);
  }
};

bool agree(double value, double other, double tolerance) {
  if (!std::isfinite(value) || !std::isfinite(other))
    return std::isfinite(value) == std::isfinite(other);
  return std::fabs(value - other) <= tolerance * std::max(1.0, std::fabs(value));
}

void expectAgreement(std::string_view formula, const Samples& samples, double tolerance) {
  for (std::size_t i = 0; i < samples.xs.size(); ++i) {
    if (agree(samples.values[i], samples.others[i], tolerance)) continue;
    std::ostringstream what;
    what << std::setprecision(17) << formula << " is " << samples.values[i] << " and beside it "
         << samples.others[i] << " at " << samples.xs[i];
    throw std::runtime_error(what.str());
  }
}

/// Compares the values of both ways, and then their times.
void hold(const Contest& contest, std::string_view formula, const Samples& samples,
          const Task& measured, const Task& beside) {
  measured();
  beside();
  expectAgreement(formula, samples, contest.tolerance);
  const SideBySide seconds = measureSideBySide(contest.rounds, measured, beside, contest.clock);
  print(contest.row, formula, seconds.measured / kSamples, seconds.beside / kSamples);
}

/// One Evaluate after the other.
template <class Evaluator>
void evaluateSingly(Evaluator& evaluator, const std::string& code, const std::vector<double>& xs,
                    std::vector<double>& values) {
  std::string message;
  for (std::size_t i = 0; i < xs.size(); ++i)
    if (!evaluator.Evaluate(xs[i], values[i], code, message))
      values[i] = std::numeric_limits<double>::quiet_NaN();
}

void holdSweeps(const Contest& contest) {
  Samples samples;
  for (const std::string_view formula : kFormulas) {
    const std::string code = NormaliseFormula(formula);
    Engine engine;
    PlainDoubles plain(formula, samples.xs.data());
    hold(
        contest, formula, samples, [&] { engine.EvaluateSweep(code, samples.xs, samples.values); },
        [&] { plain.evaluateBulk(samples.others); });
  }
}

}  // namespace

void sweepRow() { holdSweeps(kSweep); }
void sweepOnAllRow() { holdSweeps(kSweepOnAll); }

void singleRow() {
  Samples samples;
  for (const std::string_view formula : kFormulas) {
    const std::string code = NormaliseFormula(formula);
    Engine engine;
    double x = 0;
    PlainDoubles plain(formula, &x);
    hold(
        kSingle, formula, samples,
        [&] { evaluateSingly(engine, code, samples.xs, samples.values); },
        [&] {
          for (std::size_t i = 0; i < samples.xs.size(); ++i) {
            x = samples.xs[i];
            samples.others[i] = plain.evaluate();
          }
        });
  }
}

void referenceRow() {
  Samples samples;
  for (const std::string_view formula : kFormulas) {
    const std::string code = NormaliseFormula(formula);
    Engine engine;
    ReferenceEngine reference;
    hold(
        kReference, formula, samples,
        [&] { engine.EvaluateSweep(code, samples.xs, samples.values); },
        [&] { evaluateSingly(reference, code, samples.xs, samples.others); });
  }
}

void singleReferenceRow() {
  Samples samples;
  for (const std::string_view formula : kFormulas) {
    const std::string code = NormaliseFormula(formula);
    Engine engine;
    ReferenceEngine reference;
    hold(
        kSingleReference, formula, samples,
        [&] { evaluateSingly(engine, code, samples.xs, samples.values); },
        [&] { evaluateSingly(reference, code, samples.xs, samples.others); });
  }
}

}  // namespace zel::bench
