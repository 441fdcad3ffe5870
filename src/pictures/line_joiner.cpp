// A run of points grows as long as one line from its corner passes all of them within a tolerance,
// measured across the way that the run began by: up and down where it is rather flat. Each point
// lets through only some slopes; the line may go on while the slope of the next point is let
// through by all points before it, and while it moves away from the corner.
#include "pictures/line_joiner.h"

#include <algorithm>
#include <cmath>

namespace zel {
namespace {

constexpr double kTolerance = 1;  // twips

}  // namespace

/// False for coordinates that are too large to be reckoned with.
bool LineJoiner::joins(Point next) {
  const double length = along(next);
  const double slope = across(next) / length;
  const bool moves_away = length_ > 0 ? length > length_ : length < length_;
  if (!moves_away || !(least_ <= slope && slope <= most_)) return false;
  const double spread = kTolerance / std::fabs(length);
  least_ = std::max(least_, slope - spread);
  most_ = std::min(most_, slope + spread);
  length_ = length;
  last_ = next;
  return true;
}

void LineJoiner::open(Point next) {
  is_flat_ = std::fabs(next.x - corner_.x) >= std::fabs(next.y - corner_.y);
  length_ = along(next);
  const double slope = across(next) / length_;
  const double spread = kTolerance / std::fabs(length_);
  least_ = slope - spread;
  most_ = slope + spread;
  last_ = next;
}

}  // namespace zel
