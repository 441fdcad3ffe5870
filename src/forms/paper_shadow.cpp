#include "forms/paper_shadow.h"

namespace zel {

void paintPaperShadow(QPainter& painter, const QRect& sheet, const QPalette& palette) {
  constexpr int kShadow = 5;  // logical pixels
  painter.setPen(Qt::NoPen);
  for (int i = kShadow; i > 0; --i) {
    painter.setBrush(QColor(0, 0, 0, 14));
    painter.drawRoundedRect(sheet.adjusted(1 - i, 2 - i, i, i + 1), i, i);
  }
  painter.setPen(palette.color(QPalette::Mid));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(sheet.adjusted(-1, -1, 0, 0));
}

}  // namespace zel
