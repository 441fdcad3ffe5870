// Samples step by repeated addition, as every sweep over x must see them; all graphs of a redraw
// share the same ones, with their places on the picture.

#include "plot/curves/sample_grid.h"

namespace zel {

SampleGrid::SampleGrid(const Viewport& viewport) {
  for (double x = viewport.view.xi; x <= viewport.view.xf;) {
    xs_.push_back(x);
    places_.push_back(viewport.mapX(x));
    const double next = x + viewport.xStep();
    if (next <= x) break;
    x = next;
  }
}

}  // namespace zel
