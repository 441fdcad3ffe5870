#pragma once

#include <functional>
#include <optional>
#include <string_view>

#include "pictures/number_layer.h"
#include "plot/axes.h"
#include "plot/viewport.h"

namespace zel {

/// How large texts are, in twips. A text has at least some width.
struct TextMeasure {
  double font_size = 0;
  double height = 0;  // of a line
  std::function<double(std::string_view)> width;
};

/// The numbers at the scale marks of a view that has been prepared, with the grid lines on which
/// they stand. Where marks are too close together for their numbers, every second, fifth or tenth
/// one has a number, and so on; where a range has no marks, round numbers stand in their place. No
/// number covers another one, and all are on the picture: beside the axes, or at the edge beyond
/// which an axis lies.
NumberLayer markNumbers(const Viewport& viewport, const ScaleMarks& marks,
                        const TextMeasure& measure);

/// The coordinates of a place on the picture, as exact as a pixel is, beside that place and on the
/// picture; nothing where they are beyond the largest double.
std::optional<PictureLabel> pointerLabel(const Viewport& viewport, Point pointer,
                                         const TextMeasure& measure);

}  // namespace zel
