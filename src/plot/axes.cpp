// An axis is drawn where its zero lies on the picture, and its marks where the range is 1 to 200
// units wide. Marks step by repeated addition from the first one, whose place keeps an offset on
// purpose; where they stand closer than anybody can see, every twip is marked instead.

#include "plot/axes.h"

#include <algorithm>
#include <cmath>

#include "engine/function_library.h"

namespace zel {
namespace {

constexpr double kNarrowestMarkedRange = 1;
constexpr double kWidestMarkedRange = 200;
constexpr double kHalfTick = 40;          // twips
constexpr double kClosestCounted = 0.01;  // twips from mark to mark

/// One range of the view with its mapping.
struct MarkedRange {
  double first;     // lower end, plane units
  double last;      // upper end
  double distance;  // from mark to mark
  double scale;     // twips per plane unit
};

/// Calls `tick` with each twip from the first mark to the last: marks closer than kClosestCounted
/// leave none out, and there may be too many of them to be counted one by one.
template <class Map, class Tick>
void forEachTwip(const MarkedRange& range, double first_mark, const Map& map, const Tick& tick) {
  const double count = std::floor((range.last - first_mark) / range.distance);
  if (count < 0) return;
  const double end = map(std::min(first_mark + count * range.distance, range.last));
  const double direction = end < map(first_mark) ? -1 : 1;
  for (double place = map(first_mark); (end - place) * direction >= 0; place += direction)
    tick(place);
}

/// Calls `tick` with the picture coordinate of each mark; marks on the same twip count once.
template <class Map, class Tick>
void forEachMark(const MarkedRange& range, double first_mark, const Map& map, const Tick& tick) {
  if (range.distance * range.scale < kClosestCounted) {
    forEachTwip(range, first_mark, map, tick);
    return;
  }
  double previous = std::nan("");
  for (double mark = first_mark; mark <= range.last;) {
    const double place = map(mark);
    if (place != previous) tick(place);
    previous = place;
    const double next = mark + range.distance;
    if (next == mark) return;
    mark = next;
  }
}

/// False when the distance cannot be divided by. A range drawn upside down has no marks, and
/// neither has a distance below 0, which leads away from the range.
template <class Map, class Tick>
bool drawMarks(const MarkedRange& range, const Map& map, const Tick& tick) {
  const auto first_mark = firstMark(range.first, range.last, range.distance);
  if (!first_mark) return true;
  if (!std::isfinite(*first_mark)) return false;
  if (range.distance > 0) forEachMark(range, *first_mark, map, tick);
  return true;
}

}  // namespace

std::optional<double> firstMark(double first, double last, double distance) {
  const double width = std::fabs(last - first);
  if (width < kNarrowestMarkedRange || width > kWidestMarkedRange) return std::nullopt;
  // From a positive end that is no multiple of the distance, the first mark is off the grid on
  // purpose: marks stand at the end plus its remainder.
  return first + FlooredModulo(std::fabs(first), distance);
}

bool drawAxes(const Viewport& viewport, const ScaleMarks& marks, Picture& picture) {
  const ViewSettings& view = viewport.view;
  const PictureSize& size = viewport.size;
  const double px = viewport.mapX(0);
  const double py = viewport.mapY(0);
  picture.beginAxes();
  if (0 <= px && px <= size.scale_width) {
    picture.line({px, 0}, {px, size.scale_height});
    const MarkedRange range = {view.yi, view.yf, marks.escala_y, viewport.yScale()};
    const auto map = [&](double y) { return viewport.mapY(y); };
    const auto tick = [&](double y) { picture.line({px - kHalfTick, y}, {px + kHalfTick, y}); };
    if (marks.y_shown && !drawMarks(range, map, tick)) return false;
  }
  if (0 <= py && py <= size.scale_height) {
    picture.line({0, py}, {size.scale_width, py});
    const MarkedRange range = {view.xi, view.xf, marks.escala_x, viewport.xScale()};
    const auto map = [&](double x) { return viewport.mapX(x); };
    const auto tick = [&](double x) { picture.line({x, py - kHalfTick}, {x, py + kHalfTick}); };
    if (marks.x_shown && !drawMarks(range, map, tick)) return false;
  }
  return true;
}

}  // namespace zel
