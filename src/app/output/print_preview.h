#pragma once

#include "app/services.h"

/// Where the picture lies on the paper that it is printed on. Lengths are in twips, those of the
/// paper and those of its small image on the screen.
namespace zel {

/// The one setting made for a picture: paper lies as the picture does.
PageOrientation orientationFor(PaperSize picture);

/// The largest size with the proportions of the paper that fits into the room.
PaperSize scaledInto(PaperSize room, PaperSize paper);

struct Rectangle {
  double left = 0;
  double top = 0;
  double width = 0;
  double height = 0;

  bool operator==(const Rectangle&) const = default;
};

/// The picture on the scaled page, and the outline that follows the mouse while it is dragged. A
/// place that the picture is moved to lies within the page on all four sides.
class PrintPreview {
 public:
  /// In the middle of the page; a picture that is larger stands out on both sides and is cut.
  PrintPreview(PaperSize paper, PaperSize picture);

  PaperSize paper() const { return paper_; }
  /// As it comes out.
  PaperSize picture() const { return {own_.width * scale_, own_.height * scale_}; }
  /// Of the picture on the paper, beside its own size.
  double scale() const { return scale_; }

  /// Whether the picture in its own size stands out of the page.
  bool isLarger() const { return own_.width > paper_.width || own_.height > paper_.height; }
  /// Makes a picture that is larger as large as fits between narrow margins, or gives it its own
  /// size back; either way it lies in the middle of the page.
  void setFitted(bool fitted);

  /// The size of the page on the screen. Picture and outline stay where they are on the paper.
  void setScaledPage(PaperSize size) { scaled_page_ = size; }

  /// On the scaled page.
  Rectangle image() const { return onScaledPage(position_); }
  Rectangle outline() const { return onScaledPage(outline_); }

  /// The mouse is pressed at this point of the image.
  void press(float x, float y);
  /// The mouse is at this point of the image, which has not moved since the press. The outline
  /// follows, and stays where it is when it would leave the page.
  void dragTo(float x, float y);
  /// Puts the image where the outline is.
  void release() { position_ = outline_; }

  /// Moves the image this far on the paper, unless it would leave the page. False when it stays.
  bool moveBy(double dx, double dy);
  /// Puts the image at this place on the paper, unless it would leave the page.
  bool moveTo(Point position);

  /// Of the picture, from the left and top edges of the paper.
  Point position() const { return position_; }

 private:
  bool isOnPage(Point position) const;
  Rectangle onScaledPage(Point position) const;
  void centre();

  PaperSize paper_;
  PaperSize own_;  // size of the picture
  double scale_ = 1;
  PaperSize scaled_page_;
  Point position_;  // on the paper, as is the outline's
  Point outline_;
  float press_x_ = 0;
  float press_y_ = 0;
};

}  // namespace zel
