#pragma once

#include <cstddef>
#include <string>
#include <vector>

#include "pictures/number_layer.h"
#include "pictures/picture.h"

namespace zel {

/// A picture as an SVG document in twips: the axes as lines, each graph a group with its pieces of
/// curve as polylines and its dots as circles.
class SvgPicture : public Picture {
 public:
  /// In bytes: a longer document is not made, and text() is then empty.
  static constexpr std::size_t kMaxText = std::size_t{256} << 20;

  /// The size in pixels of 15 twips, and how many times as large as that it is shown.
  SvgPicture(int width, int height, std::size_t max_text = kMaxText, double scale = 1)
      : width_(width), height_(height), max_text_(max_text), scale_(scale) {}

  void clear() override;
  void beginAxes() override;
  void line(Point from, Point to) override;
  void beginGraph(char letter, std::int32_t colour) override;
  void startPiece(Point point) override;
  void extendPiece(Point point) override;
  void dot(Point centre, double radius) override;

  /// In bytes.
  std::size_t limit() const { return max_text_; }

  /// The document outgrew its limit and takes nothing more.
  bool isFull() const { return body_.size() + points_.size() + dots_.size() > max_text_; }

  /// The whole document, with a layer over the picture: its grid is the group "grid", below axes
  /// and graphs, and its numbers are the group "numbers", above them.
  std::string text(const NumberLayer& layer = {});

 private:
  void endPiece();
  void endGroup();
  void appendPoint(Point point);

  int width_;
  int height_;
  std::size_t max_text_;
  double scale_;
  std::string styles_;  // the colours of dots, by graph
  std::string body_;
  std::string group_style_;  // the style of the current graph's dots
  std::string points_;       // of the current piece
  std::size_t point_count_ = 0;
  std::string dots_;  // of the current graph
  bool in_group_ = false;
};

}  // namespace zel
