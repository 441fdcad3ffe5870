#pragma once

#include <array>

#include "engine/function_library.h"
#include "numbers/elementary/logarithm_steps.h"
#include "numbers/elementary/power_steps.h"

/// The series of LnGamma (Lanczos 1964), for the function library and for loops over lanes.
namespace zel {

/// ln(gamma(v)) = ln(argument) - rest.
struct GammaSeries {
  double argument;
  double rest;
};

/// `logarithm` is called once, with v + 5.5. Where v is a pole, the argument is not finite.
template <class Logarithm>
ZEL_ALWAYS_INLINE GammaSeries gammaSeries(double v, const Logarithm& logarithm) {
  constexpr std::array<double, 6> kCoefficients = {76.1800917294715,    -86.5053203294168,
                                                   24.0140982408309,    -1.23173957245015,
                                                   0.00120865097386618, -5.395239384953E-06};
  double ser = 1.00000000019001;
  double y = v;
  for (const double coefficient : kCoefficients) {
    y += 1;
    ser += coefficient / y;
  }
  const double tmp = v + 5.5;
  return {2.506628274631 * ser / v, tmp - (v + 0.5) * logarithm(tmp)};
}

/// The factorial of a number that is not whole, e^LnGamma(v + 1) as the function library has it; in
/// doubt for all other numbers, and where one of its steps is.
template <class Arithmetic>
ZEL_ALWAYS_INLINE Candidate factorialCandidate(double v) {
  bool is_sure = (v > 0) & (v <= kLargestFactorial) &
                 ((v + kWholeNumbers) - kWholeNumbers != v);
  const auto logarithm = [&is_sure](double x) ZEL_INLINE_LAMBDA {
    const Candidate candidate = naturalLogarithmCandidate<Arithmetic>(x);
    is_sure = is_sure & candidate.isSure();
    return candidate.value;
  };
  const GammaSeries series = gammaSeries(v + 1, logarithm);
  const double exponent = logarithm(series.argument) - series.rest;
  return powerCandidate<Arithmetic>(kEuler, exponent).sureOnlyIf(is_sure);
}

}  // namespace zel
