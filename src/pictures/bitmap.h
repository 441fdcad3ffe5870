#pragma once

#include <cstddef>
#include <cstdint>

#include "pictures/large_memory.h"

namespace zel {

/// Pixels row by row from the top, each 0xffRRGGBB.
struct Bitmap {
  int width = 0;
  int height = 0;
  LargeVector<std::uint32_t> pixels;

  std::uint32_t* row(int y) {
    return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
  }
  const std::uint32_t* row(int y) const {
    return pixels.data() + static_cast<std::size_t>(y) * static_cast<std::size_t>(width);
  }

  bool operator==(const Bitmap&) const = default;
};

}  // namespace zel
