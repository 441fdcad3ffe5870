#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "pictures/picture.h"

namespace zel {

/// A number on a picture, in a box of one line. In twips.
struct PictureLabel {
  std::string text;
  Point corner;  // left and top
  double width = 0;
  double height = 0;

  bool operator==(const PictureLabel&) const = default;
};

struct GridLine {
  Point from;
  Point to;

  bool operator==(const GridLine&) const = default;
};

/// What can be laid over a picture and is no part of it: a pale grid, and numbers on it.
struct NumberLayer {
  double font_size = 0;  // twips
  std::vector<GridLine> grid;
  std::vector<PictureLabel> labels;

  bool operator==(const NumberLayer&) const = default;
};

/// How a layer looks wherever it is drawn. Red is in the low byte of a colour.
inline constexpr std::int32_t kGridColour = 0xEAE1D9;
inline constexpr std::int32_t kNumberColour = 0x4C423A;
inline constexpr double kNumberBackground = 0.8;  // opacity of the white behind a number

}  // namespace zel
