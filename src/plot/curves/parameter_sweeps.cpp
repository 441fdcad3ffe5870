// A parametric curve is evaluated in blocks and drawn sample by sample: the pen goes down once and
// stays down, so the curve comes back into the view as one line, and each sample in the view gets a
// dot. A family is the function sweep once for each value of p. Both go on until their flag is
// cleared.

#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <string>
#include <utility>

#include "plot/curves/curve.h"
#include "plot/curves/parameter_range.h"

namespace zel {
namespace {

constexpr double kDotRadius = 20;        // twips
constexpr std::size_t kCurveBlock = 64;  // samples that are evaluated in one go, or fewer

/// Draws a parametric curve sample by sample.
class CurveSweep {
 public:
  CurveSweep(const CurveTools& tools, const GraphDef& def)
      : tools_(tools), code_x_(parameter(def, "codigo_xt")), code_y_(parameter(def, "codigo_yt")) {}

  /// Takes the next t. False when the curve has been stopped.
  bool take(double t) {
    ts_[count_++] = t;
    return count_ < kCurveBlock || flush();
  }

  /// Draws what was taken.
  bool flush() {
    auto ts = std::span<const double>(ts_).first(std::exchange(count_, 0));
    std::array<double, kCurveBlock> xs;
    std::array<double, kCurveBlock> ys;
    while (!ts.empty()) {
      const std::size_t count = tools_.engine.CurvePart(
          code_x_, code_y_, ts, std::span(xs).first(ts.size()), std::span(ys).first(ts.size()));
      for (std::size_t i = 0; i < count; ++i)
        if (!drawSample(xs[i], ys[i])) return false;
      ts = ts.subspan(count);
    }
    return true;
  }

 private:
  bool drawSample(double x, double y) {
    const bool defined = !std::isnan(x) && !std::isnan(y);
    if (defined && tools_.viewport.isInside(x, y)) draw(tools_.viewport.map(x, y));
    tools_.screen.runPendingEvents();
    return tools_.in_progress.isSet();
  }

  void draw(Point point) {
    if (pen_up_)
      tools_.picture.startPiece(point);
    else
      tools_.picture.extendPiece(point);
    pen_up_ = false;
    tools_.picture.dot(point, kDotRadius);
  }

  const CurveTools& tools_;
  std::string code_x_;
  std::string code_y_;
  std::array<double, kCurveBlock> ts_;
  std::size_t count_ = 0;
  bool pen_up_ = true;
};

}  // namespace

bool sweepParametric(const CurveTools& tools, const GraphDef& def) {
  const auto range = parameterRange(def);
  if (!range) return false;
  CurveSweep sweep(tools, def);
  tools.in_progress.set(true);
  bool goes_on = true;
  forEachParameter(*range, [&](double t) { return goes_on = sweep.take(t); });
  if (goes_on) sweep.flush();
  tools.in_progress.set(false);
  return true;
}

bool sweepFamily(const CurveTools& tools, const GraphDef& def) {
  const auto range = parameterRange(def);
  if (!range) return false;
  tools.in_progress.set(true);
  forEachParameter(*range, [&](double p) {
    tools.engine.SetP(p);
    sweepFunction(tools, def.codigo);
    tools.screen.runPendingEvents();
    return tools.in_progress.isSet();
  });
  tools.in_progress.set(false);
  return true;
}

}  // namespace zel
