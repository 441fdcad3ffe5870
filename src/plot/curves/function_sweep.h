// The pen: it goes down at the first sample that is defined and in the view, draws a straight line
// to each next one, however far that is, and is lifted by a sample that is undefined or out of
// view. Samples are evaluated in blocks, and pending events run between these.

#pragma once

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <span>
#include <string_view>

#include "plot/curves/curve.h"

namespace zel {

/// One sample of a code that is drawn over x.
struct Sample {
  bool defined = false;  // the evaluation succeeded
  bool drawn = false;    // and the point lies in the view
  Point point;           // on the picture, when it is drawn
};

/// So many samples are evaluated in one go, or fewer where one takes long, and pending events run
/// between.
inline constexpr std::size_t kSweepBlock = 256;

/// Draws the code over x and calls `visit` with each sample after it has been drawn.
template <class Visit>
void sweepSamples(const CurveTools& tools, std::string_view code, const Visit& visit) {
  const Viewport& viewport = tools.viewport;
  std::array<double, kSweepBlock> ys;
  bool pen_up = true;
  for (std::size_t first = 0, count = 0; first < tools.grid.size(); first += count) {
    if (first > 0) {
      const double p = tools.engine.GetP();
      tools.screen.runPendingEvents();
      if (tools.in_progress.isAbandoned()) return;
      if (tools.engine.GetP() != p) tools.in_progress.keepParameter(tools.engine.GetP());
      tools.engine.SetP(p);
    }
    const auto xs =
        tools.grid.xs().subspan(first).first(std::min(kSweepBlock, tools.grid.size() - first));
    count = tools.engine.SweepPart(code, xs, std::span(ys).first(xs.size()));
    for (std::size_t i = 0; i < count; ++i) {
      Sample sample;
      sample.defined = !std::isnan(ys[i]);
      sample.drawn = sample.defined && viewport.isInside(xs[i], ys[i]);
      if (sample.drawn) {
        sample.point = {tools.grid.place(first + i), viewport.mapY(ys[i])};
        if (pen_up)
          tools.picture.startPiece(sample.point);
        else
          tools.picture.extendPiece(sample.point);
      }
      pen_up = !sample.drawn;
      visit(sample);
    }
  }
}

}  // namespace zel
