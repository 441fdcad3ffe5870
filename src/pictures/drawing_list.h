#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <utility>
#include <vector>

#include "pictures/line_joiner.h"
#include "pictures/number_layer.h"
#include "pictures/picture.h"

namespace zel {

/// A picture kept as the list of what was drawn on it, to be drawn again on another one. Of points
/// of a curve that one line passes within a twip the first and the last are kept (LineJoiner). It
/// takes a bounded number of points: a longer drawing is forgotten, and the list is full until it
/// is cleared.
class DrawingList : public Picture {
 public:
  /// At most 20 MB.
  static constexpr std::size_t kMostPoints = std::size_t{1} << 19;

  explicit DrawingList(std::size_t most_points = kMostPoints) : most_points_(most_points) {}

  void clear() override;
  void beginAxes() override;
  void line(Point from, Point to) override;
  void beginGraph(char letter, std::int32_t colour) override;
  void startPiece(Point point) override;
  void extendPiece(Point point) override;
  void dot(Point centre, double radius) override;

  /// More was drawn than it takes, and nothing of it is kept.
  bool isFull() const { return is_full_; }

  /// What is to be seen over it wherever it comes out; nothing at first, and again when it is
  /// cleared.
  void layOver(NumberLayer layer) { layer_ = std::move(layer); }
  const NumberLayer& layer() const { return layer_; }

  /// Draws all of it again, in its order; draws nothing when it is full. The other picture is not
  /// cleared.
  void replay(Picture& picture) const;

 private:
  enum class Kind : std::uint8_t { axes, lines, graph, piece, more_of_piece, dots };

  /// Calls of one kind after each other, and how many of the points belong to them.
  struct Step {
    Kind kind = Kind::axes;
    char letter = '\0';
    std::int32_t colour = 0;
    std::uint32_t points = 0;
    double radius = 0;
  };

  /// The points of the piece that one line passes so far.
  struct Run {
    LineJoiner joiner;
    bool has_end = false;  // another point than the first one has been kept
  };

  static void replayStep(const Step& step, std::span<const Point> points, Picture& picture);
  bool isIn(Kind kind) const { return !steps_.empty() && steps_.back().kind == kind; }
  void begin(const Step& step);
  void addPoint(Point point);

  std::size_t most_points_;
  std::vector<Step> steps_;
  std::vector<Point> points_;
  NumberLayer layer_;
  std::optional<Run> run_;
  bool is_full_ = false;
};

}  // namespace zel
