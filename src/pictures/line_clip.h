#pragma once

#include <algorithm>
#include <cmath>

/// A line is cut off at a box by the share of it that lies inside (Liang and Barsky 1984): each
/// pair of opposite edges narrows the share. Rounding may leave an end beside the box, so ends are
/// put into it.
namespace zel {

/// What lies beyond these places is cut off.
struct ClipBox {
  double left = 0;
  double top = 0;
  double right = 0;
  double bottom = 0;

  template <class Place>
  bool holds(Place place) const {
    return left <= place.x && place.x <= right && top <= place.y && place.y <= bottom;
  }
};

/// The share of a line in which one coordinate, going from `from` by `delta`, stays within bounds;
/// narrows [first, last]. False when nothing is left.
inline bool narrowShare(double from, double delta, double low, double high, double& first,
                        double& last) {
  if (delta == 0) return low <= from && from <= high;
  const double one = (low - from) / delta;
  const double other = (high - from) / delta;
  first = std::max(first, std::min(one, other));
  last = std::min(last, std::max(one, other));
  return first <= last;
}

/// Cuts a line off at the box. False when nothing of it is left, and where it cannot be reckoned
/// with.
template <class Place>
bool clipLine(Place& from, Place& to, const ClipBox& box) {
  if (box.holds(from) && box.holds(to)) return true;
  const Place delta = {to.x - from.x, to.y - from.y};
  if (!std::isfinite(delta.x) || !std::isfinite(delta.y)) return false;
  double first = 0;
  double last = 1;
  if (!narrowShare(from.x, delta.x, box.left, box.right, first, last) ||
      !narrowShare(from.y, delta.y, box.top, box.bottom, first, last))
    return false;
  // From the nearer end: the other one may be so far away that nothing is left of this one.
  const auto at = [&, start = from, end = to](double share) {
    const Place near = share < 0.5 ? start : end;
    const double way = share < 0.5 ? share : share - 1;
    return Place{std::clamp(near.x + way * delta.x, box.left, box.right),
                 std::clamp(near.y + way * delta.y, box.top, box.bottom)};
  };
  // The share of a far end may be rounded to all of the line.
  if (!box.holds(from)) from = at(first);
  if (!box.holds(to)) to = at(last);
  return true;
}

}  // namespace zel
