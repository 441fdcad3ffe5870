#pragma once

#include "engine/function_library.h"
#include "numbers/elementary/logarithm_steps.h"
#include "numbers/elementary/power_steps.h"

/// The series of LnGamma (Lanczos 1964, with the parameter 5 and six terms), for the function
/// library and for loops over lanes.
namespace zel {

/// ln(gamma(v)) = ln(argument) - rest.
struct GammaSeries {
  double argument;
  double rest;
};

/// `logarithm` is that of v + 5.5. Where v is a pole, the argument is not finite.
ZEL_ALWAYS_INLINE GammaSeries gammaSeries(double v, double logarithm) {
  double y = v;
  double ser = 1.00000000019001;
  // Not a loop: it would keep the loop over the lanes from becoming vectors.
  ser += 76.1800917294715 / (y += 1);
  ser += -86.5053203294168 / (y += 1);
  ser += 24.0140982408309 / (y += 1);
  ser += -1.23173957245015 / (y += 1);
  ser += 0.00120865097386618 / (y += 1);
  ser += -5.395239384953E-06 / (y + 1);
  return {2.506628274631 * ser / v, v + 5.5 - (v + 0.5) * logarithm};
}

/// The factorial of a number that is not whole, e^LnGamma(v + 1) as the function library has it; in
/// doubt for all other numbers, and where one of its steps is.
template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate factorialCandidate(double v) {
  const Candidate first = naturalLogarithmCandidate<Arithmetic>(v + 1 + 5.5);
  const GammaSeries series = gammaSeries(v + 1, first.value);
  const Candidate second = naturalLogarithmCandidate<Arithmetic>(series.argument);
  const double whole = (v + kWholeNumbers) - kWholeNumbers;
  return powerCandidate<Arithmetic>(kEuler, second.value - series.rest)
      .sureOnlyIf(first.isSure())
      .sureOnlyIf(second.isSure())
      .sureOnlyIf(v != whole)
      .sureOnlyIf(v > 0)
      .sureOnlyIf(v <= kLargestFactorial);
}

}  // namespace zel
