// A plan for one x: its operations one after the other over an array of values, each rounded to 15
// digits as the text would. They are those of the blocks, so that one evaluation and a lane of a
// sweep give the same bits.

#include "engine/plan/scalar_program.h"

#include <cmath>

#include "engine/plan/operation_steps.h"

namespace zel {
namespace {

struct PlainSteps {
  using Arithmetic = PlainArithmetic;
  static bool round(double& value, DecadeGuess&) {
    if (!std::isfinite(value)) return false;
    value = roundAny<PlainArithmetic>(value);
    return std::isfinite(value);
  }
};

#if ZEL_HAS_TARGETS
struct FusedSteps {
  using Arithmetic = FusedArithmetic;
  /// The rounding of a value that was not where it was guessed to be; not finite where it is none.
  [[gnu::noinline]] ZEL_TARGET_V3 static double roundElsewhere(double value, DecadeGuess& guess) {
    if (!std::isfinite(value)) return kNone;
    guess.moveTo(value);
    return guess.holds(value) ? guess.round(value) : roundAny<FusedArithmetic>(value);
  }
  static ZEL_ALWAYS_INLINE bool round(double& value, DecadeGuess& guess) {
    if (guess.holds(value)) [[likely]] {
      value = guess.round(value);
      return true;
    }
    value = roundElsewhere(value, guess);
    return std::isfinite(value);
  }
};
#endif

}  // namespace

template <class Steps>
ZEL_ALWAYS_INLINE double ScalarProgram::run(ScalarProgram& program, double x, double t, double p) {
  double* const values = program.values_.data();
  if (!Steps::round(x, program.guess_of_x_)) return kNone;
  values[Plan::kX] = x;
  values[Plan::kT] = t;
  values[Plan::kP] = p;
  std::uint32_t last = Plan::kX;
  double value = x;
  for (Step& step : program.steps_) {
    const Operation& operation = step.operation;
    DecadeGuess& guess = step.guess;
    // What was computed last comes sooner from its register than from memory.
    const double left = operation.left == last ? value : values[operation.left];
    const double right = operation.right == last ? value : values[operation.right];
    value = withKind(operation.kind, [&]<Kind kind>() ZEL_INLINE_LAMBDA {
      return compute<kind, typename Steps::Arithmetic>(left, right, operation.op);
    });
    if (!Steps::round(value, guess)) return kNone;
    last = operation.result;
    values[last] = value;
  }
  return program.result_ == last ? value : values[program.result_];
}

double ScalarProgram::runPlain(ScalarProgram& program, double x, double t, double p) {
  return run<PlainSteps>(program, x, t, p);
}

#if ZEL_HAS_TARGETS
ZEL_TARGET_V3 double ScalarProgram::runFused(ScalarProgram& program, double x, double t, double p) {
  return run<FusedSteps>(program, x, t, p);
}
#endif

double ScalarProgram::giveUp(ScalarProgram&, double, double, double) { return kNone; }

ScalarProgram::Run ScalarProgram::runFor(const Plan& plan, InstructionSet set) {
  if (!plan.isPlain()) return giveUp;
#if ZEL_HAS_TARGETS
  if (set != InstructionSet::baseline) return runFused;
#endif
  static_cast<void>(set);
  return runPlain;
}

ScalarProgram::ScalarProgram(const Plan& plan, InstructionSet set)
    : values_(plan.values()), result_(plan.result()), run_(runFor(plan, set)) {
  for (const Operation& operation : plan.operations()) steps_.push_back({operation, {}});
}

}  // namespace zel
