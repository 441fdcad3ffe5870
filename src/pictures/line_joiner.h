#pragma once

#include <optional>

#include "pictures/picture.h"

namespace zel {

/// Leaves out the points of a piece of curve that its neighbours make superfluous. Points are
/// floored to whole twips, so a straight line wavers by a twip; a run of points that one line
/// passes within a twip becomes that line, from its first point to its last.
class LineJoiner {
 public:
  /// Begins at a point.
  explicit LineJoiner(Point start) : corner_(start), last_(start) {}

  /// Goes on to the next point. The last point is given where the line turns there, and becomes the
  /// next corner.
  std::optional<Point> extendTo(Point next) {
    if (next == last_ || joins(next)) return std::nullopt;
    const Point turn = last_;
    const bool is_corner = turn != corner_;
    corner_ = turn;
    open(next);
    return is_corner ? std::optional(turn) : std::nullopt;
  }

  /// The point that the run has come to.
  Point last() const { return last_; }

 private:
  bool joins(Point next);
  void open(Point next);
  double along(Point point) const { return is_flat_ ? point.x - corner_.x : point.y - corner_.y; }
  double across(Point point) const { return is_flat_ ? point.y - corner_.y : point.x - corner_.x; }

  Point corner_;
  Point last_;
  bool is_flat_ = true;
  double length_ = 0;  // from the corner to the last point, along; negative to the left or upwards
  double least_ = 1;   // the slopes between which the line may go on; none at first
  double most_ = 0;
};

}  // namespace zel
