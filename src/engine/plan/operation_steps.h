#pragma once

#include <cmath>
#include <limits>
#include <optional>

#include "engine/function_library.h"
#include "engine/gamma_steps.h"
#include "engine/plan/plan.h"
#include "numbers/elementary/second_stage.h"

/// One operation on doubles, before the rounding to 15 digits, with its kind known to the compiler:
/// what the function library gives, bit for bit, and no finite number where that fails. Functions
/// of two stages take the first one where it is sure; so a lane of a block and a single value
/// agree.
namespace zel {

/// Stands for a value that is not there.
inline constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// The function of one number that an operation of this kind is; nothing for the others.
constexpr std::optional<Elementary> elementaryOf(Kind kind) {
  switch (kind) {
    case Kind::logarithm: return Elementary::natural_logarithm;
    case Kind::decimal_logarithm: return Elementary::decimal_logarithm;
    case Kind::exponential: return Elementary::exponential;
    case Kind::sine: return Elementary::sine;
    case Kind::cosine: return Elementary::cosine;
    case Kind::tangent: return Elementary::tangent;
    case Kind::arc_tangent: return Elementary::arc_tangent;
    default: return std::nullopt;
  }
}

/// Whether the value comes in two stages, of which the first one is nearly always sure.
constexpr bool hasStages(Kind kind) {
  return kind == Kind::power || kind == Kind::cube || kind == Kind::cube_root ||
         kind == Kind::factorial || elementaryOf(kind).has_value();
}

/// What the function is applied to: radians, of an operand in degrees. That of the arc tangent is
/// scaled likewise.
template <Kind kind>
ZEL_ALWAYS_INLINE double argumentOf(double operand) {
  constexpr bool kTakesDegrees = kind == Kind::sine || kind == Kind::cosine ||
                                 kind == Kind::tangent || kind == Kind::arc_tangent;
  return kTakesDegrees ? operand * kPi / 180 : operand;
}

inline constexpr double kThird = 1.0 / 3.0;

template <Kind kind, class Arithmetic>
ZEL_ALWAYS_INLINE Candidate firstStageOf(double left, double right) {
  if constexpr (kind == Kind::power)
    return powerCandidate<Arithmetic>(left, right);
  else if constexpr (kind == Kind::cube)
    return cubeCandidate<Arithmetic>(left);
  else if constexpr (kind == Kind::cube_root)
    return powerCandidate<Arithmetic>(right, kThird);
  else if constexpr (kind == Kind::factorial)
    return factorialCandidate<Arithmetic>(left);
  else
    return firstStage<*elementaryOf(kind), Arithmetic>(argumentOf<kind>(right));
}

template <Kind kind>
double settledOf(double left, double right) {
  if (std::isnan(left) || std::isnan(right)) return kNone;
  if constexpr (kind == Kind::power || kind == Kind::cube) return settlePower(left, right);
  if constexpr (kind == Kind::cube_root) return settlePower(right, kThird);
  if constexpr (kind == Kind::factorial) {
    const Computed computed = ComputeOperator(left, right, '#');
    return computed.failure == Failure::none ? computed.value : kNone;
  }
  if constexpr (elementaryOf(kind).has_value()) {
    const double argument = argumentOf<kind>(right);
    return std::isfinite(argument) ? settle(*elementaryOf(kind), argument) : kNone;
  }
}

/// What ComputeOperator gives for an operation of this kind, before the rounding; something that is
/// no finite number where it fails. The operands are finite.
template <Kind kind, class Arithmetic>
ZEL_ALWAYS_INLINE double compute(double left, double right, char op) {
  if constexpr (hasStages(kind)) {
    const Candidate candidate = firstStageOf<kind, Arithmetic>(left, right);
    if (candidate.isSure()) [[likely]]
      return candidate.value;
    return settledOf<kind>(left, right);
  }
  if constexpr (kind == Kind::add) return left + right;
  if constexpr (kind == Kind::subtract) return left - right;
  if constexpr (kind == Kind::multiply) return left * right;
  if constexpr (kind == Kind::divide) return left / right;
  if constexpr (kind == Kind::square) return left * left;
  if constexpr (kind == Kind::absolute) return std::fabs(right);
  if constexpr (kind == Kind::sign) return right > 0 ? 1 : right < 0 ? -1 : 0;
  if constexpr (kind == Kind::square_root) return std::sqrt(right);
  if constexpr (kind == Kind::reciprocal) return 1 / right;
  if constexpr (kind == Kind::other) {
    const Computed computed = ComputeOperator(left, right, op);
    return computed.failure == Failure::none ? computed.value : kNone;
  }
}

/// Calls `visit` with the kind as a constant.
template <class Visit>
ZEL_ALWAYS_INLINE auto withKind(Kind kind, const Visit& visit) {
  using enum Kind;
#define ZEL_CASE(name) \
  case name: return visit.template operator()<name>()
  switch (kind) {
    ZEL_CASE(add);
    ZEL_CASE(subtract);
    ZEL_CASE(multiply);
    ZEL_CASE(divide);
    ZEL_CASE(power);
    ZEL_CASE(square);
    ZEL_CASE(cube);
    ZEL_CASE(absolute);
    ZEL_CASE(sign);
    ZEL_CASE(logarithm);
    ZEL_CASE(decimal_logarithm);
    ZEL_CASE(exponential);
    ZEL_CASE(square_root);
    ZEL_CASE(cube_root);
    ZEL_CASE(reciprocal);
    ZEL_CASE(sine);
    ZEL_CASE(cosine);
    ZEL_CASE(tangent);
    ZEL_CASE(arc_tangent);
    ZEL_CASE(factorial);
    default: return visit.template operator()<other>();
  }
#undef ZEL_CASE
}

}  // namespace zel
