#pragma once

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>

#include "engine/plan/plan_cache.h"
#include "engine/reference/parse_cache.h"
#include "engine/reference/reference_engine.h"

namespace zel {

/// Evaluates codes. One engine serves the whole program; its state (the values of the names, the
/// parse cache and the reference cache) carries over from one evaluation to the next, and
/// evaluations must not interleave.
class Engine {
 public:
  /// The longest code that is evaluated, after the expansion of its graph calls, in bytes. A longer
  /// one fails like an arithmetic fault.
  static constexpr std::size_t kMaxExpandedCode = ReferenceEngine::kMaxExpandedCode;

  /// Without graphs each call of one stands for an empty code.
  explicit Engine(GraphCodes graphs = {});
  Engine(const Engine&) = delete;
  Engine& operator=(const Engine&) = delete;

  /// Puts "p" back to "0".
  void InitEngine();

  /// Values must be finite. "t" is an empty text until it is set first, which reads as 0.
  void SetX(double value);
  void SetT(double value);
  void SetP(double value);
  /// "p" as a number; 0 when its text is empty.
  double GetP() const;

  /// The value of a code at x; trigonometric functions take degrees. False means that the code is
  /// undefined there: `message` says why, in the current language, and `result` is unchanged.
  bool Evaluate(double x, double& result, std::string_view code, std::string& message);

  /// The values of a code at many x, which are exactly what Evaluate gives at one after the other;
  /// it leaves the engine as they would. A value is NaN where the code is undefined; there are no
  /// messages. `values` has a place for each x.
  void EvaluateSweep(std::string_view code, std::span<const double> xs, std::span<double> values);

  /// The points of a parametric curve: for each t, one after the other, what SetT(t), Evaluate of
  /// `code_x` at t and Evaluate of `code_y` at t give. Otherwise as EvaluateSweep; every t is
  /// finite.
  void EvaluateCurve(std::string_view code_x, std::string_view code_y, std::span<const double> ts,
                     std::span<double> xs, std::span<double> ys);

  const ParseCache& parseCache() const { return reference_.parseCache(); }

 private:
  /// What the parse cache is in for when the last code is evaluated next.
  enum class State {
    unknown,    // not looked at yet
    replaying,  // it is valid for the code and at its first slot: plan_ is what it holds
    recording,  // it is not valid, and at its first slot
    exhausted,  // it is beyond its last slot
    mixed,      // only the reference knows
  };

  /// The first steps of an evaluation: the code's expansion, its plan and the state. False when the
  /// expansion outgrew its limit.
  bool select(std::string_view code);
  bool expand(std::string_view code);
  State findState(std::string_view code);

  /// Evaluate; without a message if there is no place for one.
  bool evaluate(double x, double& result, std::string_view code, std::string* message);
  bool evaluateByReference(double x, double& result, std::string_view code, std::string* message);
  bool evaluateByPlan(double x, double& result, std::string_view code, std::string* message);
  PlanOutcome evaluateStrictly(const PreparedPlan& prepared, double x, double t) const;
  /// Leaves the parse cache and the state as an evaluation with this outcome does.
  void settle(const PlanOutcome& outcome, std::string_view code);

  bool canRunBlocks(const PreparedPlan* prepared) const;
  /// Runs the next block of a sweep as far as it can; the number of values that it gave.
  std::size_t sweepBlock(std::string_view code, std::span<const double> xs,
                         std::span<double> values);
  /// Leaves everything as the evaluations of the block do; the number of values that it is true
  /// of, 0 where the block has to be evaluated one by one.
  std::size_t settleBlock(const BlockProgram::Report& report, std::string_view code,
                          std::span<const double> xs, std::span<const double> all_values);
  std::size_t curveBlock(std::string_view code_x, std::string_view code_y,
                         std::span<const double> ts, std::span<double> xs, std::span<double> ys);
  /// Afterwards clean_plan_ is the one of `code_y`, as before.
  void settleCurve(const PreparedPlan& plan_x, std::string_view code_y, std::span<const double> ts,
                   std::span<const double> xs, std::span<const double> ys);

  ReferenceEngine reference_;
  PlanCache plans_;
  std::shared_ptr<PreparedPlan> clean_plan_;  // of the last code, when it is recorded; may be none
  std::shared_ptr<PreparedPlan> plan_;        // the one that the state is about
  State state_ = State::unknown;
  int mixed_replays_ = 0;  // so many in a row
  NameValues names_;
  bool has_readable_names_ = true;
  std::optional<double> untold_t_;  // not given to the reference yet
  std::optional<double> untold_p_;
};

/// NormaliseFormula, then Evaluate.
bool EvaluateFormula(Engine& engine, double x, double& result, std::string_view formula,
                     std::string& message);

}  // namespace zel
