#pragma once

#include <optional>

#include "pictures/picture.h"
#include "plot/viewport.h"

namespace zel {

/// The distances of the scale marks, in plane units, and which axis shows them.
struct ScaleMarks {
  double escala_x = 1;
  double escala_y = 1;
  bool x_shown = true;
  bool y_shown = true;

  bool operator==(const ScaleMarks&) const = default;
};

/// Where the marks of a range begin, in plane units; nothing on a range that is narrower than 1 or
/// wider than 200 units, and no number for a distance that cannot be divided by.
std::optional<double> firstMark(double first, double last, double distance);

/// Draws the y axis with its marks, then the x axis with its own, each where it lies on the
/// picture. Marks are drawn on ranges from 1 to 200 plane units. False, with what was drawn before
/// staying, when a distance is 0 or too small to divide by.
bool drawAxes(const Viewport& viewport, const ScaleMarks& marks, Picture& picture);

}  // namespace zel
