#pragma once

#include <array>
#include <cstdint>

#include "numbers/elementary/circular_steps.h"

/// Angles too large for the first stage's own reduction, after Payne and Hanek (1983): only those
/// bits of 2/pi are multiplied that make the fraction of a turn.
namespace zel {

/// An angle in quarter turns, modulo four: two bits before the point, the rest behind it. Good to
/// 2^-330.
using TurnBits = std::array<std::uint64_t, 6>;

/// For a finite angle from 1/2 on.
TurnBits turnBits(double radians);

/// The steps of the first stage and the rest, which is good to 2^-100, relative to it.
ReducedAngle reduceLargeAngle(double radians);

}  // namespace zel
