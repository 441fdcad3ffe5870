#include "numbers/elementary/lanes_under_test.h"

#include "numbers/elementary/lanes.h"
#include "numbers/elementary/second_stage.h"

namespace zel::test {
namespace {

template <Elementary function, class Arithmetic>
ZEL_ALWAYS_INLINE void sweepChunks(std::span<const double> xs, std::span<double> values) {
  for (std::size_t start = 0; start < xs.size(); start += kLanesUnderTest) {
    const double* const x = xs.data() + start;
    computeLanes<kLanesUnderTest>(
        values.data() + start,
        [&](std::size_t i) ZEL_INLINE_LAMBDA { return firstStage<function, Arithmetic>(x[i]); },
        [&](std::size_t i) { return settle(function, x[i]); });
  }
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE void sweepFunction(Elementary function, std::span<const double> xs,
                                     std::span<double> values) {
  using enum Elementary;
  switch (function) {
    case sine: return sweepChunks<sine, Arithmetic>(xs, values);
    case cosine: return sweepChunks<cosine, Arithmetic>(xs, values);
    case tangent: return sweepChunks<tangent, Arithmetic>(xs, values);
    case arc_tangent: return sweepChunks<arc_tangent, Arithmetic>(xs, values);
    case exponential: return sweepChunks<exponential, Arithmetic>(xs, values);
    case natural_logarithm: return sweepChunks<natural_logarithm, Arithmetic>(xs, values);
    case decimal_logarithm: return sweepChunks<decimal_logarithm, Arithmetic>(xs, values);
  }
}

template <class Arithmetic>
ZEL_ALWAYS_INLINE void sweepPowers(std::span<const double> xs, std::span<const double> ys,
                                   std::span<double> values) {
  for (std::size_t start = 0; start < xs.size(); start += kLanesUnderTest) {
    const double* const x = xs.data() + start;
    const double* const y = ys.data() + start;
    computeLanes<kLanesUnderTest>(
        values.data() + start,
        [&](std::size_t i) ZEL_INLINE_LAMBDA { return powerCandidate<Arithmetic>(x[i], y[i]); },
        [&](std::size_t i) { return settlePower(x[i], y[i]); });
  }
}

#if ZEL_HAS_TARGETS
ZEL_TARGET_V3 void sweepV3(Elementary function, std::span<const double> xs,
                           std::span<double> values) {
  sweepFunction<FusedArithmetic>(function, xs, values);
}
ZEL_TARGET_V4 void sweepV4(Elementary function, std::span<const double> xs,
                           std::span<double> values) {
  sweepFunction<FusedArithmetic>(function, xs, values);
}
ZEL_TARGET_V3 void sweepPowerV3(std::span<const double> xs, std::span<const double> ys,
                                std::span<double> values) {
  sweepPowers<FusedArithmetic>(xs, ys, values);
}
ZEL_TARGET_V4 void sweepPowerV4(std::span<const double> xs, std::span<const double> ys,
                                std::span<double> values) {
  sweepPowers<FusedArithmetic>(xs, ys, values);
}
#endif

}  // namespace

void sweep(InstructionSet set, Elementary function, std::span<const double> xs,
           std::span<double> values) {
#if ZEL_HAS_TARGETS
  if (set == InstructionSet::v4) return sweepV4(function, xs, values);
  if (set == InstructionSet::v3) return sweepV3(function, xs, values);
#endif
  static_cast<void>(set);
  sweepFunction<PlainArithmetic>(function, xs, values);
}

void sweepPower(InstructionSet set, std::span<const double> xs, std::span<const double> ys,
                std::span<double> values) {
#if ZEL_HAS_TARGETS
  if (set == InstructionSet::v4) return sweepPowerV4(xs, ys, values);
  if (set == InstructionSet::v3) return sweepPowerV3(xs, ys, values);
#endif
  static_cast<void>(set);
  sweepPowers<PlainArithmetic>(xs, ys, values);
}

}  // namespace zel::test
