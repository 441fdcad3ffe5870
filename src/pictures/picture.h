#pragma once

#include <cstdint>

namespace zel {

/// A place on a picture, in twips from its left and top edges. Mapped coordinates are whole, but
/// may be as large as a double when they lie outside the picture.
struct Point {
  double x = 0;
  double y = 0;

  bool operator==(const Point&) const = default;
};

/// What a plot is drawn on. Drawing is data: lines in twips for the axes, and for each graph pieces
/// of curve and dots. The window's image, PNG, SVG, PDF, the printed page and the recorders of
/// tests are pictures.
class Picture {
 public:
  virtual ~Picture() = default;

  /// Back to an empty picture.
  virtual void clear() = 0;

  /// What follows are axes and scale marks, in the picture's own drawing colour.
  virtual void beginAxes() = 0;
  virtual void line(Point from, Point to) = 0;

  /// What follows belongs to the graph of this letter; red is in the low byte of the colour.
  virtual void beginGraph(char letter, std::int32_t colour) = 0;
  /// Puts the pen down: a new piece of curve begins. A piece of one point shows as a dot.
  virtual void startPiece(Point point) = 0;
  /// Draws on from the last point of the piece.
  virtual void extendPiece(Point point) = 0;
  /// A filled circle in the graph's colour.
  virtual void dot(Point centre, double radius) = 0;
};

}  // namespace zel
