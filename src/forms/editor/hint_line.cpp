#include "forms/editor/hint_line.h"

#include <QPainter>
#include <QTextLayout>

#include "forms/form.h"
#include "forms/tool_tip.h"

namespace zel {
namespace {

/// Colours that are read well on a window of the palette.
struct Shades {
  QColor missing;
  QColor refusal;
  QColor note;
};

Shades shadesOn(const QPalette& palette) {
  const bool is_dark = palette.color(QPalette::Window).lightness() < 128;
  return is_dark
             ? Shades{QColor(0xB4, 0xB8, 0xBC), QColor(0xFF, 0xA0, 0x98), QColor(0xE8, 0xC4, 0x6A)}
             : Shades{QColor(0x60, 0x64, 0x68), QColor(0xB0, 0x20, 0x1A), QColor(0x7A, 0x55, 0x00)};
}

qsizetype lengthInQt(const std::string& text, std::size_t bytes) {
  return toQt(std::string_view(text).substr(0, bytes)).size();
}

}  // namespace

HintLine::HintLine(QWidget* parent) : QLabel(parent) {
  setTextFormat(Qt::PlainText);
  QFont small = font();
  constexpr qreal kOfTheFont = 0.9;
  small.setPointSizeF(small.pointSizeF() * kOfTheFont);
  setFont(small);
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void HintLine::setHint(const FieldHint& hint) {
  if (hint == hint_) return;
  hint_ = hint;
  setText(toQt(hint.text).left(kLongestToolTip + 1));  // it may name all of a field's text
  tellInTip();
  update();
}

void HintLine::tellInTip() {
  const bool fits = fontMetrics().horizontalAdvance(text()) <= width() - textLeft();
  setToolTip(fits ? QString() : toolTipOf(text()));
}

void HintLine::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  tellInTip();
}

qreal HintLine::signSide() const { return fontMetrics().ascent() - 1; }

int HintLine::textLeft() const {
  if (hint_.tone == HintTone::missing) return 0;
  return qCeil(signSide() + fontMetrics().averageCharWidth() / 2.0 + 1);
}

QSize HintLine::sizeHint() const {
  return {fontMetrics().averageCharWidth(), fontMetrics().height() + 2};
}

QColor HintLine::colour() const {
  const Shades shades = shadesOn(palette());
  switch (hint_.tone) {
    case HintTone::refusal: return shades.refusal;
    case HintTone::note: return shades.note;
    default: return shades.missing;
  }
}

/// A disc with an exclamation mark for what would be refused, a ring with one for a note.
void HintLine::paintSign(QPainter& painter, const QRectF& place) const {
  const bool is_refusal = hint_.tone == HintTone::refusal;
  painter.setPen(QPen(colour(), 1));
  painter.setBrush(is_refusal ? QBrush(colour()) : QBrush(Qt::NoBrush));
  painter.drawEllipse(place);
  QPen stroke(is_refusal ? palette().color(QPalette::Window) : colour(), place.width() / 7);
  stroke.setCapStyle(Qt::RoundCap);
  painter.setPen(stroke);
  const QPointF centre = place.center();
  const qreal unit = place.height() / 10;
  painter.drawLine(centre - QPointF(0, 2.6 * unit), centre + QPointF(0, 0.6 * unit));
  painter.drawPoint(centre + QPointF(0, 2.7 * unit));
}

void HintLine::paintEvent(QPaintEvent*) {
  if (hint_.tone == HintTone::none) return;
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  if (hint_.tone != HintTone::missing)
    paintSign(painter, {0.5, (height() - signSide()) / 2, signSide(), signSide()});
  paintText(painter);
}

/// What does not fit goes, at worst with the mark.
void HintLine::paintText(QPainter& painter) const {
  const int room = width() - textLeft();
  QTextLayout layout(fontMetrics().elidedText(text(), Qt::ElideRight, room), font());
  QTextLayout::FormatRange mark;
  mark.start = static_cast<int>(lengthInQt(hint_.text, hint_.mark));
  mark.length = static_cast<int>(lengthInQt(hint_.text, hint_.mark + hint_.mark_size)) - mark.start;
  mark.format.setFontWeight(QFont::Bold);
  mark.format.setForeground(palette().color(QPalette::Window));
  mark.format.setBackground(colour());
  if (mark.length > 0) layout.setFormats({mark});
  layout.beginLayout();
  layout.createLine().setLineWidth(width());
  layout.endLayout();
  painter.setPen(colour());
  layout.draw(&painter, QPointF(textLeft(), 0));
}

}  // namespace zel
