#pragma once

/// How lines look on every picture, in twips.
namespace zel {

inline constexpr double kAxisWidth = 15;
inline constexpr double kCurveWidth = 22.5;

}  // namespace zel
