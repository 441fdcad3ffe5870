// A value comes in two stages: the first one's candidate where its rounding test is sure, otherwise
// what the second stage settles. A processor with a fused multiply-add runs the first stage with
// it; which candidates are in doubt may differ by that, the values never do.

#include "numbers/elementary/elementary.h"

#include "numbers/elementary/second_stage.h"

namespace zel {
namespace {

template <Elementary function, class Arithmetic>
ZEL_ALWAYS_INLINE double valueOf(double x) {
  const Candidate candidate = firstStage<function, Arithmetic>(x);
  if (candidate.isSure()) [[likely]]
    return candidate.value;
  return settle(function, x);
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE double powerOf(double x, double y) {
  const Candidate candidate = powerCandidate<Arithmetic>(x, y);
  if (candidate.isSure()) [[likely]]
    return candidate.value;
  return settlePower(x, y);
}

#if ZEL_HAS_TARGETS
template <Elementary function>
ZEL_TARGET_V3 double fused(double x) {
  return valueOf<function, FusedArithmetic>(x);
}

ZEL_TARGET_V3 double fusedPower(double x, double y) { return powerOf<FusedArithmetic>(x, y); }

const bool has_fused = bestInstructionSet() != InstructionSet::baseline;
#endif

template <Elementary function>
double value(double x) {
#if ZEL_HAS_TARGETS
  if (has_fused) [[likely]]
    return fused<function>(x);
#endif
  return valueOf<function, PlainArithmetic>(x);
}

}  // namespace

double sine(double radians) { return value<Elementary::sine>(radians); }
double cosine(double radians) { return value<Elementary::cosine>(radians); }
double tangent(double radians) { return value<Elementary::tangent>(radians); }
double arcTangent(double x) { return value<Elementary::arc_tangent>(x); }
double exponential(double x) { return value<Elementary::exponential>(x); }
double naturalLogarithm(double x) { return value<Elementary::natural_logarithm>(x); }
double decimalLogarithm(double x) { return value<Elementary::decimal_logarithm>(x); }

double power(double x, double y) {
#if ZEL_HAS_TARGETS
  if (has_fused) [[likely]]
    return fusedPower(x, y);
#endif
  return powerOf<PlainArithmetic>(x, y);
}

}  // namespace zel
