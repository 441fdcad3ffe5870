#pragma once

#include "numbers/elementary/arc_tangent_steps.h"
#include "numbers/elementary/circular_steps.h"
#include "numbers/elementary/exponential_steps.h"
#include "numbers/elementary/logarithm_steps.h"
#include "numbers/elementary/power_steps.h"

namespace zel {

/// The functions of one number; angles are radians.
enum class Elementary {
  sine,
  cosine,
  tangent,
  arc_tangent,
  exponential,
  natural_logarithm,
  decimal_logarithm,
};

/// The first stage of a function, for any x.
template <Elementary function, class Arithmetic>
ZEL_ALWAYS_INLINE Candidate firstStage(double x) {
  using enum Elementary;
  if constexpr (function == sine) return sineCandidate<Arithmetic>(x);
  if constexpr (function == cosine) return cosineCandidate<Arithmetic>(x);
  if constexpr (function == tangent) return tangentCandidate<Arithmetic>(x);
  if constexpr (function == arc_tangent) return arcTangentCandidate<Arithmetic>(x);
  if constexpr (function == exponential) return exponentialCandidate<Arithmetic>(x);
  if constexpr (function == natural_logarithm) return naturalLogarithmCandidate<Arithmetic>(x);
  if constexpr (function == decimal_logarithm) return decimalLogarithmCandidate<Arithmetic>(x);
}

}  // namespace zel
