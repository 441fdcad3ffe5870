#include "platform/widgets/program_style.h"

#include <QPainter>
#include <QStyleOptionComplex>
#include <optional>

#include <QStyleOptionHeaderV2>

namespace zel {
namespace {

void drawFocus(const QStyleOption& option, QPainter& painter) {
  if (!(option.state & QStyle::State_HasFocus)) return;
  constexpr int kInset = 3;  // pixels, inside of a default button's own frame
  constexpr qreal kRadius = 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(option.palette.color(QPalette::Highlight), 2));
  painter.setBrush(Qt::NoBrush);
  const QRect inside = option.rect.adjusted(kInset, kInset, -kInset, -kInset);
  painter.drawRoundedRect(inside, kRadius, kRadius);
  painter.restore();
}

/// At the edge, outside of the frame that marks the focus: some styles show a checked button by a
/// shade that is hard to see on dark desktops.
void drawChecked(const QStyleOption& option, QPainter& painter) {
  if (!(option.state & QStyle::State_On)) return;
  constexpr qreal kInset = 1;  // pixels, half of the frame's width
  constexpr qreal kRadius = 2;
  painter.save();
  painter.setRenderHint(QPainter::Antialiasing);
  painter.setPen(QPen(option.palette.color(QPalette::Highlight), 2 * kInset));
  painter.setBrush(Qt::NoBrush);
  const QRectF edge = QRectF(option.rect).adjusted(kInset, kInset, -kInset, -kInset);
  painter.drawRoundedRect(edge, kRadius, kRadius);
  painter.restore();
}

/// Nothing for what is no header.
std::optional<QStyleOptionHeaderV2> withoutIcon(const QStyleOption& option) {
  const auto* const header = qstyleoption_cast<const QStyleOptionHeaderV2*>(&option);
  if (header == nullptr) return std::nullopt;
  QStyleOptionHeaderV2 plain = *header;
  plain.icon = QIcon();
  return plain;
}

/// The share lets them be read, black on white at a contrast of 4.7, and told from what is typed.
void palePlaceholders(QPalette& palette) {
  constexpr float kShare = 0.55F;
  for (const auto group : {QPalette::Active, QPalette::Inactive, QPalette::Disabled}) {
    QColor colour = palette.color(group, QPalette::Text);
    colour.setAlphaF(kShare * colour.alphaF());
    palette.setColor(group, QPalette::PlaceholderText, colour);
  }
}

}  // namespace

void ProgramStyle::drawControl(ControlElement element, const QStyleOption* option,
                               QPainter* painter, const QWidget* widget) const {
  const auto header = element == CE_Header ? withoutIcon(*option) : std::nullopt;
  QProxyStyle::drawControl(element, header ? &*header : option, painter, widget);
  if (element != CE_PushButton) return;
  drawChecked(*option, *painter);
  drawFocus(*option, *painter);
}

void ProgramStyle::drawComplexControl(ComplexControl control, const QStyleOptionComplex* option,
                                      QPainter* painter, const QWidget* widget) const {
  QProxyStyle::drawComplexControl(control, option, painter, widget);
  if (control != CC_ToolButton) return;
  drawChecked(*option, *painter);
  drawFocus(*option, *painter);
}

int ProgramStyle::styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                            QStyleHintReturn* data) const {
  if (hint == SH_DialogButtonBox_ButtonsHaveIcons) return 0;
  return QProxyStyle::styleHint(hint, option, widget, data);
}

void ProgramStyle::polish(QPalette& palette) {
  QProxyStyle::polish(palette);
  palePlaceholders(palette);
  const std::lock_guard lock(icons_guard_);
  icons_.clear();
}

QIcon ProgramStyle::standardIcon(StandardPixmap name, const QStyleOption* option,
                                 const QWidget* widget) const {
  const std::lock_guard lock(icons_guard_);
  const auto [icon, is_new] = icons_.try_emplace(name);
  if (is_new) icon->second = QProxyStyle::standardIcon(name, option, widget);
  return icon->second;
}

}  // namespace zel
