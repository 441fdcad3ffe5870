#include "forms/editor/colour_swatch.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOptionButton>

#include "forms/form.h"
#include "pictures/colour.h"

namespace zel {

QColor qtColour(std::int32_t colour) {
  return {colour & 0xFF, colour >> 8 & 0xFF, colour >> 16 & 0xFF};
}

ColourSwatch::ColourSwatch(QWidget* parent) : QPushButton(parent) {
  setAutoDefault(true);  // Enter clicks it
  setColour(0);
}

void ColourSwatch::setColour(std::int32_t colour) {
  colour_ = colour;
  const QString text = toQt(colourText(colour));
  setToolTip(text);
  setAccessibleDescription(text);
  update();
}

QSize ColourSwatch::sizeHint() const {
  constexpr int kWidthInLetters = 9;
  const QSize button = QPushButton::sizeHint();
  return {fontMetrics().averageCharWidth() * kWidthInLetters, button.height()};
}

void ColourSwatch::paintEvent(QPaintEvent* event) {
  QPushButton::paintEvent(event);
  QStyleOptionButton option;
  initStyleOption(&option);
  const QRect inside = style()->subElementRect(QStyle::SE_PushButtonContents, &option, this);
  const int margin = fontMetrics().height() / 4;
  QPainter painter(this);
  painter.setPen(palette().color(QPalette::Mid));
  painter.setBrush(qtColour(colour_));
  painter.drawRect(inside.adjusted(margin, 1, -margin - 1, -2));
}

}  // namespace zel
