#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "pictures/bitmap.h"
#include "pictures/pause.h"

namespace zel {

/// How much of each pixel one graph covers: 0 to 255. Around the picture lies a margin that may be
/// written too and is not seen. What was touched is known by tiles, so that a graph costs what it
/// covers, not what the picture holds.
class CoverageMask {
 public:
  static constexpr int kTileWidth = 32;
  static constexpr int kTileHeight = 8;

  /// In pixels; the margin is at least what is asked for.
  CoverageMask(int width, int height, int margin, const Pause& pause);

  int width() const { return width_; }
  int height() const { return height_; }

  /// The coverage of a pixel, which may lie in the margin. Who raises it touches it.
  std::uint8_t* at(int x, int y) { return &covered_[offsetOf(x, y)]; }
  /// From a pixel to the one below it.
  std::ptrdiff_t stride() const { return stride_; }

  /// Says that these pixels may have been raised; the last ones are among them.
  void touch(int left, int top, int right, int bottom);

  /// Lays a colour, 0xRRGGBB, on the bitmap by its coverage, and is empty then. False when it was
  /// empty before.
  bool blendOnto(Bitmap& bitmap, std::uint32_t colour, const Pause& pause);
  void clear();

 private:
  std::size_t offsetOf(int x, int y) const {
    return static_cast<std::size_t>((y + margin_) * stride_ + x + margin_);
  }
  template <class Tile>
  bool takeTouched(const Tile& tile);
  void clearTile(int left, int top);

  int width_;
  int height_;
  int margin_;  // whole tiles
  std::ptrdiff_t stride_;
  int tiles_across_;
  int tiles_down_;
  LargeVector<std::uint8_t> covered_;
  std::vector<std::uint8_t> touched_;  // by tile, row by row
};

}  // namespace zel
