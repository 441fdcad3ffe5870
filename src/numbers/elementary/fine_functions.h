#pragma once

#include "numbers/elementary/functions.h"

/// Some functions in sums of two doubles throughout, for what their first stage leaves in doubt: of
/// that, one in a hundred thousand is left to 256 bits, which take twenty times as long.
namespace zel {

/// How far they may be from the exact value, relative to it, beside the error of the angle.
inline constexpr double kFineSineError = 0x1p-86;
inline constexpr double kFineTangentError = 0x1p-84;
inline constexpr double kFineArcTangentError = 0x1p-84;

SineCosine fineSineCosine(const ReducedAngle& angle);
DoubleDouble fineTangent(const ReducedAngle& angle);

/// From here to 2^64 products are exact.
inline constexpr double kLeastFineTangent = 0x1p-400;
DoubleDouble fineArcTangent(double magnitude);

}  // namespace zel
