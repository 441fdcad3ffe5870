#include <array>
#include <cmath>
#include <optional>

#include "base/number_text.h"
#include "plot/function_sweep.h"

namespace zel {
namespace {

/// The left upper corner stands for a point that was never drawn: this is meant.
bool isZero(Point point) {
  return point == Point{};
}

/// Where the evaluation's success changed from one sample to the next: the points drawn last as of
/// the sample before the change and as of the sample after it.
struct OpenEnd {
  Point previous;
  Point current;
};

/// The open ends of one branch, where it meets the conic's vertical tangents. A later change of the
/// same direction replaces an earlier one.
struct BranchEnds {
  OpenEnd begins;  // from undefined to defined
  OpenEnd ends;    // from defined to undefined
};

BranchEnds sweepBranch(const CurveTools& tools, std::string_view code) {
  BranchEnds found;
  OpenEnd points;
  std::optional<bool> was_defined;  // the first sample is no change
  sweepSamples(tools, code, [&](const Sample& sample) {
    points.previous = points.current;
    if (sample.drawn)
      points.current = sample.point;
    if (was_defined && *was_defined != sample.defined)
      (sample.defined ? found.begins : found.ends) = points;
    was_defined = sample.defined;
  });
  return found;
}

/// Nothing is joined where one of the ends was not drawn.
void joinThrough(const CurveTools& tools, Point upper, Point vertex, Point lower) {
  if (isZero(upper) || isZero(lower))
    return;
  tools.picture.startPiece(upper);
  tools.picture.extendPiece(vertex);
  tools.picture.startPiece(vertex);
  tools.picture.extendPiece(lower);
}

using Branches = std::array<BranchEnds, 2>;

void joinClosedConic(const CurveTools& tools, const Branches& branches, Point left, Point right) {
  joinThrough(tools, branches[0].begins.current, left, branches[1].begins.current);
  joinThrough(tools, branches[0].ends.previous, right, branches[1].ends.previous);
}

/// The left arm ends at the left vertex, and the right arm begins at the right one.
void joinHyperbola(const CurveTools& tools, const Branches& branches, Point left, Point right) {
  joinThrough(tools, branches[0].ends.previous, left, branches[1].ends.previous);
  joinThrough(tools, branches[0].begins.current, right, branches[1].begins.current);
}

}  // namespace

bool sweepBranches(const CurveTools& tools, const GraphDef& def) {
  const Branches branches = {sweepBranch(tools, parameter(def, "codigo1")),
                             sweepBranch(tools, parameter(def, "codigo2"))};
  const auto h = readNumber(parameter(def, "h"));
  const auto k = readNumber(parameter(def, "k"));
  const auto a = mainParameter(def);
  if (!h || !k || !a)
    return false;
  const Point left = tools.viewport.map(*h - *a, *k);
  const Point right = tools.viewport.map(*h + *a, *k);
  for (const double coordinate : {left.x, left.y, right.x, right.y})
    if (!std::isfinite(coordinate))
      return false;
  if (def.tipo == 'H')
    joinHyperbola(tools, branches, left, right);
  else
    joinClosedConic(tools, branches, left, right);
  return true;
}

}  // namespace zel
