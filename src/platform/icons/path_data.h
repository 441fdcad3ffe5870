#pragma once

#include <QPainterPath>
#include <optional>
#include <string_view>

namespace zel {

/// The path that the data of an SVG path element describe (its attribute "d"), in the same units.
/// Nothing where the data break the grammar or hold a command beside M, L, H, V, C, S, A, Z and
/// their lower-case forms, or an ellipse that is turned.
std::optional<QPainterPath> readPathData(std::string_view data);

}  // namespace zel
