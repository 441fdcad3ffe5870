#include "app/output/print_preview.h"

#include <algorithm>

namespace zel {
namespace {

/// A quarter of an inch, which printers reach as a rule.
constexpr double kMargin = 360;

}  // namespace

PageOrientation orientationFor(PaperSize picture) {
  return picture.width > picture.height ? PageOrientation::landscape : PageOrientation::portrait;
}

PaperSize scaledInto(PaperSize room, PaperSize paper) {
  const double scale = std::min(room.width / paper.width, room.height / paper.height);
  return {paper.width * scale, paper.height * scale};
}

PrintPreview::PrintPreview(PaperSize paper, PaperSize picture)
    : paper_(paper), own_(picture), scaled_page_(paper) {
  centre();
}

void PrintPreview::setFitted(bool fitted) {
  const double margin = std::min(kMargin, std::min(paper_.width, paper_.height) / 8);
  const PaperSize room = {paper_.width - 2 * margin, paper_.height - 2 * margin};
  scale_ = fitted && isLarger() ? scaledInto(room, own_).width / own_.width : 1;
  centre();
}

void PrintPreview::centre() {
  position_ = {(paper_.width - picture().width) / 2, (paper_.height - picture().height) / 2};
  outline_ = position_;
}

void PrintPreview::press(float x, float y) {
  press_x_ = x;
  press_y_ = y;
}

void PrintPreview::dragTo(float x, float y) {
  const double dx = static_cast<double>(x) - static_cast<double>(press_x_);
  const double dy = static_cast<double>(y) - static_cast<double>(press_y_);
  const Point candidate = {position_.x + dx * paper_.width / scaled_page_.width,
                           position_.y + dy * paper_.height / scaled_page_.height};
  if (isOnPage(candidate)) outline_ = candidate;
}

bool PrintPreview::moveBy(double dx, double dy) {
  return moveTo({position_.x + dx, position_.y + dy});
}

bool PrintPreview::moveTo(Point position) {
  if (!isOnPage(position)) return false;
  position_ = position;
  outline_ = position;
  return true;
}

bool PrintPreview::isOnPage(Point position) const {
  return position.x >= 0 && position.y >= 0 && position.x + picture().width <= paper_.width &&
         position.y + picture().height <= paper_.height;
}

Rectangle PrintPreview::onScaledPage(Point position) const {
  const double across = scaled_page_.width / paper_.width;
  const double down = scaled_page_.height / paper_.height;
  return {position.x * across, position.y * down, picture().width * across,
          picture().height * down};
}

}  // namespace zel
