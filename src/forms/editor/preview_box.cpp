#include "forms/editor/preview_box.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "forms/pixel_frame.h"
#include "pictures/raster_picture.h"
#include "platform/qt/bitmap_image.h"

namespace zel {

PreviewBox::PreviewBox(QWidget* parent) : QLabel(parent) {
  setContentsMargins(1, 1, 1, 1);  // for the frame
  // Sides of 4 to 3, as the plot window's picture has at first: with the proportions kept, the same
  // range of y is seen in both.
  constexpr int kWidthInLetters = 30;
  const int quarter = (fontMetrics().averageCharWidth() * kWidthInLetters + 3) / 4;
  setFixedSize(4 * quarter + 2, 3 * quarter + 2);
}

QSize PreviewBox::pixels() const {
  const QSizeF size = QSizeF(contentsRect().size()) * devicePixelRatioF();
  return {std::max(1, static_cast<int>(std::ceil(size.width()))),
          std::max(1, static_cast<int>(std::ceil(size.height())))};
}

PictureSize PreviewBox::pictureSize() const {
  return PictureSize::ofPixels(contentsRect().width(), contentsRect().height());
}

void PreviewBox::drawWith(const std::function<void(Picture&)>& draw) {
  RasterPicture picture(pixels().width(), pixels().height(), devicePixelRatioF());
  draw(picture);
  QImage image = toImage(picture.finish());
  image.setDevicePixelRatio(devicePixelRatioF());
  setPixmap(QPixmap::fromImage(image));
  is_stale_ = false;
}

void PreviewBox::paintEvent(QPaintEvent* event) {
  QLabel::paintEvent(event);
  QPainter painter(this);
  paintPixelFrame(painter, rect(), palette().color(QPalette::Mid));
  if (is_stale_ || pixmap().isNull() || pixmap().size() == pixels()) return;
  is_stale_ = true;
  QMetaObject::invokeMethod(this, &PreviewBox::outgrown, Qt::QueuedConnection);
}

}  // namespace zel
