#pragma once

#include <cmath>
#include <limits>

#include "engine/function_library.h"
#include "engine/plan/plan.h"
#include "numbers/instruction_sets.h"

namespace zel {

/// Stands for a value that is not there.
inline constexpr double kNone = std::numeric_limits<double>::quiet_NaN();

/// What ComputeOperator gives for an operation of this kind, before the rounding; something that is
/// no finite number where it fails. The operands are finite.
template <Kind kind>
ZEL_ALWAYS_INLINE double compute(double left, double right, char op) {
  if constexpr (kind == Kind::add) return left + right;
  if constexpr (kind == Kind::subtract) return left - right;
  if constexpr (kind == Kind::multiply) return left * right;
  if constexpr (kind == Kind::divide) return left / right;
  // Not with a constant exponent: the compiler would make a product of it.
  if constexpr (kind == Kind::power || kind == Kind::square || kind == Kind::cube)
    return std::pow(left, right);
  if constexpr (kind == Kind::absolute) return std::fabs(right);
  if constexpr (kind == Kind::sign) return right > 0 ? 1 : right < 0 ? -1 : 0;
  if constexpr (kind == Kind::logarithm) return std::log(right);
  if constexpr (kind == Kind::decimal_logarithm) return std::log10(right);
  if constexpr (kind == Kind::exponential) return std::exp(right);
  if constexpr (kind == Kind::square_root) return std::sqrt(right);
  if constexpr (kind == Kind::reciprocal) return 1 / right;
  if constexpr (kind == Kind::sine) return std::sin(right * kPi / 180);
  if constexpr (kind == Kind::cosine) return std::cos(right * kPi / 180);
  if constexpr (kind == Kind::tangent) return std::tan(right * kPi / 180);
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
    ZEL_CASE(reciprocal);
    ZEL_CASE(sine);
    ZEL_CASE(cosine);
    ZEL_CASE(tangent);
    default: return visit.template operator()<other>();
  }
#undef ZEL_CASE
}

}  // namespace zel
