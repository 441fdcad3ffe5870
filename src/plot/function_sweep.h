#pragma once

#include <string>
#include <string_view>

#include "plot/curve.h"

namespace zel {

/// One sample of a code that is drawn over x.
struct Sample {
  bool defined = false;  // the evaluation succeeded
  bool drawn = false;    // and the point lies in the view
  Point point;           // on the picture, when it is drawn
};

/// Draws the code over x and calls `visit` with each sample after it has been drawn.
template <class Visit>
void sweepSamples(const CurveTools& tools, std::string_view code, const Visit& visit) {
  const Viewport& viewport = tools.viewport;
  bool pen_up = true;
  std::string message;
  for (double x = viewport.view.xi; x <= viewport.view.xf;) {
    Sample sample;
    double y = 0;
    sample.defined = tools.engine.Evaluate(x, y, code, message);
    sample.drawn = sample.defined && viewport.isInside(x, y);
    if (sample.drawn) {
      sample.point = viewport.map(x, y);
      if (pen_up)
        tools.picture.startPiece(sample.point);
      else
        tools.picture.extendPiece(sample.point);
    }
    pen_up = !sample.drawn;
    visit(sample);
    const double next = x + viewport.xStep();
    if (next <= x) break;
    x = next;
  }
}

}  // namespace zel
