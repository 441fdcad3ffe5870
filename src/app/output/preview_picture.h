#pragma once

#include "pictures/picture.h"

namespace zel {

/// A picture whose axes are pale, and that knows whether anything was drawn but them.
class PreviewPicture : public Picture {
 public:
  static constexpr std::int32_t kAxesColour = 0xCFC9C4;  // red in the low byte

  explicit PreviewPicture(Picture& picture) : picture_(picture) {}

  bool showsGraph() const { return shows_graph_; }

  void clear() override { picture_.clear(); }
  void beginAxes() override { picture_.beginGraph('\0', kAxesColour); }
  void line(Point from, Point to) override {
    picture_.startPiece(from);
    picture_.extendPiece(to);
  }
  void beginGraph(char letter, std::int32_t colour) override {
    picture_.beginGraph(letter, colour);
  }
  void startPiece(Point point) override {
    shows_graph_ = true;
    picture_.startPiece(point);
  }
  void extendPiece(Point point) override { picture_.extendPiece(point); }
  void dot(Point centre, double radius) override { picture_.dot(centre, radius); }

 private:
  Picture& picture_;
  bool shows_graph_ = false;
};

}  // namespace zel
