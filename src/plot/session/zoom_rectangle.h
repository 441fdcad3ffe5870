#pragma once

#include <cmath>

#include "pictures/picture.h"

namespace zel {

/// The outline of the view to come, while it is dragged. In twips.
class ZoomRectangle {
 public:
  /// Each side must be longer than this for the rectangle to become the view.
  static constexpr double kThreshold = 50;

  void start(Point corner) {
    left = corner.x;
    top = corner.y;
    width = 1;
    height = 1;
  }
  /// The corner never moves: a drag to the left or upwards makes the rectangle grow to the right or
  /// downwards, which is meant.
  void follow(Point mouse) {
    width = std::fabs(mouse.x - left);
    height = std::fabs(mouse.y - top);
  }
  bool isLargeEnough() const { return width > kThreshold && height > kThreshold; }

  bool operator==(const ZoomRectangle&) const = default;

  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;
};

}  // namespace zel
