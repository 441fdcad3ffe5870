// A trace goes by one sample step in a direction and past whatever is undefined or out of view,
// until it stands on the curve again or has left the range.

#include "plot/session/trace.h"

#include <array>
#include <string>

namespace zel {
namespace {

constexpr std::array<std::string_view, 5> kSlopeKeys = {
    "creciente_der", "creciente_izq", "decreciente_der", "decreciente_izq", "igual"};

/// Where a walk begins: not farther from the view than kLongestWalk steps. One that would not get
/// anywhere stays where it is.
double walkStartTowards(const Viewport& viewport, double x, double step, int direction) {
  if (x + direction * step == x) return x;
  const double edge = direction > 0 ? viewport.view.xi : viewport.view.xf;
  const double distance = direction * (edge - x);
  return distance > kLongestWalk * step ? edge : x;
}

bool hasPassed(const ViewSettings& view, double x, int direction) {
  return direction > 0 ? x > view.xf : x < view.xi;
}

}  // namespace

std::optional<PlanePoint> traceStep(Engine& engine, std::string_view code, const Viewport& viewport,
                                    double x, int direction, Walk& walk) {
  const double step = viewport.xStep();
  if (direction != 0) x = walkStartTowards(viewport, x, step, direction);
  std::string message;
  for (;;) {
    const double next = x + direction * step;
    if (direction != 0 && direction * (next - x) <= 0) return std::nullopt;
    x = next;
    double y = 0;
    if (engine.Evaluate(x, y, code, message) && viewport.isInside(x, y)) return PlanePoint{x, y};
    if (direction == 0 || hasPassed(viewport.view, x, direction)) return std::nullopt;
    if (!walk.goesOn()) return std::nullopt;
  }
}

double walkStart(const Viewport& viewport, double x, double step) {
  return walkStartTowards(viewport, x, step, 1);
}

std::string_view slopeKey(Slope slope) { return kSlopeKeys[static_cast<std::size_t>(slope)]; }

Slope slopeBetween(double from_y, double to_y, SlopeSide side) {
  const bool right = side == SlopeSide::right;
  if (to_y > from_y) return right ? Slope::creciente_der : Slope::creciente_izq;
  if (to_y < from_y) return right ? Slope::decreciente_der : Slope::decreciente_izq;
  return Slope::igual;
}

}  // namespace zel
