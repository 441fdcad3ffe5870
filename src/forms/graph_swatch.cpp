// The icon of a graph's row: a rectangle in a square of 32 units, scaled to the place it is given.
#include "forms/graph_swatch.h"

#include <QPainter>

#include "forms/editor/colour_swatch.h"
#include "platform/icons/painted_icon.h"

namespace zel {
namespace {

constexpr qreal kSide = 32;
constexpr qreal kEdgeWidth = 2;

class SwatchEngine : public PaintedIcon {
 public:
  SwatchEngine(QColor colour, SwatchLook look) : colour_(colour), look_(look) {}

  void paint(QPainter* painter, const QRect& rect, QIcon::Mode mode, QIcon::State) override {
    painter->save();
    painter->setRenderHint(QPainter::Antialiasing);
    painter->translate(rect.topLeft());
    painter->scale(rect.width() / kSide, rect.height() / kSide);
    painter->setBrush(colour_);
    if (look_ == SwatchLook::rounded)
      paintRounded(*painter, mode);
    else
      paintSquare(*painter);
    painter->restore();
  }

  QIconEngine* clone() const override { return new SwatchEngine(*this); }

 private:
  static void paintRounded(QPainter& painter, QIcon::Mode mode) {
    constexpr qreal kMargin = 3;
    constexpr qreal kRadius = 8;
    constexpr QColor kEdge(128, 128, 128);  // seen on light and on dark
    painter.setPen(QPen(mode == QIcon::Selected ? Qt::white : kEdge, kEdgeWidth));
    painter.drawRoundedRect(QRectF(kMargin, kMargin, kSide - 2 * kMargin, kSide - 2 * kMargin),
                            kRadius, kRadius);
  }

  static void paintSquare(QPainter& painter) {
    painter.setPen(QPen(Qt::white, kEdgeWidth));  // seen where the row is selected
    painter.drawRect(QRectF(1, 1, kSide - 2, kSide - 2));
  }

  QColor colour_;
  SwatchLook look_;
};

}  // namespace

QIcon graphSwatch(std::int32_t colour, SwatchLook look) {
  return QIcon(new SwatchEngine(qtColour(colour), look));
}

}  // namespace zel
