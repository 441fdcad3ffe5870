#include <string>

#include "plot/curve.h"
#include "plot/parameter_range.h"

namespace zel {
namespace {

constexpr double kDotRadius = 20;  // twips

}  // namespace

bool sweepParametric(const CurveTools& tools, const GraphDef& def) {
  const auto range = parameterRange(def);
  if (!range) return false;
  const std::string code_x = parameter(def, "codigo_xt");
  const std::string code_y = parameter(def, "codigo_yt");
  std::string message;
  bool pen_up = true;
  tools.in_progress.set(true);
  forEachParameter(*range, [&](double t) {
    double x = 0;
    double y = 0;
    tools.engine.SetT(t);
    const bool has_x = tools.engine.Evaluate(t, x, code_x, message);
    const bool has_y = tools.engine.Evaluate(t, y, code_y, message);
    if (has_x && has_y && tools.viewport.isInside(x, y)) {
      const Point point = tools.viewport.map(x, y);
      if (pen_up)
        tools.picture.startPiece(point);
      else
        tools.picture.extendPiece(point);
      pen_up = false;
      tools.picture.dot(point, kDotRadius);
    }
    tools.screen.runPendingEvents();
    return tools.in_progress.isSet();
  });
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
