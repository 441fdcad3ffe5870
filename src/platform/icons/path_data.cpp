// Path data are letters, each followed by as many groups of numbers as there are; a second group
// behind an "M" draws a line. A lower-case letter counts from the current point. An arc is given by
// its two ends: where the axes are stretched so that its ellipse becomes the unit circle, the
// centre lies on the perpendicular bisector of the chord.

#include "platform/icons/path_data.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <numbers>

namespace zel {
namespace {

constexpr std::string_view kBetweenNumbers = " ,\t\r\n";

class PathReader {
 public:
  explicit PathReader(std::string_view data) : rest_(data) {}

  std::optional<QPainterPath> read() {
    for (skip(); !rest_.empty(); skip()) {
      const char letter = rest_.front();
      const bool is_command = (letter >= 'A' && letter <= 'Z') || (letter >= 'a' && letter <= 'z');
      if (is_command) {
        command_ = letter;
        rest_.remove_prefix(1);
      }
      // Data begin with a command, and none follow the end of a piece without one.
      const char drawn = command_;
      if (drawn == '\0' || !draw()) return std::nullopt;
      previous_ = drawn;
    }
    return path_;
  }

 private:
  void skip() {
    rest_.remove_prefix(std::min(rest_.find_first_not_of(kBetweenNumbers), rest_.size()));
  }

  template <std::size_t Count>
  bool take(std::array<double, Count>& numbers) {
    for (double& number : numbers) {
      skip();
      const auto [end, error] = std::from_chars(rest_.begin(), rest_.end(), number);
      if (error != std::errc() || !std::isfinite(number)) return false;
      rest_.remove_prefix(static_cast<std::size_t>(end - rest_.begin()));
    }
    return true;
  }

  /// The current point for a lower-case command, which its numbers count from.
  QPointF origin() const { return command_ >= 'a' ? path_.currentPosition() : QPointF(); }

  bool draw() {
    switch (command_) {
      case 'M':
      case 'm': return move();
      case 'L':
      case 'l': return lineTo();
      case 'H':
      case 'h': return across();
      case 'V':
      case 'v': return down();
      case 'C':
      case 'c': return curve();
      case 'S':
      case 's': return smoothCurve();
      case 'A':
      case 'a': return arc();
      case 'Z':
      case 'z': return close();
      default: return false;
    }
  }

  bool move() {
    std::array<double, 2> at{};
    if (!take(at)) return false;
    path_.moveTo(origin() + QPointF(at[0], at[1]));
    command_ = command_ == 'M' ? 'L' : 'l';
    return true;
  }

  bool lineTo() {
    std::array<double, 2> to{};
    if (!take(to)) return false;
    path_.lineTo(origin() + QPointF(to[0], to[1]));
    return true;
  }

  bool across() {
    std::array<double, 1> x{};
    if (!take(x)) return false;
    path_.lineTo(origin().x() + x[0], path_.currentPosition().y());
    return true;
  }

  bool down() {
    std::array<double, 1> y{};
    if (!take(y)) return false;
    path_.lineTo(path_.currentPosition().x(), origin().y() + y[0]);
    return true;
  }

  bool curve() {
    std::array<double, 2> first{};
    if (!take(first)) return false;
    return curveFrom(origin() + QPointF(first[0], first[1]));
  }

  /// The first control point mirrors the second one of the curve before.
  bool smoothCurve() {
    const QPointF here = path_.currentPosition();
    if (std::string_view("CcSs").find(previous_) == std::string_view::npos) return curveFrom(here);
    return curveFrom(2 * here - QPointF(path_.elementAt(path_.elementCount() - 2)));
  }

  bool curveFrom(QPointF first) {
    std::array<double, 4> rest{};
    if (!take(rest)) return false;
    path_.cubicTo(first, origin() + QPointF(rest[0], rest[1]),
                  origin() + QPointF(rest[2], rest[3]));
    return true;
  }

  /// Radii, turn, the two flags (the longer way, clockwise) and the end.
  bool arc() {
    std::array<double, 7> given{};
    if (!take(given) || given[0] <= 0 || given[1] <= 0 || given[2] != 0) return false;
    arcTo({given[0], given[1]}, given[3] != 0, given[4] != 0,
          origin() + QPointF(given[5], given[6]));
    return true;
  }

  void arcTo(QPointF radii, bool is_long, bool is_clockwise, QPointF to) {
    const QPointF here = path_.currentPosition();
    const QPointF half((here.x() - to.x()) / 2 / radii.x(), (here.y() - to.y()) / 2 / radii.y());
    const double length = std::hypot(half.x(), half.y());
    if (length == 0) return;                      // an arc to where it begins is none
    const double growth = std::max(1.0, length);  // an ellipse that is too small grows
    const double aside =
        std::sqrt(std::max(0.0, 1 / (length * length) - 1)) * (is_long == is_clockwise ? -1 : 1);
    const QPointF offset(aside * half.y(), -aside * half.x());  // of the centre from the middle
    const double start = degrees(half - offset);
    double sweep = degrees(-half - offset) - start;
    if (is_clockwise && sweep < 0) sweep += 360;
    if (!is_clockwise && sweep > 0) sweep -= 360;
    const double rx = radii.x() * growth;
    const double ry = radii.y() * growth;
    const QPointF centre =
        (here + to) / 2 + QPointF(offset.x() * radii.x(), offset.y() * radii.y());
    // Qt's angles run against the clock.
    path_.arcTo(QRectF(centre.x() - rx, centre.y() - ry, 2 * rx, 2 * ry), -start, -sweep);
  }

  static double degrees(QPointF direction) {
    return std::atan2(direction.y(), direction.x()) * 180 / std::numbers::pi;
  }

  bool close() {
    path_.closeSubpath();
    command_ = '\0';
    return true;
  }

  std::string_view rest_;
  QPainterPath path_;
  char command_ = '\0';   // what the next numbers belong to
  char previous_ = '\0';  // what the last ones belonged to
};

}  // namespace

std::optional<QPainterPath> readPathData(std::string_view data) { return PathReader(data).read(); }

}  // namespace zel
