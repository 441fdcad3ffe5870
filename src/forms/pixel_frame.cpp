#include "forms/pixel_frame.h"

#include <algorithm>

namespace zel {

void paintPixelFrame(QPainter& painter, const QRect& rect, QPen pen) {
  const QTransform device = painter.deviceTransform();
  const QRectF mapped = device.mapRect(QRectF(rect));
  const QPoint top_left(qRound(mapped.left()), qRound(mapped.top()));
  const QPoint end(qRound(mapped.right()), qRound(mapped.bottom()));
  const int width = std::max(1, static_cast<int>(pen.widthF() * device.m11()));
  pen.setWidth(width);
  painter.save();
  painter.setTransform(device.inverted(), true);
  painter.setPen(pen);
  painter.setBrush(Qt::NoBrush);
  const int before = width / 2;
  const int after = width - before;
  painter.drawRect(QRect(top_left, end - QPoint(1, 1)).adjusted(before, before, -after, -after));
  painter.restore();
}

}  // namespace zel
