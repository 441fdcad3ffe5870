// Points lie in one array, and steps say what the next so many of them are: that keeps a long curve
// at 16 bytes a point, and replaying it is one walk over both. Of a run of points that one line
// passes, the last one takes the place of the one before it. A list that would outgrow its bound is
// emptied rather than cut, because half a drawing looks like a whole one.

#include "pictures/drawing_list.h"

namespace zel {

void DrawingList::clear() {
  steps_.clear();
  points_.clear();
  is_full_ = false;
  layer_ = {};
  run_.reset();
}

void DrawingList::beginAxes() {
  run_.reset();
  begin({.kind = Kind::axes});
}

void DrawingList::line(Point from, Point to) {
  if (!isIn(Kind::lines)) begin({.kind = Kind::lines});
  addPoint(from);
  addPoint(to);
}

void DrawingList::beginGraph(char letter, std::int32_t colour) {
  run_.reset();
  begin({.kind = Kind::graph, .letter = letter, .colour = colour});
}

void DrawingList::startPiece(Point point) {
  begin({.kind = Kind::piece});
  addPoint(point);
  run_ = Run{LineJoiner(point)};
}

void DrawingList::extendPiece(Point point) {
  const bool goes_on = isIn(Kind::piece) || isIn(Kind::more_of_piece);
  if (!goes_on) begin({.kind = Kind::more_of_piece});
  const bool turns = !run_ || run_->joiner.extendTo(point).has_value();
  if (goes_on && !turns && run_->has_end && !is_full_) {
    points_.back() = point;
    return;
  }
  addPoint(point);
  if (run_)
    run_->has_end = true;
  else
    run_ = Run{LineJoiner(point)};
}

void DrawingList::dot(Point centre, double radius) {
  if (!isIn(Kind::dots) || steps_.back().radius != radius)
    begin({.kind = Kind::dots, .radius = radius});
  addPoint(centre);
}

void DrawingList::replay(Picture& picture) const {
  std::span<const Point> rest = points_;
  for (const Step& step : steps_) {
    replayStep(step, rest.first(step.points), picture);
    rest = rest.subspan(step.points);
  }
}

void DrawingList::replayStep(const Step& step, std::span<const Point> points, Picture& picture) {
  switch (step.kind) {
    case Kind::axes: picture.beginAxes(); break;
    case Kind::lines:
      for (std::size_t i = 0; i + 1 < points.size(); i += 2) picture.line(points[i], points[i + 1]);
      break;
    case Kind::graph: picture.beginGraph(step.letter, step.colour); break;
    case Kind::piece:
      picture.startPiece(points.front());
      for (const Point point : points.subspan(1)) picture.extendPiece(point);
      break;
    case Kind::more_of_piece:
      for (const Point point : points) picture.extendPiece(point);
      break;
    case Kind::dots:
      for (const Point point : points) picture.dot(point, step.radius);
      break;
  }
}

void DrawingList::begin(const Step& step) {
  if (!is_full_) steps_.push_back(step);
}

void DrawingList::addPoint(Point point) {
  if (is_full_) return;
  if (points_.size() == most_points_) {
    clear();
    points_.shrink_to_fit();
    steps_.shrink_to_fit();
    is_full_ = true;
    return;
  }
  points_.push_back(point);
  ++steps_.back().points;
}

}  // namespace zel
