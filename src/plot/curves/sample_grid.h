#pragma once

#include <cstddef>
#include <span>
#include <vector>

#include "plot/viewport.h"

namespace zel {

/// The x of each sample of a view, from `xi` to `xf` by repeated addition of the x step, and its
/// place on the picture: the same for all graphs. A step that does not lead on towards `xf` ends
/// the grid as if the range had run out.
class SampleGrid {
 public:
  /// The viewport must be prepared.
  explicit SampleGrid(const Viewport& viewport);

  std::size_t size() const { return xs_.size(); }
  std::span<const double> xs() const { return xs_; }
  double place(std::size_t sample) const { return places_[sample]; }  // twips

 private:
  std::vector<double> xs_;
  std::vector<double> places_;
};

}  // namespace zel
