#pragma once

#include <cstdint>
#include <optional>

#include "pictures/bitmap.h"
#include "pictures/coverage_mask.h"
#include "pictures/line_joiner.h"
#include "pictures/pause.h"
#include "pictures/picture.h"
#include "pictures/stroke.h"

namespace zel {

/// A picture in pixels, on white, with black axes. What it draws depends on nothing but the calls,
/// the size and the density: it is the same to the last bit on every machine. Each graph is laid on
/// the picture as a whole, so a curve is as dark where it meets itself as elsewhere.
class RasterPicture : public Picture {
 public:
  /// The size in pixels of the device, at least 1 x 1; the density is how many of them a pixel of
  /// 15 twips has in each direction. There are pauses while a large one is made, and where a graph
  /// is laid on it.
  RasterPicture(
      int width, int height, double density = 1, Pause pause = [] {});

  void clear() override;
  void beginAxes() override;
  /// A line along an edge of the picture is on its outermost pixels.
  void line(Point from, Point to) override;
  void beginGraph(char letter, std::int32_t colour) override;
  void startPiece(Point point) override;
  void extendPiece(Point point) override;
  void dot(Point centre, double radius) override;

  /// Ends the graph that was begun last. What is drawn on without another one lies over it.
  const Bitmap& finish();
  /// The pixels without the graph that has not ended.
  const Bitmap& bitmap() const { return bitmap_; }
  /// What has been drawn so far, while the drawing goes on.
  Bitmap soFar() const;
  /// Hands over what has been drawn, as finish() gives it, and is an empty picture on the pixels of
  /// another bitmap, which is not used when it has another size.
  Bitmap exchange(Bitmap reused);

 private:
  /// A line that waits for the next one to know how it ends.
  struct Waiting {
    PixelPoint from;
    PixelPoint to;
    LineEnd start = LineEnd::round;
  };
  /// A piece of curve that is being drawn.
  struct Piece {
    LineJoiner joiner;
    PixelPoint corner;  // the last one
    std::optional<Waiting> waiting;
  };

  PixelPoint toPixels(Point point) const;
  void beginLayer(std::uint32_t colour);
  void endPiece();
  void drawTo(PixelPoint corner);
  void draw(const Waiting& line, LineEnd end);
  void fill(PixelPoint from, PixelPoint to);

  Bitmap bitmap_;
  double density_;
  int axis_width_;            // pixels
  CoverageMask mask_;         // of the graph that is being drawn
  std::uint32_t colour_ = 0;  // of that graph, 0xRRGGBB
  bool is_blank_ = true;      // nothing but white in bitmap_
  std::optional<Piece> piece_;
  Pause pause_;
};

}  // namespace zel
