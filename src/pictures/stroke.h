#pragma once

#include <cmath>

#include "pictures/coverage_mask.h"

namespace zel {

/// A place in pixels from the left and top edges of a picture.
struct PixelPoint {
  double x = 0;
  double y = 0;

  bool operator==(const PixelPoint&) const = default;
};

/// Whether a line is drawn column by column and not row by row.
inline bool isFlat(PixelPoint from, PixelPoint to) {
  return std::fabs(to.x - from.x) >= std::fabs(to.y - from.y);
}

/// How a line ends.
enum class LineEnd {
  round,    // by itself, or in a sharp turn
  joined,   // the next line goes on almost straight
  crossed,  // the same, but it is drawn column by column and this one row by row, or the reverse
};

/// What a line is drawn with.
struct LineEnds {
  LineEnd start = LineEnd::round;
  LineEnd end = LineEnd::round;
};

/// Lines and dots of coverage. Coverage falls from all to nothing within a pixel, by the distance
/// of the pixel's centre from the edge of the line; where two meet, the larger one stays. Points
/// may lie anywhere; what is not finite is not drawn.
class Stroke {
 public:
  /// The margin that the mask must have.
  static int marginFor(double half_width);

  /// In pixels; a line is at least one pixel wide.
  Stroke(CoverageMask& mask, double half_width);

  void line(PixelPoint from, PixelPoint to, LineEnds ends);
  void dot(PixelPoint centre, double radius);

 private:
  struct Course;

  template <bool is_flat>
  void draw(const Course& course, LineEnds ends);
  template <bool is_flat>
  void drawBody(const Course& course, int first, int last);
  template <bool is_flat>
  void drawCapsule(const Course& course, double reach, int first, int last);
  template <bool is_flat>
  void touch(int first_column, int first_pixel, int last_column, int last_pixel);

  CoverageMask& mask_;
  double half_width_;
  double reach_;  // from the middle of a line to where its coverage ends
};

}  // namespace zel
