#include "engine/plan/plan.h"

#include <cmath>

#include "numbers/rounding.h"

namespace zel {

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
    if (computed.failure != Failure::none)
      return {computed.failure, 0, operation.position, left, operation.op, false};
    values[operation.result] = roundTo15Digits(computed.value);
  }
  const double value = values[result_];
  const bool readable = std::isfinite(value);
  return {readable ? Failure::none : Failure::fault, value, end_position_, 0, '+', !readable};
}

}  // namespace zel
