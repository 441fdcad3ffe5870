// A conic's branches are two functions that end where the root in their code fails. At each change
// between defined and undefined the point drawn last is kept, and afterwards the ends of both
// branches are joined through the conic's vertices. A hyperbola's left arm ends at its left vertex,
// a closed conic begins there.

#include <array>
#include <cmath>
#include <optional>

#include "numbers/number_text.h"
#include "plot/curves/function_sweep.h"

namespace zel {
namespace {

/// The left upper corner stands for a point that was never drawn: this is meant.
bool isZero(Point point) { return point == Point{}; }

/// The open ends of one branch, where it meets the conic's vertical tangents: the point drawn last
/// as of the sample at which the evaluation's success changed. A later change of the same direction
/// replaces an earlier one.
struct BranchEnds {
  Point begin;  // from undefined to defined
  Point end;    // from defined to undefined
};

BranchEnds sweepBranch(const CurveTools& tools, std::string_view code) {
  BranchEnds found;
  Point last;
  std::optional<bool> was_defined;  // the first sample is no change
  sweepSamples(tools, code, [&](const Sample& sample) {
    if (sample.drawn) last = sample.point;
    if (was_defined && *was_defined != sample.defined)
      (sample.defined ? found.begin : found.end) = last;
    was_defined = sample.defined;
  });
  return found;
}

/// Nothing is joined where one of the ends was not drawn.
void joinThrough(const CurveTools& tools, Point upper, Point vertex, Point lower) {
  if (isZero(upper) || isZero(lower)) return;
  tools.picture.startPiece(upper);
  tools.picture.extendPiece(vertex);
  tools.picture.startPiece(vertex);
  tools.picture.extendPiece(lower);
}

using Branches = std::array<BranchEnds, 2>;

void joinClosedConic(const CurveTools& tools, const Branches& branches, Point left, Point right) {
  joinThrough(tools, branches[0].begin, left, branches[1].begin);
  joinThrough(tools, branches[0].end, right, branches[1].end);
}

/// The left arm ends at the left vertex, and the right arm begins at the right one.
void joinHyperbola(const CurveTools& tools, const Branches& branches, Point left, Point right) {
  joinThrough(tools, branches[0].end, left, branches[1].end);
  joinThrough(tools, branches[0].begin, right, branches[1].begin);
}

}  // namespace

bool sweepBranches(const CurveTools& tools, const GraphDef& def) {
  const Branches branches = {sweepBranch(tools, parameter(def, "codigo1")),
                             sweepBranch(tools, parameter(def, "codigo2"))};
  const auto h = readNumber(parameter(def, "h"));
  const auto k = readNumber(parameter(def, "k"));
  const auto a = mainParameter(def);
  if (!h || !k || !a) return false;
  const Point left = tools.viewport.map(*h - *a, *k);
  const Point right = tools.viewport.map(*h + *a, *k);
  for (const double coordinate : {left.x, left.y, right.x, right.y})
    if (!std::isfinite(coordinate)) return false;
  if (def.tipo == 'H')
    joinHyperbola(tools, branches, left, right);
  else
    joinClosedConic(tools, branches, left, right);
  return true;
}

}  // namespace zel
