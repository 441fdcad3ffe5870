#include "forms/editor/preview_box.h"

#include <QPainter>
#include <algorithm>
#include <cmath>

#include "pictures/raster_picture.h"
#include "platform/qt/bitmap_image.h"

namespace zel {

PreviewBox::PreviewBox(QWidget* parent) : QLabel(parent) {
  setContentsMargins(1, 1, 1, 1);  // for the frame
  constexpr int kWidthInLetters = 30;
  const int width = fontMetrics().averageCharWidth() * kWidthInLetters;
  setFixedSize(width, width * 4 / 5);
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
  painter.setPen(palette().color(QPalette::Mid));
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
  if (is_stale_ || pixmap().isNull() || pixmap().size() == pixels()) return;
  is_stale_ = true;
  QMetaObject::invokeMethod(this, &PreviewBox::outgrown, Qt::QueuedConnection);
}

}  // namespace zel
