#pragma once

#include <cstdint>
#include <vector>

#include "engine/plan/plan.h"
#include "numbers/rounding_steps.h"

namespace zel {

/// A plan made ready for one evaluation after the other.
class ScalarProgram {
 public:
  explicit ScalarProgram(const Plan& plan, InstructionSet set = bestInstructionSet());

  /// The value of the code; `x` is as given, the other names are as their text reads. NaN where it
  /// has none, and where only Plan::evaluateStrictly can tell.
  double evaluate(double x, double t, double p) { return run_(*this, x, t, p); }

 private:
  struct Step {
    Operation operation;
    DecadeGuess guess;
  };
  using Run = double (*)(ScalarProgram& program, double x, double t, double p);

  template <class Arithmetic>
  static double run(ScalarProgram& program, double x, double t, double p);
  static double runPlain(ScalarProgram& program, double x, double t, double p);
  static double runFused(ScalarProgram& program, double x, double t, double p);
  static double giveUp(ScalarProgram& program, double x, double t, double p);
  static Run runFor(const Plan& plan, InstructionSet set);

  std::vector<double> values_;
  std::vector<Step> steps_;
  DecadeGuess guess_of_x_;
  std::uint32_t result_;
  Run run_;
};

}  // namespace zel
