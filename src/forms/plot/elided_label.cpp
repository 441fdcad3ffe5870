#include "forms/plot/elided_label.h"

#include <QPainter>
#include <QStyle>
#include <QStyleOption>

#include "forms/tool_tip.h"

namespace zel {

ElidedLabel::ElidedLabel(QWidget* parent) : QLabel(parent) { setTextFormat(Qt::PlainText); }

void ElidedLabel::showText(const QString& text) { showText(text, toolTipOf(text.trimmed())); }

void ElidedLabel::showText(const QString& text, const QString& tip) {
  if (text == this->text() && tip == tip_) return;
  setText(text);
  tip_ = tip;
  renewTip();
}

bool ElidedLabel::isElided() const { return fitted() != text(); }

void ElidedLabel::resizeEvent(QResizeEvent* event) {
  QLabel::resizeEvent(event);
  renewTip();
}

void ElidedLabel::paintEvent(QPaintEvent* event) {
  if (!isElided()) return QLabel::paintEvent(event);
  QStyleOption option;
  option.initFrom(this);
  QPainter painter(this);
  style()->drawItemText(&painter, contentsRect().adjusted(indent(), 0, 0, 0),
                        Qt::AlignLeft | Qt::AlignVCenter, option.palette, isEnabled(), fitted(),
                        foregroundRole());
}

QString ElidedLabel::fitted() const {
  return fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width() - indent());
}

void ElidedLabel::renewTip() { setToolTip(isElided() ? tip_ : QString()); }

}  // namespace zel
