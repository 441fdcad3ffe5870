#include "platform/icons/painted_icon.h"

#include <QPainter>

namespace zel {

QPixmap PaintedIcon::pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) {
  QPixmap pixmap(size);
  pixmap.fill(Qt::transparent);
  QPainter painter(&pixmap);
  paint(&painter, QRect(QPoint(), size), mode, state);
  return pixmap;
}

}  // namespace zel
