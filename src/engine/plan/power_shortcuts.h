#pragma once

#include <bit>
#include <cmath>
#include <cstdint>

#include "engine/plan/plan.h"
#include "numbers/rounding_steps.h"

/// Squares and cubes without the power function, where both give the same 15 digits for sure.
namespace zel {

/// How far std::pow may be from the exact power, in units of the last place.
#if defined(__GLIBC__)
inline constexpr double kPowerError = 0.6;  // the library itself states 0.54
#else
inline constexpr double kPowerError = 1;
#endif

constexpr bool hasShortcut(Kind kind) { return kind == Kind::square || kind == Kind::cube; }

/// A power and what is missing from it, good to about 100 bits.
template <Kind kind>
ZEL_ALWAYS_INLINE DoubleDouble shortcut(double base);

template <>
ZEL_ALWAYS_INLINE DoubleDouble shortcut<Kind::square>(double base) {
  const double power = base * base;
  return {power, std::fma(base, base, -power)};
}

template <>
ZEL_ALWAYS_INLINE DoubleDouble shortcut<Kind::cube>(double base) {
  const DoubleDouble square = shortcut<Kind::square>(base);
  const double product = square.high * base;
  const double rest = std::fma(square.high, base, -product) + square.low * base;
  const double power = product + rest;
  return {power, (product - power) + rest};
}

/// Whether std::pow could give a neighbour of `power.high` that has other 15 digits: the neighbour
/// must be near enough to the exact power, and a tie of the rounding must lie between the two.
/// `power.high` is a normal number of the exact decade with this scale.
ZEL_ALWAYS_INLINE bool isDoubtful(const DoubleDouble& power, double scale) {
  constexpr std::uint64_t kExponent = 0x7FF0000000000000;
  const auto bits = std::bit_cast<std::uint64_t>(power.high);
  const double last_place = std::bit_cast<double>(bits & kExponent) * 0x1p-52;
  const double last_place_below = std::bit_cast<double>((bits - 1) & kExponent) * 0x1p-52;
  const double whole = std::fma(power.high, scale, kWholeNumbers) - kWholeNumbers;
  const double remainder = std::fma(power.high, scale, -whole);
  constexpr double kHalf = 0.5 - 0x1p-20;
  return (std::fabs(power.low) >= (1 - kPowerError) * last_place_below) &
         (std::fabs(remainder) >= kHalf - last_place * scale);
}

}  // namespace zel
