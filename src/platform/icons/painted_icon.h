#pragma once

#include <QIconEngine>

namespace zel {

/// An icon that its `paint` paints anew each time. Asked for as a picture it is painted on nothing:
/// the toolkit's own engine leaves undefined what `paint` does not touch.
class PaintedIcon : public QIconEngine {
 public:
  QPixmap pixmap(const QSize& size, QIcon::Mode mode, QIcon::State state) override;
};

}  // namespace zel
