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
  /// The same for as many of the first x as can be had without keeping a user waiting, at least
  /// one where there is one; their number.
  std::size_t SweepPart(std::string_view code, std::span<const double> xs,
                        std::span<double> values);

  /// The points of a parametric curve: for each t, one after the other, what SetT(t), Evaluate of
  /// `code_x` at t and Evaluate of `code_y` at t give. Otherwise as SweepPart; every t is finite.
  std::size_t CurvePart(std::string_view code_x, std::string_view code_y,
                        std::span<const double> ts, std::span<double> xs, std::span<double> ys);

  /// What one evaluation of the last code costs, in bytes of its expansion. Between two looks at
  /// pending events there is room for kMostWork of that.
  std::size_t costOfLast() const { return reference_.expanded().size() + 1; }
  static constexpr std::size_t kMostWork = 262'144;

  const ParseCache& parseCache() const { return reference_.parseCache(); }

 private:
  /// The first steps of an evaluation: the code's expansion, its plan, and the parse cache made
  /// ready. False when the expansion outgrew its limit.
  bool select(std::string_view code);
  /// Whether a fault left the parse cache valid and in the middle of its record.
  bool readsOn() const {
    const ParseCache& cache = reference_.parseCache();
    return cache.position() != 1 && !cache.code().empty();
  }

  /// Evaluate; without a message if there is no place for one.
  bool evaluate(double x, double& result, std::string_view code, std::string* message);
  /// The evaluation after such a fault, which is the reference's.
  bool readOn(double x, double& result, std::string_view code, std::string* message);
  PlanOutcome evaluateByPlan(double x);
  static PlanOutcome evaluateStrictly(const Plan& plan, double x, double t, double p);
  /// Leaves the parse cache as an evaluation of the code with this outcome does.
  void settle(const PlanOutcome& outcome, std::string_view code);

  bool canRunBlocks(const Plan& plan) const;
  /// Runs the next block of a sweep as far as it can; the number of values that it gave. `work` is
  /// what that cost.
  std::size_t sweepBlock(std::string_view code, std::span<const double> xs,
                         std::span<double> values, std::size_t& work);
  /// Leaves everything as the evaluations of the block do, and gives the values that were read on
  /// after a fault; what that cost.
  std::size_t settleBlock(const BlockProgram::Report& report, std::string_view code,
                          std::span<const double> xs, std::span<double> values);
  std::size_t curveBlock(std::string_view code_x, std::string_view code_y,
                         std::span<const double> ts, std::span<double> xs, std::span<double> ys,
                         std::size_t& work);
  /// Afterwards plan_ is the one of `code_y`, as before.
  void settleCurve(const Plan& plan_x, std::string_view code_y, std::span<const double> ts,
                   std::span<const double> xs, std::span<const double> ys);

  ReferenceEngine reference_;
  PlanCache plans_;
  std::shared_ptr<PreparedPlan> plan_;  // of the last code; none if it outgrew its limit
  std::size_t recorded_ = 0;  // so many slots are known to hold what the last code records
  bool replays_ = false;      // the parse cache is valid for the last code and at its first slot
  NameValues names_;
  bool has_readable_names_ = true;
  std::optional<double> untold_t_;  // not given to the reference yet
  std::optional<double> untold_p_;
};

/// NormaliseFormula, then Evaluate.
bool EvaluateFormula(Engine& engine, double x, double& result, std::string_view formula,
                     std::string& message);

}  // namespace zel
