#pragma once

#include <optional>
#include <string_view>

#include "engine/engine.h"
#include "pictures/picture.h"
#include "plot/session/walk.h"
#include "plot/viewport.h"

namespace zel {

/// A point of a graph, in plane units.
struct PlanePoint {
  double x = 0;
  double y = 0;
};

/// A point outside of the view that is more sample steps away is not walked to: the walk begins at
/// the edge of the view instead.
inline constexpr double kLongestWalk = 100'000;

/// From x, step by step in one direction (1 or -1), to the next point of the code that is in the
/// view; a direction of 0 tries x alone. Nothing when the walk leaves the range or is ended, or a
/// step no longer advances.
std::optional<PlanePoint> traceStep(Engine& engine, std::string_view code, const Viewport& viewport,
                                    double x, int direction, Walk& walk);

/// The place from which a walk over x to the right begins: x, or the left end of the range when it
/// is too far to the left of it. `step` is above 0.
double walkStart(const Viewport& viewport, double x, double step);

/// The picture of the slope at a trace point, on the right or the left of the cursor.
enum class Slope { creciente_der, creciente_izq, decreciente_der, decreciente_izq, igual };

/// The key of its image.
std::string_view slopeKey(Slope slope);

/// The slope from one trace point's y to the next one's, on a side of the cursor.
enum class SlopeSide { right, left };
Slope slopeBetween(double from_y, double to_y, SlopeSide side);

}  // namespace zel
