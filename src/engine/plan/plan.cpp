// The strict evaluation of a plan: its operations from front to back by the function library
// itself, each value rounded to 15 digits, up to the first one that fails or cannot be read. It
// tells which failure it was where the programs, which do the same faster, have no value.

#include "engine/plan/plan.h"

#include <cmath>

#include "numbers/rounding.h"

namespace zel {
namespace {

PlanOutcome failureOf(Failure failure, const Operation& operation, double left) {
  return {.kind = failure == Failure::fault ? Outcome::Kind::fault : Outcome::Kind::error,
          .position = operation.position,
          .failure = failure,
          .left = left,
          .op = operation.op};
}

}  // namespace

PlanOutcome Plan::evaluateStrictly(const NameValues& names) const {
  std::vector<double> values = values_;
  values[kX] = names.x;
  values[kT] = names.t;
  values[kP] = names.p;
  for (const Operation& operation : operations_) {
    const double left = values[operation.left];
    const double right = values[operation.right];
    const bool readable = std::isfinite(left) && std::isfinite(right);
    const Computed computed =
        readable ? ComputeOperator(left, right, operation.op) : Computed{0, Failure::fault};
    if (computed.failure != Failure::none) return failureOf(computed.failure, operation, left);
    values[operation.result] = roundTo15Digits(computed.value);
  }
  if (rejection_) return {.kind = Outcome::Kind::error, .position = end_position_};
  const double value = values[result_];
  if (std::isfinite(value)) return {.value = value, .position = end_position_};
  return {.kind = Outcome::Kind::fault,
          .position = end_position_,
          .failure = Failure::fault,
          .at_the_end = true};
}

std::string Plan::message(const PlanOutcome& error) const {
  if (error.failure != Failure::none) return FailureMessage(error.failure, error.left, error.op);
  return SplitMessage(rejection_->failure, rejection_->text);
}

}  // namespace zel
