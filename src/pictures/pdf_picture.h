#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "pictures/deflate.h"
#include "pictures/picture.h"

namespace zel {

/// A picture as a PDF document of one page, in vectors, on white. A pixel of 15 twips is 3/4 point.
/// The same picture gives the same bytes: they hold no date.
class PdfPicture : public Picture {
 public:
  /// In bytes before they are compressed: a longer document is not made, and bytes() is then empty.
  static constexpr std::size_t kMaxContent = std::size_t{256} << 20;

  /// The size in pixels of 15 twips, and how many times as large as that the page is.
  PdfPicture(int width, int height, std::size_t max_content = kMaxContent, double scale = 1);

  void clear() override;
  void beginAxes() override;
  void line(Point from, Point to) override;
  void beginGraph(char letter, std::int32_t colour) override;
  void startPiece(Point point) override;
  void extendPiece(Point point) override;
  void dot(Point centre, double radius) override;

  /// In bytes.
  std::size_t limit() const { return max_content_; }

  /// The document outgrew its limit and takes nothing more.
  bool isFull() const { return written_ > max_content_; }

  /// The whole document, once; empty when it is too long or could not be compressed.
  std::string bytes();

 private:
  struct Piece {
    Point pen;
    bool is_alone = true;   // a single point so far
    bool has_path = false;  // something of it was near enough to be written
    bool goes_on = false;   // the path has come to the pen
  };

  bool takes(std::string_view text);
  void write(std::string_view text);
  void endPiece();
  void endGroup();

  int width_;
  int height_;
  std::size_t max_content_;
  double points_;  // of the page to a pixel
  Deflate content_;
  std::size_t written_ = 0;  // bytes of the content and of dots_
  std::optional<Piece> piece_;
  std::string dots_;  // of the current graph, which lie over its lines
};

}  // namespace zel
