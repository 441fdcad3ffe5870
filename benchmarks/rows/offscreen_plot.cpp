#include "benchmarks/rows/offscreen_plot.h"

#include <stdexcept>

namespace zel::bench {
namespace {

constexpr int kWidth = 1920;
constexpr int kHeight = 1080;

}  // namespace

OffscreenPlot::OffscreenPlot(const GraphTable& graphs, const ViewSettings& view,
                             const ScaleMarks& marks)
    : engine_([&graphs](char letter) { return graphs.codeOf(letter); }),
      session_(engine_, graphs, picture_, screen_, *this) {
  picture_.resize(kWidth, kHeight);
  session_.open(view, marks);
  session_.resize(PictureSize::ofPixels(kWidth, kHeight));
  redraw();
}

void OffscreenPlot::redraw() {
  session_.redraw();
  if (!refusal_.empty()) throw std::runtime_error(refusal_);
}

}  // namespace zel::bench
